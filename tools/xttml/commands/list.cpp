#include "tools/xttml/commands/commands.h"

#include "tools/xttml/output/json_output.h"
#include "tools/xttml/output/table_output.h"
#include "tools/xttml/text/text_encoding.h"

#include <fmt/format.h>

namespace xttml {

namespace {

/// What holds for the document as a whole.
struct Summary {
    std::string file;
    TimeSpan span;
    PixelSize root;
    std::string language; ///< empty when the document names none
    std::size_t items;
};

Summary Summarise(const std::string& file, const DisplaySequence& sequence) {
    return {file, sequence.WholeSpan(), sequence.RootContainer(), sequence.Language(),
            sequence.Items().size()};
}

Json ToJson(const Summary& summary) {
    return {{"file", summary.file},
            {"start", NumberOf(summary.span.begin)},
            {"end", NumberOf(summary.span.end)},
            {"width", summary.root.width},
            {"height", summary.root.height},
            {"language", summary.language.empty() ? Json() : Json(summary.language)}};
}

std::string ToLine(const Summary& summary) {
    return fmt::format("{} to {}, root container {}x{}, language {}, {} item{}\n",
                       FormatTime(summary.span.begin), FormatTime(summary.span.end), summary.root.width,
                       summary.root.height, summary.language.empty() ? "-" : OnOneLine(summary.language),
                       summary.items, summary.items == 1 ? "" : "s");
}

void WriteJson(StandardOutput& output, const Summary& summary, const DisplaySequence& sequence,
               JsonItems items) {
    output.Write("{\"document\":" + ToText(ToJson(summary)) + ",\n\"items\":[");
    const char* separator = "\n";
    for (const DisplayItem* const item : sequence.Items()) {
        output.Write(separator + items.ToText(*item));
        separator = ",\n";
    }
    output.Write("\n]}\n");
}

} // namespace

void RunCommand(const ListOptions& options, const Input& input, StandardOutput& output) {
    Document document(input);
    const DisplaySequence& sequence = document.Sequence();
    const ItemOrigins origins = document.Origins();
    const Summary summary = Summarise(input.file, sequence);
    if (options.json) {
        WriteJson(output, summary, sequence, JsonItems(sequence, origins, options.detail));
        return;
    }
    if (options.namesFiles)
        output.Write(OnOneLine(input.file) + ": ");
    output.Write(ToLine(summary));
    if (summary.items > 0)
        WriteTable(output, sequence, origins);
}

} // namespace xttml
