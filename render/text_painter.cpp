#include "render/text_painter.h"

#include "render/text_lines.h"

#include <vector>

namespace xttml::render {

namespace {

constexpr std::size_t longestLanguage = 35; // RFC 5646, 4.4.1; Pango keeps every language it meets for ever

/// Which part of the free room stands above the lines.
double ShareAbove(std::int32_t displayAlign) {
    switch (displayAlign) {
    case X_TTML_DISPLAY_ALIGN_CENTER:
        return 0.5;
    case X_TTML_DISPLAY_ALIGN_AFTER:
        return 1;
    default:
        return 0;
    }
}

/// All backgrounds come before all text: letters may reach out of their line.
void PaintLines(cairo_t* target, const Box& area, double top, std::vector<TextLines>& paragraphs) {
    for (TextLines& paragraph : paragraphs) {
        paragraph.Place(area, top);
        top += paragraph.Height();
        paragraph.PaintBackgrounds(target);
    }
    for (const TextLines& paragraph : paragraphs)
        paragraph.PaintText(target);
}

} // namespace

TextPainter::TextPainter(const std::string& fontFamily, const std::string& language)
    : fonts_(pango_cairo_font_map_new()), context_(pango_font_map_create_context(fonts_.get())) {
    const FontDescription font(pango_font_description_new());
    pango_font_description_set_family(font.get(), fontFamily.c_str());
    pango_context_set_font_description(context_.get(), font.get());
    if (!language.empty() && language.size() <= longestLanguage)
        pango_context_set_language(context_.get(), pango_language_from_string(language.c_str()));
    // A line is as long at every size, relative to it, and grey edges suit any background.
    const FontOptions options(cairo_font_options_create());
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context_.get(), options.get());
    pango_context_set_round_glyph_positions(context_.get(), FALSE);
}

void TextPainter::Paint(cairo_t* target, const TextBlock& block) const {
    std::vector<TextLines> paragraphs;
    double free = block.area.Height();
    for (const Paragraph& paragraph : block.paragraphs) {
        paragraphs.emplace_back(context_.get(), paragraph, block.area.Width());
        free -= paragraphs.back().Height();
    }
    cairo_save(target);
    cairo_rectangle(target, block.area.left, block.area.top, block.area.Width(), block.area.Height());
    cairo_clip(target);
    PaintLines(target, block.area, block.area.top + free * ShareAbove(block.displayAlign), paragraphs);
    cairo_restore(target);
}

} // namespace xttml::render
