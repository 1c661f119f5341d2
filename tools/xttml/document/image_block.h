// The PNG files that belong to image subtitles.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_IMAGE_BLOCK_H
#define XTTML_TOOLS_XTTML_DOCUMENT_IMAGE_BLOCK_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>
#include <x_ttml_items.h>

namespace xttml {

/// A block of image data as a player hands it over; empty for text subtitles.
class ImageBlock {
public:
    /// Reads files, one after the other. Throws UnusableFile for one that cannot be read and for a block that
    /// the library cannot take (none or more than 2 GiB).
    explicit ImageBlock(const std::vector<std::string>& files);

    bool Empty() const { return bytes_.empty(); }
    const std::string& Bytes() const { return bytes_; }
    /// Where the data of an item stands in the block: the first place with the same bytes; nothing for an
    /// item without data. All items are of one sequence.
    std::optional<std::size_t> OffsetOf(const DisplayItem& item) const;

private:
    std::string bytes_;
    // By the address of the data: the library cuts a block into at most thirty pictures, however many items
    // show them.
    mutable std::map<const char*, std::optional<std::size_t>> offsets_;
};

/// A size in px.
struct PixelSize {
    std::uint32_t width;
    std::uint32_t height;
};

/// The item's PNG file, as a view of the parser's data; empty when it has none.
std::string_view DataOf(const DisplayItem& item);

/// Whether data begins as every PNG file does.
bool HasPngSignature(std::string_view data);

/// The size that a PNG file tells in its header chunk; nothing when there is none.
std::optional<PixelSize> PixelSizeOf(std::string_view data);

/// An image item as one line: "image 640x80 px, 2318 bytes at 0".
std::string ImageLine(const DisplayItem& item, const ImageBlock& block);

} // namespace xttml

#endif
