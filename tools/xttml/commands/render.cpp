#include "tools/xttml/commands/commands.h"

#include "tools/xttml/document/unusable_file.h"
#include "tools/xttml/output/file_pattern.h"
#include "tools/xttml/output/output_file.h"
#include "tools/xttml/output/progress.h"
#include "tools/xttml/pictures/bitmap.h"
#include "tools/xttml/pictures/screen_painter.h"
#include "tools/xttml/text/text_encoding.h"

#include <fmt/format.h>
#include <map>

namespace xttml {

namespace {

/// Each time once, with the file that its picture is written to.
std::map<MediaTime, std::string> FilesFor(const RenderOptions& options, Document& document) {
    std::map<MediaTime, std::string> files;
    for (const WrittenTime& written : options.times) {
        const MediaTime time = document.TimeOf(written);
        files.emplace(time, WithPart(options.file, TimeInFileName(time)));
    }
    return files;
}

render::Size SizeOf(const PictureLook& look, const Backdrop& backdrop, const Document& document,
                    const std::string& file) {
    const render::Size size = look.size.value_or(NaturalSize(backdrop, document.Sequence()));
    if (!IsPossible(size))
        throw UnusableFile(file, fmt::format("a screen of {}x{} px is too large for a picture; --size sets "
                                             "another one",
                                             size.width, size.height));
    return size;
}

} // namespace

void RunCommand(const RenderOptions& options, const Input& input, StandardOutput& output) {
    Document document(input);
    const std::map<MediaTime, std::string> files = FilesFor(options, document);
    for (const auto& [time, file] : files)
        RequireRoomFor(file, options.existing);
    Backdrop backdrop(options.look);
    const render::Size size = SizeOf(options.look, backdrop, document, input.file);
    ScreenPainter painter(document, std::move(backdrop), size, options.look.outline);
    Bitmap picture(size);
    Progress progress("pictures", files.size());
    for (const auto& [time, file] : files) {
        const ItemList items = document.Sequence().OnScreen(time);
        painter.Paint(picture.Whole(), items);
        WriteTo(file, picture.Png(), options.existing, output);
        if (file != standardOutputPath)
            output.Write(
                fmt::format("{}  {} item{}\n", OnOneLine(file), items.size(), items.size() == 1 ? "" : "s"));
        progress.Step();
    }
}

} // namespace xttml
