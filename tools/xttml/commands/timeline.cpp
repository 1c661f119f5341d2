#include "tools/xttml/commands/commands.h"

#include "tools/xttml/document/unusable_file.h"
#include "tools/xttml/output/output_file.h"
#include "tools/xttml/timeline/chart_picture.h"
#include "tools/xttml/timeline/svg_chart.h"
#include "tools/xttml/timeline/timeline.h"

namespace xttml {

void RunCommand(const TimelineOptions& options, const Input& input, StandardOutput& output) {
    const Document document(input);
    if (document.Sequence().Items().empty())
        throw UnusableFile(input.file, "has no items");
    RequireRoomFor(options.file, options.existing);
    const Chart chart = TimelineOf(document.Sequence(), input.offset);
    WriteTo(options.file, options.isPng ? PngOf(chart) : SvgOf(chart), options.existing, output);
}

} // namespace xttml
