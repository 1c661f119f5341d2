#include "tools/xttml/formats/cue.h"

#include <tuple>

namespace xttml {

bool operator==(const Look& left, const Look& right) {
    const auto values = [](const Look& look) {
        return std::tie(look.isBold, look.isItalic, look.isUnderlined, look.isStruckThrough, look.color,
                        look.background, look.fontSize);
    };
    return values(left) == values(right);
}

double AnchorOf(Side side, const render::Box& area) {
    constexpr double shares[] = {0, 0.5, 1};
    return area.left + shares[static_cast<std::size_t>(side)] * area.Width();
}

} // namespace xttml
