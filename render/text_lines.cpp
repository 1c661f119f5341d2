#include "render/text_lines.h"

#include "render/layer_painting.h"
#include "render/text_layout.h"

#include <algorithm>
#include <limits>

namespace xttml::render {

namespace {

/// Below zero as well: what stands in a low line may end above its baseline.
constexpr Reach nothing = {-std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity()};

Reach FromPango(const PangoRectangle& logical) {
    return {pango_units_to_double(PANGO_ASCENT(logical)), pango_units_to_double(PANGO_DESCENT(logical))};
}

Reach Around(const Reach& a, const Reach& b) {
    return {std::max(a.above, b.above), std::max(a.below, b.below)};
}

/// Where a decoration lies, above the baseline, and how thick it is, in px.
struct Stroke {
    double top = 0;
    double thickness = 0;
};

Stroke StrokeOf(const PangoGlyphItem& run, const Reach& font, std::int32_t decoration) {
    const PangoAnalysis& analysis = run.item->analysis;
    const FontMetrics metrics(pango_font_get_metrics(analysis.font, analysis.language));
    const double thickness = pango_units_to_double(pango_font_metrics_get_underline_thickness(metrics.get()));
    switch (decoration) {
    case X_TTML_TEXT_DECORATION_UNDERLINE:
        return {pango_units_to_double(pango_font_metrics_get_underline_position(metrics.get())), thickness};
    case X_TTML_TEXT_DECORATION_LINE_THROUGH:
        return {pango_units_to_double(pango_font_metrics_get_strikethrough_position(metrics.get())),
                thickness};
    case X_TTML_TEXT_DECORATION_OVERLINE:
        return {font.above, thickness};
    default:
        return {};
    }
}

/// Cairo keeps the masks of letters, however large; above this size, in px, they are filled as shapes
/// instead.
constexpr double largestKeptLetter = 100;

/// What has no shape is a picture, like an emoji, or blank.
bool FillShapes(cairo_t* target, const PangoGlyphItem& run) {
    pango_cairo_glyph_string_path(target, run.item->analysis.font, run.glyphs);
    Box box;
    cairo_path_extents(target, &box.left, &box.top, &box.right, &box.bottom);
    cairo_fill(target);
    return !box.IsEmpty();
}

void PaintGlyphs(cairo_t* target, const PangoGlyphItem& run, const Look& look, double left, double baseline) {
    SetColor(target, look.color);
    cairo_move_to(target, left, baseline);
    if (look.fontSize > largestKeptLetter && FillShapes(target, run))
        return;
    cairo_move_to(target, left, baseline);
    pango_cairo_show_glyph_string(target, run.item->analysis.font, run.glyphs);
}

} // namespace

TextLines::TextLines(PangoContext* context, const Paragraph& paragraph, double width)
    : paragraph_(paragraph), layout_(LayOut(context, paragraph, width)) {
    for (GSList* node = pango_layout_get_lines_readonly(layout_.get()); node; node = node->next)
        lines_.push_back(MeasureLine(static_cast<PangoLayoutLine*>(node->data)));
    Line& first = lines_.front();
    Line& last = lines_.back();
    first.reach.above = std::max(first.reach.above, first.ink.above);
    last.reach.below = std::max(last.reach.below, last.ink.below);
    for (const Line& line : lines_)
        height_ += line.reach.above + line.reach.below;
}

TextLines::Line TextLines::MeasureLine(PangoLayoutLine* layoutLine) const {
    PangoRectangle logical;
    pango_layout_line_get_extents(layoutLine, nullptr, &logical);
    Line line = {layoutLine, pango_units_to_double(logical.width), nothing, FromPango(logical)};
    VisitRuns(line, [&](const PangoGlyphItem&, const Look& look, const Box&, const Reach& font) {
        line.reach = Around(line.reach, ReachOf(font, look));
    });
    if (!layoutLine->runs)
        line.reach = ReachOf(line.ink, paragraph_.look);
    return line;
}

/// Half of what a line height adds to the font's own, or takes away, lies above (CSS 2.1, 10.8.1).
Reach TextLines::ReachOf(const Reach& font, const Look& look) const {
    const double leading = look.lineHeight > 0 ? (look.lineHeight - font.above - font.below) / 2 : 0;
    return {font.above + leading, font.below + leading};
}

const Look& TextLines::LookOf(const PangoGlyphItem& run) const {
    const auto offset = static_cast<std::size_t>(run.item->offset);
    const auto found =
        std::upper_bound(paragraph_.pieces.begin(), paragraph_.pieces.end(), offset,
                         [](std::size_t place, const StyledPiece& piece) { return place < piece.end; });
    return found == paragraph_.pieces.end() ? paragraph_.look : found->look;
}

/// Calls visit(run, its look, its box in the line, the reach of its font) from left to right.
template <class Visit>
void TextLines::VisitRuns(const Line& line, Visit&& visit) const {
    Box box = {line.left, line.top, line.left, line.top + line.reach.above + line.reach.below};
    for (GSList* node = line.line->runs; node; node = node->next) {
        const auto& run = *static_cast<const PangoGlyphItem*>(node->data);
        PangoRectangle logical;
        pango_glyph_string_extents(run.glyphs, run.item->analysis.font, nullptr, &logical);
        box.left = box.right;
        box.right += pango_units_to_double(pango_glyph_string_get_width(run.glyphs));
        visit(run, LookOf(run), box, FromPango(logical));
    }
}

double TextLines::LeftOf(const Line& line, const Box& area) const {
    const bool isRightToLeft = line.line->resolved_dir == PANGO_DIRECTION_RTL;
    const double free = area.Width() - line.width;
    switch (paragraph_.textAlign) {
    case X_TTML_TEXT_ALIGN_CENTER:
        return area.left + free / 2;
    case X_TTML_TEXT_ALIGN_RIGHT:
        return area.left + free;
    case X_TTML_TEXT_ALIGN_START:
        return area.left + (isRightToLeft ? free : 0);
    case X_TTML_TEXT_ALIGN_END:
        return area.left + (isRightToLeft ? 0 : free);
    default:
        return area.left;
    }
}

void TextLines::Place(const Box& area, double top) {
    for (Line& line : lines_) {
        line.left = LeftOf(line, area);
        line.top = top;
        line.baseline = top + line.reach.above;
        top = line.baseline + line.reach.below;
        line.isSeen =
            line.baseline + line.ink.below > area.top && line.baseline - line.ink.above < area.bottom;
    }
}

void TextLines::PaintBackgrounds(cairo_t* target) const {
    for (const Line& line : lines_) {
        if (!line.isSeen)
            continue;
        VisitRuns(line, [&](const PangoGlyphItem&, const Look& look, const Box& box, const Reach&) {
            if (!look.isHidden && look.background.alpha > 0)
                Paint(target, Fill{box, look.background});
        });
    }
}

void TextLines::PaintText(cairo_t* target) const {
    for (const Line& line : lines_) {
        if (!line.isSeen)
            continue;
        VisitRuns(line, [&](const PangoGlyphItem& run, const Look& look, const Box& box, const Reach& font) {
            if (look.isHidden || look.color.alpha == 0)
                return;
            PaintGlyphs(target, run, look, box.left, line.baseline);
            const Stroke stroke = StrokeOf(run, font, look.decoration);
            cairo_rectangle(target, box.left, line.baseline - stroke.top, box.Width(), stroke.thickness);
            cairo_fill(target);
        });
    }
}

} // namespace xttml::render
