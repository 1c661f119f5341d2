#include "render/layer_painting.h"

#include <cmath>

namespace xttml::render {

namespace {

double ComponentOf(std::uint8_t value) {
    return value / 255.0;
}

} // namespace

void SetColor(cairo_t* target, const Color& color) {
    cairo_set_source_rgba(target, ComponentOf(color.red), ComponentOf(color.green), ComponentOf(color.blue),
                          ComponentOf(color.alpha));
}

void Paint(cairo_t* target, const Fill& fill) {
    const double left = std::round(fill.area.left);
    const double top = std::round(fill.area.top);
    SetColor(target, fill.color);
    cairo_rectangle(target, left, top, std::round(fill.area.right) - left,
                    std::round(fill.area.bottom) - top);
    cairo_fill(target);
}

void Paint(cairo_t* target, const PlacedPicture& placed) {
    const Box& box = placed.box;
    const Box& area = placed.area;
    cairo_save(target);
    cairo_rectangle(target, area.left, area.top, area.Width(), area.Height());
    cairo_clip(target);
    cairo_translate(target, box.left, box.top);
    cairo_scale(target, box.Width() / placed.picture->width, box.Height() / placed.picture->height);
    cairo_set_source_surface(target, placed.picture->surface.get(), 0, 0);
    cairo_pattern_set_extend(cairo_get_source(target), CAIRO_EXTEND_PAD); // no pale edges
    cairo_paint(target);
    cairo_restore(target);
}

} // namespace xttml::render
