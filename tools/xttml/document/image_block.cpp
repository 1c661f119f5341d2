#include "tools/xttml/document/image_block.h"

#include "tools/xttml/document/input_file.h"
#include "tools/xttml/document/unusable_file.h"

#include <fmt/format.h>
#include <limits>

namespace xttml {

namespace {

constexpr std::size_t largestBlock = std::numeric_limits<std::int32_t>::max();

// PNG (W3C), 5.2 and 11.2.2: the signature, then the header chunk: its length, its name, width, height.
constexpr std::string_view pngSignature = "\x89PNG\r\n\x1A\n";
constexpr std::string_view headerName = "IHDR";
constexpr std::size_t namePosition = 12;
constexpr std::size_t widthPosition = 16;
constexpr std::size_t heightPosition = 20;
constexpr std::size_t sizeEnd = 24;

std::uint32_t BigEndianAt(std::string_view data, std::size_t position) {
    std::uint32_t value = 0;
    for (const char byte : data.substr(position, sizeof value))
        value = value << 8U | static_cast<unsigned char>(byte);
    return value;
}

} // namespace

ImageBlock::ImageBlock(const std::vector<std::string>& files) {
    for (const std::string& file : files)
        bytes_ += ReadFile(file, largestBlock - bytes_.size());
    if (!files.empty() && bytes_.empty())
        throw UnusableFile(files.front(), "no image data");
}

std::optional<std::size_t> ImageBlock::OffsetOf(const DisplayItem& item) const {
    const std::string_view data = DataOf(item);
    if (data.empty())
        return std::nullopt;
    const auto [known, isNew] = offsets_.try_emplace(data.data());
    const std::size_t found = isNew ? bytes_.find(data) : std::string::npos;
    if (found != std::string::npos)
        known->second = found;
    return known->second;
}

std::string_view DataOf(const DisplayItem& item) {
    std::uint32_t size = 0;
    const std::uint8_t* const data = x_ttml_item_get_image(&item, &size);
    return {reinterpret_cast<const char*>(data), data ? size : 0};
}

bool HasPngSignature(std::string_view data) {
    return data.substr(0, pngSignature.size()) == pngSignature;
}

std::optional<PixelSize> PixelSizeOf(std::string_view data) {
    if (data.size() < sizeEnd || !HasPngSignature(data) ||
        data.substr(namePosition, headerName.size()) != headerName)
        return std::nullopt;
    return PixelSize{BigEndianAt(data, widthPosition), BigEndianAt(data, heightPosition)};
}

std::string ImageLine(const DisplayItem& item, const ImageBlock& block) {
    const std::optional<std::size_t> offset = block.OffsetOf(item);
    if (!offset)
        return "image without data";
    const std::string_view data = DataOf(item);
    const std::optional<PixelSize> size = PixelSizeOf(data);
    return fmt::format("image {}, {} bytes at {}",
                       size ? fmt::format("{}x{} px", size->width, size->height) : "that is no PNG file",
                       data.size(), *offset);
}

} // namespace xttml
