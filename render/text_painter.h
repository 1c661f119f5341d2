// Lines of text: laid out by Pango, placed and painted here, so that line heights, backgrounds and alignment
// are TTML's.
#ifndef XTTML_RENDER_TEXT_PAINTER_H
#define XTTML_RENDER_TEXT_PAINTER_H

#include "render/cairo_handles.h"
#include "render/scene.h"

#include <string>

namespace xttml::render {

/// Paints blocks of text, with fonts of its own.
class TextPainter {
public:
    /// @param fontFamily, language as in Options
    TextPainter(const std::string& fontFamily, const std::string& language);

    /// Paints a block, clipped to its area.
    void Paint(cairo_t* target, const TextBlock& block) const;

private:
    FontMap fonts_;
    TextContext context_;
};

} // namespace xttml::render

#endif
