// Boxes that no viewer sees: where regions are, and what every screen shows.
#ifndef XTTML_TOOLS_XTTML_PICTURES_OUTLINE_H
#define XTTML_TOOLS_XTTML_PICTURES_OUTLINE_H

#include "render/geometry.h"
#include "render/text_painter.h"
#include "tools/xttml/document/display_sequence.h"
#include "tools/xttml/document/item_origins.h"
#include "tools/xttml/pictures/drawing.h"

#include <utility>

namespace xttml {

/// Draws the root container, the safe areas, the regions of items with their identifiers, and the areas of
/// items that have one of their own.
class Outline {
public:
    explicit Outline(ItemOrigins origins) : origins_(std::move(origins)), fonts_("sans-serif", "") {}

    /// @param root its extent; a side of 0 or below makes it the frame's size
    void Draw(const render::Frame& frame, render::Size root, const ItemList& items) const;

private:
    ItemOrigins origins_;
    render::TextPainter fonts_;
};

} // namespace xttml

#endif
