#include "render/item_area.h"

#include <algorithm>

namespace xttml::render {

namespace {

constexpr double largestPictureBox = 64; // times the root: beyond, a single pixel of it fills the screen

} // namespace

Box TextArea(const RootMapping& mapping, const x_ttml_styling& styling) {
    const double left = styling.origin_x;
    const double top = styling.origin_y;
    const double width = styling.extent_width;
    const double height = styling.extent_height;
    return mapping.ToTarget(left, top, width > 0 ? width : mapping.RootWidth() - left,
                            height > 0 ? height : mapping.RootHeight() - top);
}

Box PictureBox(const RootMapping& mapping, const x_ttml_styling& styling, Size picture) {
    double width = styling.extent_width;
    double height = styling.extent_height;
    if (width <= 0)
        width = height > 0 ? height * picture.width / picture.height : picture.width;
    if (height <= 0)
        height = width * picture.height / picture.width;
    return mapping.ToTarget(styling.origin_x, styling.origin_y,
                            std::min(width, largestPictureBox * mapping.RootWidth()),
                            std::min(height, largestPictureBox * mapping.RootHeight()));
}

} // namespace xttml::render
