#include "tools/xttml/formats/cue_building.h"

#include "render/item_area.h"
#include "tools/xttml/formats/cue_lines.h"
#include "tools/xttml/formats/text_direction.h"
#include "tools/xttml/output/item_text.h"

#include <algorithm>
#include <utility>

namespace xttml {

namespace {

using render::WhiteSpace;

render::Size RootOf(const DisplaySequence& sequence) {
    const PixelSize root = sequence.RootContainer();
    const render::Size size = {static_cast<std::int32_t>(root.width), static_cast<std::int32_t>(root.height)};
    return size.width > 0 && size.height > 0 ? size : render::Size{1280, 720};
}

Side SideOf(const DisplayItem& item, std::int32_t textAlign) {
    const auto isRightToLeft = [&item] { return IsRightToLeft(VisibleText(item, WhiteSpace::COLLAPSED)); };
    switch (textAlign) {
    case X_TTML_TEXT_ALIGN_CENTER:
        return Side::CENTER;
    case X_TTML_TEXT_ALIGN_RIGHT:
        return Side::RIGHT;
    case X_TTML_TEXT_ALIGN_START:
        return isRightToLeft() ? Side::RIGHT : Side::LEFT;
    case X_TTML_TEXT_ALIGN_END:
        return isRightToLeft() ? Side::LEFT : Side::RIGHT;
    default:
        return Side::LEFT;
    }
}

Level LevelOf(std::int32_t displayAlign) {
    switch (displayAlign) {
    case X_TTML_DISPLAY_ALIGN_CENTER:
        return Level::MIDDLE;
    case X_TTML_DISPLAY_ALIGN_AFTER:
        return Level::BOTTOM;
    default:
        return Level::TOP;
    }
}

/// Nothing for an item that nobody has put anywhere: it has the whole root container and begins at its top.
std::optional<Placement> PlacementOf(const x_ttml_styling& styling, const render::Size& root) {
    const render::RootMapping mapping(root, root);
    const render::Box area = Intersection(TextArea(mapping, styling), mapping.RootArea());
    const Level level = LevelOf(styling.display_align);
    if (area.IsEmpty() || (area == mapping.RootArea() && level == Level::TOP))
        return std::nullopt;
    return Placement{area, level};
}

/// The cue of an item, without times.
Cue BuildCue(const DisplayItem& item, const render::Size& root, WhiteSpace whiteSpace) {
    x_ttml_styling styling;
    styling.size = sizeof styling;
    x_ttml_item_get_styling(&item, &styling);
    Cue cue{};
    cue.look = LookOf(styling);
    cue.lines = LinesOf(item, whiteSpace, cue.look);
    cue.placement = PlacementOf(styling, root);
    const bool saysNoSide = !cue.placement && styling.text_align == X_TTML_TEXT_ALIGN_LEFT;
    cue.side = saysNoSide ? Side::CENTER : SideOf(item, styling.text_align);
    return cue;
}

/// Whether the cue is on screen at some time from 0 on; counts it as left out otherwise.
bool SetTimes(Cue& cue, const TimeSpan& span, Script& script) {
    if (!span.begin || !span.end || *span.begin >= *span.end) {
        ++script.untimed;
        return false;
    }
    if (*span.end <= 0) {
        ++script.past;
        return false;
    }
    cue.begin = std::max(*span.begin, MediaTime{0});
    cue.end = *span.end;
    return true;
}

} // namespace

Script BuildScript(const DisplaySequence& sequence, const ItemOrigins& origins, Selection selection) {
    Script script{RootOf(sequence), {}};
    for (const DisplayItem* const item : sequence.Items()) {
        if (selection == Selection::FORCED && !item->fgForcedDisplay)
            continue;
        const bool preserves = origins.PreservesSpace(*item);
        Cue cue = BuildCue(*item, script.root, preserves ? WhiteSpace::PRESERVED : WhiteSpace::COLLAPSED);
        if (!cue.lines.empty() && SetTimes(cue, sequence.SpanOf(*item), script))
            script.cues.push_back(std::move(cue));
    }
    std::stable_sort(script.cues.begin(), script.cues.end(),
                     [](const Cue& left, const Cue& right) { return left.begin < right.begin; });
    return script;
}

} // namespace xttml
