// A paragraph as Pango takes it.
#ifndef XTTML_RENDER_TEXT_LAYOUT_H
#define XTTML_RENDER_TEXT_LAYOUT_H

#include "render/cairo_handles.h"
#include "render/scene.h"

namespace xttml::render {

/// Shapes a paragraph and breaks it into lines. No run of a line reaches over the border of two pieces.
/// @param width where lines are broken, in px
TextLayout LayOut(PangoContext* context, const Paragraph& paragraph, double width);

} // namespace xttml::render

#endif
