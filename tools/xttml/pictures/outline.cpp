#include "tools/xttml/pictures/outline.h"

#include "render/item_area.h"
#include "tools/xttml/text/text_encoding.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace xttml {

namespace {

using render::Box;

constexpr std::size_t mostItems = 500; // as many as are drawn
constexpr Border guideBorder = {{80, 220, 255, 200}, 1, true};
constexpr Border areaBorder = {{255, 80, 200, 255}, 2, false};
constexpr render::Color labelBackground = {0, 0, 0, 160};

// Television shows what is inside the first for certain and reads well what is inside the second.
struct Guide {
    double share; // of the root's sides
    const char* name;
};
constexpr double leastForNames = 240; // px; on a lower picture they would hide too much
constexpr Guide guides[] = {{1, "root container"}, {0.9, "action safe 90 %"}, {0.8, "title safe 80 %"}};

struct NamedBox {
    Box box;
    std::string names;
};

/// Boxes at one place have one label.
void Add(std::vector<NamedBox>& boxes, const Box& box, const std::string& name) {
    const auto found =
        std::find_if(boxes.begin(), boxes.end(), [&](const NamedBox& known) { return known.box == box; });
    if (found == boxes.end())
        boxes.push_back({box, name});
    else if ((", " + found->names + ',').find(", " + name + ',') == std::string::npos)
        found->names += ", " + name;
}

std::optional<Box> BoxOf(const DisplayItem& item, const render::RootMapping& mapping) {
    x_ttml_styling styling;
    styling.size = sizeof styling;
    x_ttml_item_get_styling(&item, &styling);
    if (x_ttml_item_get_kind(&item) == X_TTML_TEXT_ITEM)
        return TextArea(mapping, styling);
    const std::optional<PixelSize> picture = PixelSizeOf(DataOf(item));
    const auto isSide = [](std::uint32_t side) { return side >= 1 && side <= INT32_MAX; };
    if (!picture || !isSide(picture->width) || !isSide(picture->height))
        return std::nullopt;
    return PictureBox(
        mapping, styling,
        {static_cast<std::int32_t>(picture->width), static_cast<std::int32_t>(picture->height)});
}

std::string NameOf(const ItemOrigin& origin, bool hasRegion, bool isPicture) {
    if (origin.id)
        return *origin.id;
    if (isPicture)
        return "picture";
    if (!origin.region)
        return "no region";
    return hasRegion ? "in " + *origin.region : *origin.region + " (unknown)";
}

void AddBoxesOf(const DisplayItem& item, const ItemOrigin& origin, const render::RootMapping& mapping,
                std::vector<NamedBox>& boxes) {
    const std::optional<Box> own = BoxOf(item, mapping);
    x_ttml_styling region;
    region.size = sizeof region;
    const bool hasRegion = x_ttml_item_get_region_styling(&item, &region) != 0;
    const Box regionBox = hasRegion ? TextArea(mapping, region) : Box();
    if (hasRegion)
        Add(boxes, regionBox, origin.region.value_or("region"));
    if (own && !(hasRegion && *own == regionBox))
        Add(boxes, *own, NameOf(origin, hasRegion, x_ttml_item_get_kind(&item) == X_TTML_IMAGE_ITEM));
}

/// A box around the middle of another one.
Box Shrunk(const Box& box, double share) {
    const double x = box.Width() * (1 - share) / 2;
    const double y = box.Height() * (1 - share) / 2;
    return {std::round(box.left + x), std::round(box.top + y), std::round(box.right - x),
            std::round(box.bottom - y)};
}

/// Boxes and labels on one frame.
class Marks {
public:
    Marks(const render::Frame& frame, const render::TextPainter& fonts)
        : drawing_(frame), fonts_(fonts), fontSize_(std::clamp(frame.height / 45.0, 9.0, 24.0)),
          lineHeight_(1.4 * fontSize_), seen_{-2, -2, frame.width + 2.0, frame.height + 2.0} {}

    /// The label stands above the box or, where there is no room, in its corner.
    void Draw(const NamedBox& named) {
        const Box box = Intersection(named.box, seen_);
        if (box.IsEmpty())
            return;
        drawing_.Outline(box, areaBorder);
        const double top = box.top >= lineHeight_ ? box.top - lineHeight_ : std::max(box.top, 0.0);
        Write(OnOneLine(named.names), std::max(box.left, 0.0), top, areaBorder.color);
    }

    /// The label stands half way down the left side, where there are no subtitles, below those before.
    void Draw(const Box& box, const Guide& guide) {
        drawing_.Outline(box, guideBorder);
        if (seen_.bottom < leastForNames)
            return;
        Write(guide.name, box.left, seen_.bottom / 2 + lineHeight_ * guidesDrawn_++, guideBorder.color);
    }

private:
    void Write(const std::string& label, double left, double top, const render::Color& color) {
        drawing_.Write(label, {left, top, seen_.right, top + lineHeight_},
                       {color, fontSize_, labelBackground}, fonts_);
    }

    Drawing drawing_;
    const render::TextPainter& fonts_;
    double fontSize_;
    double lineHeight_;
    Box seen_;
    int guidesDrawn_ = 0;
};

} // namespace

void Outline::Draw(const render::Frame& frame, render::Size root, const ItemList& items) const {
    const render::RootMapping mapping({frame.width, frame.height}, root);
    std::vector<NamedBox> boxes;
    for (std::size_t i = 0; i < std::min(items.size(), mostItems); ++i)
        AddBoxesOf(*items[i], origins_.Of(*items[i]), mapping, boxes);
    Marks marks(frame, fonts_);
    for (const Guide& guide : guides)
        marks.Draw(Shrunk(mapping.RootArea(), guide.share), guide);
    for (const NamedBox& each : boxes)
        marks.Draw(each);
}

} // namespace xttml
