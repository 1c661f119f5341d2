#include "tools/xttml/timeline/chart_picture.h"

#include "tools/xttml/pictures/bitmap.h"
#include "tools/xttml/pictures/drawing.h"
#include "tools/xttml/pictures/picture_look.h"

#include <stdexcept>

namespace xttml {

namespace {

void Draw(Drawing& drawing, const Shape& shape, const render::TextPainter& fonts) {
    const MarkStyle& style = StyleOf(shape.mark);
    const render::Box& box = shape.box;
    drawing.Fill(box, ColorOf(style.fill));
    drawing.Outline(box, {ColorOf(style.border), 1, style.isDashed});
    if (!shape.text.empty())
        drawing.Write(shape.text, {box.left + chartTextMargin, box.top, box.right, box.bottom},
                      {ColorOf(style.ink), chartFontSize, {}}, fonts);
}

} // namespace

std::string PngOf(const Chart& chart) {
    if (!IsPossible(chart.size))
        throw std::runtime_error("the chart is too large for a picture; an SVG file holds it");
    Bitmap picture(chart.size);
    const render::TextPainter fonts("sans-serif", "");
    Drawing drawing(picture.Whole());
    for (const Shape& shape : chart.shapes)
        Draw(drawing, shape, fonts);
    return picture.Png();
}

} // namespace xttml
