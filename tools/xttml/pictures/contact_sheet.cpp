#include "tools/xttml/pictures/contact_sheet.h"

#include "render/renderer.h"
#include "tools/xttml/output/item_text.h"
#include "tools/xttml/pictures/drawing.h"

#include <algorithm>
#include <fmt/format.h>
#include <utility>

namespace xttml {

namespace {

constexpr std::int32_t gap = 8;         // px between screens and around them
constexpr std::int32_t textHeight = 14; // px
constexpr std::int32_t thumbnail = 256; // px, the longer side
constexpr std::int32_t shortest = 16;   // px, the shorter one
constexpr render::Color paper = {38, 38, 38, 255};
constexpr Lettering lettering = {{230, 230, 230, 255}, 10, {}};

std::string TextBelow(const DisplayItem& item, std::size_t number, const DisplaySequence& sequence) {
    return fmt::format("{}  {}{}{}", number + 1, SpanText(sequence.SpanOf(item)),
                       item.fgForcedDisplay ? "  forced" : "", IsSeen(item) ? "" : "  nothing visible");
}

} // namespace

SheetLayout::SheetLayout(std::size_t screens, std::size_t columns, render::Size screen)
    : screens_(screens), columns_(std::min(columns, screens)), screen_(screen) {
    if (Width() > render::longestSide)
        return;
    const std::int64_t highest = std::min<std::int64_t>(render::longestSide, mostPixels / Width());
    rows_ = static_cast<std::size_t>((highest - Height(0)) / (Height(1) - Height(0)));
}

std::int64_t SheetLayout::Width() const {
    return gap + static_cast<std::int64_t>(columns_) * (screen_.width + gap);
}

std::int64_t SheetLayout::Height(std::size_t rows) const {
    return gap + static_cast<std::int64_t>(rows) * (screen_.height + textHeight + gap);
}

std::size_t SheetLayout::Sheets() const {
    const std::size_t full = rows_ * columns_;
    return full == 0 ? 0 : (screens_ + full - 1) / full;
}

std::size_t SheetLayout::First(std::size_t sheet) const {
    return std::min(sheet * rows_ * columns_, screens_);
}

render::Size SheetLayout::SizeOf(std::size_t sheet) const {
    const std::size_t screens = First(sheet + 1) - First(sheet);
    return {static_cast<std::int32_t>(Width()),
            static_cast<std::int32_t>(Height((screens + columns_ - 1) / columns_))};
}

SheetLayout::Place SheetLayout::PlaceOf(std::size_t screen) const {
    const auto column = static_cast<std::int32_t>(screen % columns_);
    return {gap + column * (screen_.width + gap),
            static_cast<std::int32_t>(Height(screen / columns_ % rows_))};
}

render::Size ThumbnailSize(render::Size natural) {
    const double scale = thumbnail / static_cast<double>(std::max(natural.width, natural.height));
    const auto side = [scale](std::int32_t length) {
        return std::max(shortest, static_cast<std::int32_t>(length * scale));
    };
    return {side(natural.width), side(natural.height)};
}

Bitmap SheetPainter::Paint(std::size_t sheet, Progress& items) {
    Bitmap bitmap(layout_.SizeOf(sheet));
    Drawing(bitmap.Whole()).Clear(paper);
    for (std::size_t item = layout_.First(sheet); item < layout_.First(sheet + 1); ++item) {
        PaintItem(item, bitmap);
        items.Step();
    }
    return bitmap;
}

void SheetPainter::PaintItem(std::size_t number, Bitmap& sheet) {
    DisplayItem* const item = sequence_.Items()[number];
    const auto [left, top] = layout_.PlaceOf(number);
    const auto [width, height] = layout_.Screen();
    screens_.Paint(sheet.Part(left, top, {width, height}), {item});
    Drawing below(sheet.Part(left, top + height, {width, textHeight}));
    below.Write(TextBelow(*item, number, sequence_), {0, 0, width + 0.0, textHeight + 0.0}, lettering,
                fonts_);
}

} // namespace xttml
