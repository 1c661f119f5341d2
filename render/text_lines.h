// The lines of one paragraph.
#ifndef XTTML_RENDER_TEXT_LINES_H
#define XTTML_RENDER_TEXT_LINES_H

#include "render/cairo_handles.h"
#include "render/scene.h"

#include <vector>

namespace xttml::render {

/// How far a line, or what stands in it, reaches above and below its baseline, in px.
struct Reach {
    double above = 0; ///< px
    double below = 0; ///< px
};

/// A paragraph broken into lines.
class TextLines {
public:
    /// @param paragraph must outlive the lines
    /// @param width where lines are broken, in px
    TextLines(PangoContext* context, const Paragraph& paragraph, double width);

    /// From the top of the first line to the bottom of the last, in px. Letters never reach out of it,
    /// however narrow the lines are.
    double Height() const { return height_; }

    /// Places the lines.
    /// @param area whose left and right edges the lines are aligned with; lines outside are not painted
    /// @param top where the first one begins, in px
    void Place(const Box& area, double top);

    /// Paints the boxes behind the text.
    void PaintBackgrounds(cairo_t* target) const;
    /// Paints the text and its decorations.
    void PaintText(cairo_t* target) const;

private:
    struct Line {
        PangoLayoutLine* line; // the layout's
        double width;          // px
        Reach reach;           // of its box
        Reach ink;             // of its letters
        double left = 0;       // px, as the next two
        double top = 0;
        double baseline = 0;
        bool isSeen = false;
    };

    Line MeasureLine(PangoLayoutLine* line) const;
    const Look& LookOf(const PangoGlyphItem& run) const;
    Reach ReachOf(const Reach& font, const Look& look) const;
    double LeftOf(const Line& line, const Box& area) const;
    template <class Visit>
    void VisitRuns(const Line& line, Visit&& visit) const;

    const Paragraph& paragraph_;
    TextLayout layout_;
    std::vector<Line> lines_;
    double height_ = 0;
};

} // namespace xttml::render

#endif
