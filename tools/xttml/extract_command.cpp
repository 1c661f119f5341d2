#include "tools/xttml/commands.h"

#include "parser/ttml_parser.h"
#include "tools/xttml/media_time.h"
#include "tools/xttml/text_encoding.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>
#include <stdexcept>

namespace xttml {

namespace {

namespace fs = std::filesystem;

struct Picture {
    const ImageItem* item;
    fs::path path;
};

/// "00-00-01.000", with "-2" and so on for further items that begin then; "unknown" for an unknown time.
std::string NameOf(const ImageItem& item, std::map<std::int32_t, int>& counts) {
    const std::int32_t begin = item.iGetBeginTime();
    std::string name = begin == -1 ? "unknown" : FormatTime(begin);
    std::replace(name.begin(), name.end(), ':', '-');
    const int count = ++counts[begin];
    return count == 1 ? name : name + "-" + std::to_string(count);
}

/// The pictures that have data; says on standard error which have none.
std::vector<Picture> Pictures(const std::vector<DisplayItem*>& items, const fs::path& folder) {
    std::vector<Picture> pictures;
    std::map<std::int32_t, int> counts;
    for (const DisplayItem* const item : items) {
        const auto* const image = dynamic_cast<const ImageItem*>(item);
        if (!image)
            continue;
        if (DataOf(*image).empty())
            std::fprintf(stderr, "xttml: no image data for the item at %s\n",
                         FormatTime(image->iGetBeginTime()).c_str());
        else
            pictures.push_back({image, folder / (NameOf(*image, counts) + ".png")});
    }
    return pictures;
}

} // namespace

void RunCommand(const ExtractOptions& options, Document& document, ToolOutput& output) {
    document.Generate(options.offset);
    const TtmlParser& parser = *static_cast<const TtmlParser*>(document.Handle());
    const std::vector<Picture> pictures = Pictures(parser.vecGetDisplaySequence(), options.folder);
    for (const Picture& picture : pictures) {
        if (!options.force && fs::exists(picture.path))
            throw std::runtime_error(picture.path.string() + ": exists; --force replaces it");
    }
    fs::create_directories(options.folder);
    for (const Picture& picture : pictures) {
        WriteFile(picture.path.string(), DataOf(*picture.item),
                  options.force ? ExistingFile::REPLACED : ExistingFile::KEPT);
        output.Write(OnOneLine(picture.path.string()) + "  " + std::to_string(DataOf(*picture.item).size()) +
                     " bytes\n");
    }
}

} // namespace xttml
