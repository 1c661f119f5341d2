// A drawing of boxes and words before it is an SVG or a PNG file.
#ifndef XTTML_TOOLS_XTTML_TIMELINE_CHART_H
#define XTTML_TOOLS_XTTML_TIMELINE_CHART_H

#include "render/geometry.h"

#include <string>
#include <vector>
#include <xttml/style/color.h>

namespace xttml {

/// What a box of a chart stands for.
enum class Mark {
    PAPER,        ///< the whole chart
    ROW,          ///< a stretch of time
    TICK,         ///< a moment
    LABEL,        ///< words alone
    ITEM,         ///< when an item is on screen
    FORCED,       ///< likewise, of forced display
    UNSEEN,       ///< an item of which a viewer sees nothing
    UNSEEN_FORCED ///< likewise, of forced display
};

/// All of them, in their order.
inline constexpr Mark allMarks[] = {Mark::PAPER, Mark::ROW,    Mark::TICK,   Mark::LABEL,
                                    Mark::ITEM,  Mark::FORCED, Mark::UNSEEN, Mark::UNSEEN_FORCED};

/// How a mark looks.
struct MarkStyle {
    const char* name; ///< class names of CSS
    RgbaColor fill;
    RgbaColor border; ///< 1 px, inside the box
    bool isDashed;    ///< the border
    RgbaColor ink;    ///< of the words
};

/// The style of a mark.
const MarkStyle& StyleOf(Mark mark);

/// A box with words in it.
struct Shape {
    Mark mark;
    render::Box box; ///< px of the chart
    std::string
        text; ///< one line, UTF-8, without control characters; what the box has no room for is not shown
    std::string title; ///< what a reader is told who points at it, likewise
};

/// A chart; what comes first lies below.
struct Chart {
    render::Size size;
    std::vector<Shape> shapes;
};

inline constexpr double chartFontSize = 10;   ///< px
inline constexpr double chartTextMargin = 3;  ///< px between a box's left edge and its words
inline constexpr double chartLineHeight = 14; ///< px, of a box with words

} // namespace xttml

#endif
