// Where the styling of an item or a region puts it.
#ifndef XTTML_RENDER_ITEM_AREA_H
#define XTTML_RENDER_ITEM_AREA_H

#include "render/geometry.h"

#include <x_ttml_items.h>

namespace xttml::render {

/// The area of a text or a region; it may reach out of the root container. A width or height of 0 reaches to
/// the root's edge.
Box TextArea(const RootMapping& mapping, const x_ttml_styling& styling);

/// The box of a picture; it may reach out of the root container. A width or height of 0 is the picture's own,
/// in its proportions to the other.
/// @param picture its size, both sides above 0
Box PictureBox(const RootMapping& mapping, const x_ttml_styling& styling, Size picture);

} // namespace xttml::render

#endif
