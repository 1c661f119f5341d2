#include "render/geometry.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace xttml::render {

bool operator==(const Box& a, const Box& b) {
    return std::tie(a.left, a.top, a.right, a.bottom) == std::tie(b.left, b.top, b.right, b.bottom);
}

Box Intersection(const Box& a, const Box& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

Box Union(const Box& a, const Box& b) {
    if (a.IsEmpty() || b.IsEmpty())
        return a.IsEmpty() ? b : a;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

RootMapping::RootMapping(Size target, Size root)
    : targetArea_{0, 0, static_cast<double>(target.width), static_cast<double>(target.height)} {
    const Size known = root.width > 0 && root.height > 0 ? root : target;
    rootWidth_ = known.width;
    rootHeight_ = known.height;
    scale_ = std::min(targetArea_.right / rootWidth_, targetArea_.bottom / rootHeight_);
    rootArea_ = Intersection(ToTarget(0, 0, rootWidth_, rootHeight_), targetArea_);
}

Box RootMapping::ToTarget(double left, double top, double width, double height) const {
    const double x = (targetArea_.right - rootWidth_ * scale_) / 2;
    const double y = (targetArea_.bottom - rootHeight_ * scale_) / 2;
    return {std::round(x + left * scale_), std::round(y + top * scale_),
            std::round(x + (left + width) * scale_), std::round(y + (top + height) * scale_)};
}

} // namespace xttml::render
