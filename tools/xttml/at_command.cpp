#include "tools/xttml/commands.h"

#include "tools/xttml/item_text.h"
#include "tools/xttml/json_output.h"
#include "tools/xttml/media_time.h"
#include "tools/xttml/screen.h"
#include "tools/xttml/text_encoding.h"

namespace xttml {

namespace {

// Merging joins the items' content, which the library leaves to the player: it generates runs. An item that
// has been merged into holds the text of the others already.
void FillContent(const Screen& screen) {
    for (DisplayItem* const item : screen.items) {
        auto* const text = dynamic_cast<TextItem*>(item);
        if (!text || text->fgCombined)
            continue;
        const std::u16string visible = VisibleText(*text);
        text->pGetContentPointer()->assign(visible.begin(), visible.end());
    }
}

/// The item on screen with the text of all that share its times; null when none is on screen or it is no
/// text.
const TextItem* Merge(x_ttml_handle parser, const Screen& screen, std::int32_t time) {
    if (screen.Empty())
        return nullptr;
    FillContent(screen);
    x_ttml_get_display_item_by_time(parser, static_cast<std::uint32_t>(time));
    return dynamic_cast<const TextItem*>(x_ttml_combine_same_time_item(parser));
}

std::u16string_view Content(const TextItem& item) {
    return {item.vecContent.data(), item.vecContent.size()};
}

std::string Span(const DisplayItem& item) {
    return FormatTime(item.iGetBeginTime()) + " to " + FormatTime(item.iGetEndTime());
}

std::string NothingOnScreen(const Screen& screen, const ImageBlock& images) {
    if (!screen.next)
        return "  nothing on screen, nothing to come\n";
    return "  nothing on screen, next is " + Span(*screen.next) + "  " + ScreenLine(*screen.next, images) +
           '\n';
}

std::string ToLines(const Screen& screen, const TextItem* merged, std::int32_t time,
                    const ImageBlock& images) {
    std::string lines = FormatTime(time) + '\n';
    if (screen.Empty())
        return lines + NothingOnScreen(screen, images);
    if (merged)
        return lines + "  " + Span(*merged) + "  " + TerminalText(Content(*merged)) + '\n';
    for (const DisplayItem* const item : screen.items)
        if (item)
            lines += "  " + Span(*item) + "  " + ScreenLine(*item, images) + '\n';
    return lines;
}

Json ToJson(const Screen& screen, const TextItem* merged, std::int32_t time, const ImageBlock& images) {
    Json items = Json::array();
    for (const DisplayItem* const item : screen.items)
        if (item)
            items.push_back(ItemToJson(*item, images));
    return {{"time", time},
            {"items", std::move(items)},
            {"merged", merged ? Json(Utf8FromUtf16(Content(*merged))) : Json()},
            {"next", ItemToJson(screen.next, images)}};
}

} // namespace

void RunCommand(const AtOptions& options, Document& document, ToolOutput& output) {
    document.Generate(0);
    const char* separator = "[\n";
    for (const std::int32_t time : options.times) {
        const Screen screen = LookAt(document.Handle(), time);
        const TextItem* const merged = options.combine ? Merge(document.Handle(), screen, time) : nullptr;
        output.Write(options.json ? separator + ToJson(screen, merged, time, document.Images()).dump()
                                  : ToLines(screen, merged, time, document.Images()));
        separator = ",\n";
    }
    if (options.json)
        output.Write("\n]\n");
}

} // namespace xttml
