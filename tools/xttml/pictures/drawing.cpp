#include "tools/xttml/pictures/drawing.h"

#include "render/layer_painting.h"

namespace xttml {

namespace {

constexpr double dash = 6; // px

/// The text with spaces at which no line ends.
std::string Unbroken(const std::string& text) {
    std::string unbroken;
    for (const char character : text)
        unbroken += character == ' ' ? "\u00A0" : std::string(1, character);
    return unbroken;
}

} // namespace

render::Color ColorOf(const RgbaColor& color) {
    const auto component = [](std::uint16_t value) { return static_cast<std::uint8_t>(value); };
    return {component(color.uRed), component(color.uGreen), component(color.uBlue), component(color.uAlpha)};
}

Drawing::Drawing(const render::Frame& frame)
    : surface_(cairo_image_surface_create_for_data(frame.pixels, CAIRO_FORMAT_ARGB32, frame.width,
                                                   frame.height, frame.stride)),
      target_(cairo_create(surface_.get())) {}

void Drawing::Clear(const render::Color& color) {
    cairo_set_operator(target_.get(), CAIRO_OPERATOR_SOURCE);
    render::SetColor(target_.get(), color);
    cairo_paint(target_.get());
    cairo_set_operator(target_.get(), CAIRO_OPERATOR_OVER);
}

void Drawing::Fill(const render::Box& box, const render::Color& color) {
    render::Paint(target_.get(), render::Fill{box, color});
}

void Drawing::Outline(const render::Box& box, const Border& border) {
    cairo_set_dash(target_.get(), &dash, border.isDashed ? 1 : 0, 0);
    cairo_set_line_width(target_.get(), border.width);
    render::SetColor(target_.get(), border.color);
    cairo_rectangle(target_.get(), box.left + border.width / 2, box.top + border.width / 2,
                    box.Width() - border.width, box.Height() - border.width);
    cairo_stroke(target_.get());
}

void Drawing::Write(const std::string& text, const render::Box& box, const Lettering& lettering,
                    const render::TextPainter& fonts) {
    render::Look look;
    look.fontSize = lettering.fontSize;
    look.color = lettering.color;
    look.background = lettering.background;
    const std::string line = Unbroken(text);
    const render::Paragraph paragraph = {line, {{line.size(), look}}, look, X_TTML_TEXT_ALIGN_START};
    fonts.Paint(target_.get(), {box, X_TTML_DISPLAY_ALIGN_BEFORE, {paragraph}});
}

} // namespace xttml
