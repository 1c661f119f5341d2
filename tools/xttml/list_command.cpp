#include "tools/xttml/commands.h"

#include "parser/ttml_parser.h"
#include "tools/xttml/json_output.h"
#include "tools/xttml/media_time.h"
#include "tools/xttml/table_output.h"
#include "tools/xttml/text_encoding.h"

namespace xttml {

namespace {

/// What holds for the document as a whole.
struct Summary {
    std::int32_t start = 0;
    std::int32_t end = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::string language; ///< empty when the document names none
};

Summary Summarise(const Document& document, const TtmlParser& parser) {
    Summary summary;
    x_ttml_get_document_time(document.Handle(), &summary.start, &summary.end);
    x_ttml_get_tt_extent(document.Handle(), &summary.width, &summary.height);
    const std::string language = parser.strGetDocLanguage();
    summary.language = language == "INVALID" ? "" : Utf8FromLatin1(language);
    return summary;
}

Json ToJson(const Summary& summary) {
    return {{"start", summary.start},
            {"end", summary.end},
            {"width", summary.width},
            {"height", summary.height},
            {"language", summary.language.empty() ? Json() : Json(summary.language)}};
}

std::string ToLine(const Summary& summary, std::size_t items) {
    return FormatTime(summary.start) + " to " + FormatTime(summary.end) + ", root container " +
           std::to_string(summary.width) + "x" + std::to_string(summary.height) + ", language " +
           (summary.language.empty() ? "-" : OnOneLine(summary.language)) + ", " + std::to_string(items) +
           (items == 1 ? " item\n" : " items\n");
}

void WriteJson(ToolOutput& output, const Summary& summary, const std::vector<DisplayItem*>& items,
               const ImageBlock& images) {
    output.Write("{\"document\":" + ToJson(summary).dump() + ",\n\"items\":[");
    const char* separator = "\n";
    for (const DisplayItem* const item : items) {
        output.Write(separator + ItemToJson(*item, images).dump());
        separator = ",\n";
    }
    output.Write("\n]}\n");
}

} // namespace

void RunCommand(const ListOptions& options, Document& document, ToolOutput& output) {
    document.Generate(options.offset);
    const TtmlParser& parser = *static_cast<const TtmlParser*>(document.Handle());
    const std::vector<DisplayItem*>& items = parser.vecGetDisplaySequence();
    const Summary summary = Summarise(document, parser);
    if (options.json) {
        WriteJson(output, summary, items, document.Images());
        return;
    }
    output.Write(ToLine(summary, items.size()));
    if (!items.empty())
        WriteTable(output, items, document.Images());
}

} // namespace xttml
