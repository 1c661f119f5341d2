#include "tools/xttml/commands/commands.h"

#include "tools/xttml/document/document.h"
#include "tools/xttml/document/unusable_file.h"
#include "tools/xttml/output/diagnostics.h"
#include "tools/xttml/output/output_file.h"
#include "tools/xttml/text/text_encoding.h"

#include <filesystem>
#include <fmt/format.h>
#include <map>

namespace xttml {

namespace {

namespace fs = std::filesystem;

struct Picture {
    std::string path;
    std::string_view bytes;
};

/// Names pictures by their begin.
class PictureNames {
public:
    /// "00-00-01.000", with "-2" and so on for further items that begin then; "unknown" for an unknown time.
    std::string NameFor(std::optional<MediaTime> begin) {
        const std::string name = TimeInFileName(begin);
        const int count = ++counts_[name];
        return count == 1 ? name : fmt::format("{}-{}", name, count);
    }

private:
    std::map<std::string, int> counts_;
};

void RequirePng(std::string_view data, const std::string& file, std::optional<MediaTime> begin) {
    if (!HasPngSignature(data))
        throw UnusableFile(file,
                           fmt::format("the image of the item at {} is no PNG file", FormatTime(begin)));
}

/// The pictures that have data; says on standard error which have none. Throws UnusableFile when there are no
/// pictures.
std::vector<Picture> PicturesOf(const DisplaySequence& sequence, const std::string& file,
                                const fs::path& folder) {
    std::vector<Picture> pictures;
    PictureNames names;
    for (const DisplayItem* const item : sequence.Items()) {
        const std::optional<MediaTime> begin = sequence.SpanOf(*item).begin;
        const std::string_view data = DataOf(*item);
        if (data.empty()) {
            Complain(fmt::format("no image data for the item at {}", FormatTime(begin)));
            continue;
        }
        RequirePng(data, file, begin);
        pictures.push_back({(folder / (names.NameFor(begin) + ".png")).string(), data});
    }
    if (pictures.empty())
        throw UnusableFile(file, "shows no picture of the block");
    return pictures;
}

} // namespace

void RunCommand(const ExtractOptions& options, const Input& input, StandardOutput& output) {
    const Document document(input);
    const std::vector<Picture> pictures = PicturesOf(document.Sequence(), input.file, options.folder);
    for (const Picture& picture : pictures)
        RequireRoomFor(picture.path, options.existing);
    fs::create_directories(options.folder);
    for (const Picture& picture : pictures) {
        WriteFile(picture.path, picture.bytes, options.existing);
        output.Write(fmt::format("{}  {} bytes\n", OnOneLine(picture.path), picture.bytes.size()));
    }
}

} // namespace xttml
