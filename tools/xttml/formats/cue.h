// Subtitles as other formats know them: what is common to these formats, ready to be written by each.
#ifndef XTTML_TOOLS_XTTML_FORMATS_CUE_H
#define XTTML_TOOLS_XTTML_FORMATS_CUE_H

#include "render/geometry.h"
#include "tools/xttml/text/media_time.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace xttml {

/// A colour: 0xRRGGBBAA, an alpha of 0xFF being opaque.
using Rgba = std::uint32_t;

/// What players show text in by themselves: opaque white.
constexpr Rgba usualColor = 0xFFFFFFFF;

/// 0: transparent, 0xFF: opaque.
constexpr Rgba AlphaOf(Rgba color) {
    return color & 0xFFU;
}

/// How text looks.
struct Look {
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckThrough = false;
    Rgba color = 0;             ///< of the letters
    Rgba background = 0;        ///< behind them; alpha 0: none
    std::uint32_t fontSize = 0; ///< px; 0: not known
};

bool operator==(const Look& left, const Look& right);

/// Text with one look: UTF-8 without control characters, not empty.
struct Span {
    std::string text;
    Look look;
};

/// Never empty: a blank line is a no-break space, since an empty one ends a cue of some formats.
using Line = std::vector<Span>;

enum class Side { LEFT, CENTER, RIGHT };
/// From the bottom to the top.
enum class Level { BOTTOM, MIDDLE, TOP };

/// Where a document puts text.
struct Placement {
    render::Box area; ///< px of the root container, inside of it and not empty
    Level level;      ///< where in the area the lines stand
};

/// The edge of the area, or its middle, that lines are aligned to: px from the root's left edge.
double AnchorOf(Side side, const render::Box& area);

/// A subtitle.
struct Cue {
    MediaTime begin;                    ///< 0 or more
    MediaTime end;                      ///< after the begin
    std::vector<Line> lines;            ///< one or more
    Look look;                          ///< of the item; spans may have others
    Side side;                          ///< that the lines are aligned to
    std::optional<Placement> placement; ///< nothing: where players put subtitles, at the bottom
};

/// The subtitles of a document.
struct Script {
    render::Size root;       ///< the root container; 1280 x 720 for one without a size
    std::vector<Cue> cues;   ///< in the order of their begins; overlaps are kept
    std::size_t untimed = 0; ///< items left out, since they have no begin or no end after it
    std::size_t past = 0;    ///< items left out, since they end before 0
};

} // namespace xttml

#endif
