// Colours, boxes and pictures on a target.
#ifndef XTTML_RENDER_LAYER_PAINTING_H
#define XTTML_RENDER_LAYER_PAINTING_H

#include "render/cairo_handles.h"
#include "render/scene.h"

namespace xttml::render {

/// What is painted from now on has this colour.
void SetColor(cairo_t* target, const Color& color);

/// Fills a box, its edges moved to whole pixels: what touches leaves no seam and never overlaps.
void Paint(cairo_t* target, const Fill& fill);

/// Paints what is seen of a picture.
void Paint(cairo_t* target, const PlacedPicture& placed);

} // namespace xttml::render

#endif
