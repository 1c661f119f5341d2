// The PNG files that belong to image subtitles.
#ifndef XTTML_TOOLS_XTTML_IMAGE_BLOCK_H
#define XTTML_TOOLS_XTTML_IMAGE_BLOCK_H

#include "parser/display_item.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace xttml {

/// A block of image data as a player hands it over; empty for text subtitles.
class ImageBlock {
public:
    /// Reads files, one after the other. Throws std::runtime_error, which names the file, for one that cannot
    /// be read and for a block that the library cannot take (more than 2 GiB).
    explicit ImageBlock(const std::vector<std::string>& files);

    bool Empty() const { return bytes_.empty(); }
    const std::string& Bytes() const { return bytes_; }
    /// Where the data of an item stands in the block: the first place with the same bytes; nothing for an
    /// item without data.
    std::optional<std::size_t> OffsetOf(const ImageItem& item) const;

private:
    std::string bytes_;
};

/// A picture's size in px.
struct PixelSize {
    std::uint32_t width;
    std::uint32_t height;
};

/// The size that the item's PNG file tells; nothing when its data is none.
std::optional<PixelSize> PixelSizeOf(const ImageItem& item);

/// The item's PNG file, as a view of the parser's data; empty when it has none.
std::string_view DataOf(const ImageItem& item);

/// An image item as one line: "image 640x80 px, 2318 bytes at 0".
std::string ImageLine(const ImageItem& item, const ImageBlock& block);

} // namespace xttml

#endif
