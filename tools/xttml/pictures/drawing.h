// Boxes, lines and words on a picture.
#ifndef XTTML_TOOLS_XTTML_PICTURES_DRAWING_H
#define XTTML_TOOLS_XTTML_PICTURES_DRAWING_H

#include "render/cairo_handles.h"
#include "render/renderer.h"
#include "render/text_painter.h"

#include <string>
#include <xttml/style/color.h>

namespace xttml {

/// A colour of the library's as one to draw with.
render::Color ColorOf(const RgbaColor& color);

/// How a border is drawn.
struct Border {
    render::Color color;
    double width = 1;      ///< px
    bool isDashed = false; ///< otherwise a whole line
};

/// How a label is written.
struct Lettering {
    render::Color color;
    double fontSize = 10;     ///< px
    render::Color background; ///< behind the words
};

/// Draws on a frame, which outlives it; nothing reaches out of the frame. Places are px of the frame.
class Drawing {
public:
    explicit Drawing(const render::Frame& frame);

    /// What is drawn on, for what draws itself.
    cairo_t* Target() const { return target_.get(); }

    /// Makes all pixels those of a colour, whatever they were.
    void Clear(const render::Color& color);
    void Fill(const render::Box& box, const render::Color& color);
    /// Draws a border inside a box.
    void Outline(const render::Box& box, const Border& border);
    /// Writes a line, as much of it as the box has room for, from its top left corner on or, for a text from
    /// right to left, from its top right one.
    void Write(const std::string& text, const render::Box& box, const Lettering& lettering,
               const render::TextPainter& fonts);

private:
    render::Surface surface_;
    render::DrawingContext target_;
};

} // namespace xttml

#endif
