#include "tools/xttml/commands/commands.h"

#include "tools/xttml/document/unusable_file.h"
#include "tools/xttml/output/file_pattern.h"
#include "tools/xttml/output/output_file.h"
#include "tools/xttml/output/progress.h"
#include "tools/xttml/pictures/contact_sheet.h"
#include "tools/xttml/text/text_encoding.h"

#include <fmt/format.h>

namespace xttml {

namespace {

SheetLayout LayOut(const SheetOptions& options, const Backdrop& backdrop, const DisplaySequence& sequence,
                   const std::string& file) {
    if (sequence.Items().empty())
        throw UnusableFile(file, "has no items");
    const render::Size screen = options.look.size.value_or(ThumbnailSize(NaturalSize(backdrop, sequence)));
    SheetLayout layout(sequence.Items().size(), options.columns, screen);
    if (layout.Sheets() == 0)
        throw UnusableFile(file, fmt::format("{} columns of {}x{} px are too large for a picture",
                                             options.columns, screen.width, screen.height));
    return layout;
}

/// Numbers of one length, so that the names of the files are in the order of the sheets.
std::vector<std::string> FilesFor(const SheetOptions& options, std::size_t sheets, const std::string& file) {
    if (sheets > 1 && !NamesSeveral(options.file))
        throw UnusableFile(file,
                           fmt::format("its items fill {} sheets; a % in the name of --sheet stands for "
                                       "their numbers",
                                       sheets));
    std::vector<std::string> files;
    const std::size_t digits = std::to_string(sheets).size();
    for (std::size_t sheet = 1; sheet <= sheets; ++sheet)
        files.push_back(WithPart(options.file, fmt::format("{:0{}}", sheet, digits)));
    return files;
}

} // namespace

void RunCommand(const SheetOptions& options, const Input& input, StandardOutput& output) {
    const Document document(input);
    const DisplaySequence& sequence = document.Sequence();
    Backdrop backdrop(options.look);
    const SheetLayout layout = LayOut(options, backdrop, sequence, input.file);
    const std::vector<std::string> files = FilesFor(options, layout.Sheets(), input.file);
    for (const std::string& file : files)
        RequireRoomFor(file, options.existing);
    ScreenPainter screens(document, std::move(backdrop), layout.Screen(), options.look.outline);
    SheetPainter painter(layout, sequence, screens);
    Progress items("items", sequence.Items().size());
    for (std::size_t sheet = 0; sheet < files.size(); ++sheet) {
        WriteTo(files[sheet], painter.Paint(sheet, items).Png(), options.existing, output);
        if (files[sheet] != standardOutputPath)
            output.Write(fmt::format("{}  items {} to {}\n", OnOneLine(files[sheet]), layout.First(sheet) + 1,
                                     layout.First(sheet + 1)));
    }
}

} // namespace xttml
