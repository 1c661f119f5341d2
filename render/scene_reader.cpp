#include "render/scene_reader.h"

#include "render/background.h"
#include "render/item_area.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace xttml::render {

namespace {

constexpr std::size_t mostItems = 500;
constexpr std::size_t mostText = std::size_t{16} << 10; // bytes
constexpr std::size_t costOfRun = 16;                   // as so many bytes of text
constexpr double mostArea = 32;                         // times the target's

constexpr double usualLinesOfRoot = 15; // the font size that nobody gave
constexpr double smallestFont = 1;      // px

constexpr char outOfSight[] = "its area is empty or outside the root container";
constexpr char tooLarge[] = "larger pictures, backgrounds and letters than are drawn at one time";

bool ReadStyling(const DisplayItem* item, int (*read)(const DisplayItem*, x_ttml_styling*),
                 x_ttml_styling& styling) {
    styling.size = sizeof styling;
    return read(item, &styling) != 0;
}

Color ColorOf(const x_ttml_color& color) {
    return {color.red, color.green, color.blue, color.alpha};
}

/// A line feed as LINE SEPARATOR (TTML 1.0, 7.1.7): it ends a line and not the paragraph, whose direction
/// goes for all lines.
std::string Separated(const std::string& text) {
    std::string separated;
    for (const char character : text)
        separated += character == '\n' ? "\xE2\x80\xA8" : std::string(1, character);
    return separated;
}

/// About how many px its letters cover, were they all in sight.
double AreaOfLetters(const Paragraph& paragraph) {
    double area = 0;
    std::size_t begin = 0;
    for (const StyledPiece& piece : paragraph.pieces) {
        const auto length = static_cast<double>(piece.end - begin);
        area += length * piece.look.fontSize * piece.look.fontSize;
        begin = piece.end;
    }
    return area;
}

double OrElse(double value, double fallback) {
    return value > 0 ? value : fallback;
}

} // namespace

void SceneReader::Read(const DisplayItem* const* items, std::size_t count) {
    for (itemNumber_ = 0; itemNumber_ < count; ++itemNumber_) {
        if (itemNumber_ == mostItems) {
            Leave("more items than are drawn at one time");
            return;
        }
        if (items[itemNumber_])
            ReadItem(items[itemNumber_]);
    }
}

void SceneReader::ReadItem(const DisplayItem* item) {
    x_ttml_styling styling;
    if (!ReadStyling(item, x_ttml_item_get_styling, styling))
        return;
    if (x_ttml_item_get_kind(item) == X_TTML_IMAGE_ITEM)
        ReadImage(item, styling);
    else
        ReadText(item, styling);
}

void SceneReader::ReadText(const DisplayItem* item, const x_ttml_styling& styling) {
    x_ttml_styling region;
    const bool hasRegion = ReadStyling(item, x_ttml_item_get_region_styling, region);
    if (hasRegion && !region.is_hidden)
        ReadRegionBackground(region);
    const Box area = AreaOf(styling);
    if (area.IsEmpty())
        return Leave(outOfSight);
    if (!SpendText(item))
        return Leave("more text than is drawn at one time");
    x_ttml_styling style; // without one, an item begins as a copy of its region, the background included
    const bool isCopy = hasRegion && !ReadStyling(item, x_ttml_item_get_style_styling, style);
    Paragraph paragraph = ReadParagraph(item, styling, isCopy ? &region : nullptr);
    if (paragraph.text.empty())
        return;
    if (!SpendArea(std::min(area.Width() * area.Height(), AreaOfLetters(paragraph))))
        return Leave(tooLarge);
    BlockAt(area, styling.display_align).paragraphs.push_back(std::move(paragraph));
}

void SceneReader::ReadRegionBackground(const x_ttml_styling& region) {
    const Fill fill = {AreaOf(region), ColorOf(BackgroundOf(region))};
    if (fill.color.alpha == 0 || fill.area.IsEmpty() ||
        std::find(scene.begin(), scene.end(), Layer(fill)) != scene.end())
        return;
    if (SpendArea(fill.area.Width() * fill.area.Height()))
        scene.emplace_back(fill);
    else
        Leave(tooLarge);
}

void SceneReader::ReadImage(const DisplayItem* item, const x_ttml_styling& styling) {
    if (styling.is_hidden)
        return;
    std::uint32_t size = 0;
    const std::uint8_t* const file = x_ttml_item_get_image(item, &size);
    std::shared_ptr<const Picture> picture = pictures_.Find(file, size);
    if (!picture->surface)
        return Leave(picture->fault);
    const Box box = PictureBox(mapping_, styling, {picture->width, picture->height});
    const Box area = Intersection(box, mapping_.RootArea());
    if (area.IsEmpty())
        return Leave(outOfSight);
    if (!SpendArea(area.Width() * area.Height()))
        return Leave(tooLarge);
    scene.emplace_back(PlacedPicture{box, area, std::move(picture)});
}

Paragraph SceneReader::ReadParagraph(const DisplayItem* item, const x_ttml_styling& styling,
                                     const x_ttml_styling* region) const {
    Paragraph paragraph;
    paragraph.look = ReadLook(styling, region);
    paragraph.textAlign = styling.text_align;
    std::uint32_t run = 0;
    for (const TextPiece& piece : ReadPieces(item, whiteSpace_)) {
        x_ttml_styling own = styling;
        x_ttml_run_get_styling(item, run++, &own);
        paragraph.text += Separated(piece.text);
        paragraph.pieces.push_back({paragraph.text.size(), ReadLook(own, region)});
    }
    return paragraph;
}

Look SceneReader::ReadLook(const x_ttml_styling& styling, const x_ttml_styling* region) const {
    const double scale = mapping_.Scale();
    const double largestFont = std::max(smallestFont, mapping_.RootHeight() * scale);
    const double fontSize = OrElse(styling.font_size, mapping_.RootHeight() / usualLinesOfRoot) * scale;
    Look look;
    look.fontSize = std::clamp(fontSize, smallestFont, largestFont);
    look.lineHeight = std::min(styling.line_height * scale, largestFont);
    look.isBold = styling.is_bold;
    look.isItalic = styling.is_italic;
    look.isHidden = styling.is_hidden;
    look.decoration = styling.text_decoration;
    look.color = ColorOf(styling.color);
    if (!region || std::string_view(styling.background_color_text) != region->background_color_text)
        look.background = ColorOf(BackgroundOf(styling));
    return look;
}

TextBlock& SceneReader::BlockAt(const Box& area, std::int32_t displayAlign) {
    for (Layer& layer : scene) {
        auto* const block = std::get_if<TextBlock>(&layer);
        if (block && block->area == area && block->displayAlign == displayAlign)
            return *block;
    }
    return std::get<TextBlock>(scene.emplace_back(TextBlock{area, displayAlign, {}}));
}

Box SceneReader::AreaOf(const x_ttml_styling& styling) const {
    return Intersection(TextArea(mapping_, styling), mapping_.RootArea());
}

/// Stops counting, and reading, as soon as there is too much.
bool SceneReader::SpendText(const DisplayItem* item) {
    const std::uint32_t runs = x_ttml_item_get_run_count(item);
    std::size_t cost = textSpent_;
    for (std::uint32_t run = 0; run < runs && cost <= mostText; ++run)
        cost += costOfRun + x_ttml_run_get_text(item, run, nullptr, 0);
    if (cost > mostText)
        return false;
    textSpent_ = cost;
    return true;
}

bool SceneReader::SpendArea(double area) {
    const Box& target = mapping_.TargetArea();
    if (areaSpent_ + area > mostArea * target.Width() * target.Height())
        return false;
    areaSpent_ += area;
    return true;
}

void SceneReader::Leave(std::string reason) {
    remarks.push_back({itemNumber_, std::move(reason)});
}

} // namespace xttml::render
