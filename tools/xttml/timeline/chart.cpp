#include "tools/xttml/timeline/chart.h"

namespace xttml {

namespace {

constexpr RgbaColor none = {0, 0, 0, 0};
constexpr RgbaColor white = {255, 255, 255};
constexpr RgbaColor ink = {40, 40, 40};
constexpr RgbaColor blue = {62, 108, 156};
constexpr RgbaColor orange = {242, 142, 43};
constexpr RgbaColor brown = {150, 75, 0};
constexpr RgbaColor grey = {120, 120, 120};

// In the order of the marks. Nothing is told by its colour alone.
constexpr MarkStyle styles[] = {
    {"paper", white, none, false, ink},          {"row", {236, 236, 236}, none, false, ink},
    {"tick", {205, 205, 205}, none, false, ink}, {"label", none, none, false, ink},
    {"item", blue, white, false, white},         {"item forced", orange, brown, false, ink},
    {"item unseen", white, grey, true, grey},    {"item unseen forced", white, brown, true, brown},
};

} // namespace

const MarkStyle& StyleOf(Mark mark) {
    return styles[static_cast<std::size_t>(mark)];
}

} // namespace xttml
