#include "tools/xttml/commands/commands.h"

#include "tools/xttml/document/screen.h"
#include "tools/xttml/document/xml_text.h"
#include "tools/xttml/output/item_text.h"
#include "tools/xttml/output/json_output.h"
#include "tools/xttml/text/text_encoding.h"

#include <fmt/format.h>
#include <xercesc/util/TransService.hpp>

namespace xttml {

namespace {

std::u16string Utf16FromUtf8(const std::string& text) {
    const xercesc::TranscodeFromStr utf16(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                          "UTF-8");
    return std::u16string(Units(utf16.str()));
}

// Merging joins the items' content, which the library leaves to the player: it generates runs. An item that
// has been merged into holds the text of the others already.
void FillContent(const Screen& screen, render::WhiteSpace whiteSpace) {
    for (DisplayItem* const item : screen.items) {
        auto* const text = dynamic_cast<TextItem*>(item);
        if (!text || text->fgCombined)
            continue;
        const std::u16string visible = Utf16FromUtf8(VisibleText(*text, whiteSpace));
        text->pGetContentPointer()->assign(visible.begin(), visible.end());
    }
}

/// What is on screen at a time.
struct Answer {
    MediaTime time;
    Screen screen;
    const TextItem* merged; ///< the first item with the text of all that share its times; null: not merged
};

Answer Ask(const AtOptions& options, MediaTime time, const DisplaySequence& sequence) {
    Answer answer{time, LookAt(sequence, time, options.query), nullptr};
    if (options.combine) {
        FillContent(answer.screen,
                    options.json ? render::WhiteSpace::PRESERVED : render::WhiteSpace::COLLAPSED);
        answer.merged = sequence.Combine(time);
    }
    return answer;
}

std::u16string_view Content(const TextItem& item) {
    return {item.vecContent.data(), item.vecContent.size()};
}

std::string ItemLine(const DisplayItem& item, const DisplaySequence& sequence) {
    return SpanText(sequence.SpanOf(item)) + "  " + ScreenLine(item, sequence.Images()) + '\n';
}

std::string NothingOnScreen(const Screen& screen, const DisplaySequence& sequence) {
    if (!screen.next)
        return "  nothing on screen, nothing to come\n";
    return "  nothing on screen, next is " + ItemLine(*screen.next, sequence);
}

std::string ToLines(const Answer& answer, const DisplaySequence& sequence) {
    std::string lines = FormatTime(answer.time) + '\n';
    if (answer.screen.items.empty())
        return lines + NothingOnScreen(answer.screen, sequence);
    if (answer.merged)
        return lines + "  " + SpanText(sequence.SpanOf(*answer.merged)) + "  " +
               OnOneLine(Utf8FromUtf16(Content(*answer.merged))) + '\n';
    for (const DisplayItem* const item : answer.screen.items)
        lines += "  " + ItemLine(*item, sequence);
    return lines;
}

std::string ToJson(const Answer& answer, JsonItems& items) {
    return fmt::format(R"({{"time":{},"items":{},"merged":{},"next":{}}})", answer.time,
                       items.ToText(answer.screen.items),
                       answer.merged ? Quoted(Utf8FromUtf16(Content(*answer.merged))) : "null",
                       answer.screen.next ? items.ToText(*answer.screen.next) : "null");
}

void WriteJson(StandardOutput& output, const AtOptions& options, const std::vector<MediaTime>& times,
               const DisplaySequence& sequence, const ItemOrigins& origins) {
    JsonItems items(sequence, origins, options.detail);
    const char* separator = "[\n";
    for (const MediaTime time : times) {
        output.Write(separator + ToJson(Ask(options, time, sequence), items));
        separator = ",\n";
    }
    output.Write("\n]\n");
}

} // namespace

void RunCommand(const AtOptions& options, const Input& input, StandardOutput& output) {
    Document document(input);
    const DisplaySequence& sequence = document.Sequence();
    std::vector<MediaTime> times;
    for (const WrittenTime& time : options.times)
        times.push_back(document.TimeOf(time));
    if (options.json) {
        WriteJson(output, options, times, sequence, document.Origins());
        return;
    }
    for (const MediaTime time : times)
        output.Write(ToLines(Ask(options, time, sequence), sequence));
}

} // namespace xttml
