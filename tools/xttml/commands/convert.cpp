#include "tools/xttml/commands/commands.h"

#include "tools/xttml/output/diagnostics.h"
#include "tools/xttml/output/output_file.h"

#include <fmt/format.h>

namespace xttml {

namespace {

/// Says on standard error what the result lacks.
void ReportLosses(const Script& script, const DisplaySequence& sequence, const std::string& file) {
    const auto report = [&](std::size_t count, const char* reason) {
        if (count > 0)
            Complain(
                fmt::format("{}: {} of {} items left out: {}", file, count, sequence.Items().size(), reason));
    };
    report(script.untimed, "without a begin or without an end after it");
    report(script.past, "gone before 00:00:00.000");
    if (script.cues.empty())
        Complain(file + ": no text to show");
}

} // namespace

void RunCommand(const ConvertOptions& options, const Input& input, StandardOutput& output) {
    const Document document(input);
    const Script script = BuildScript(document.Sequence(), document.Origins(), options.selection);
    ReportLosses(script, document.Sequence(), input.file);
    WriteTo(options.file, options.format->write(script), options.existing, output);
}

} // namespace xttml
