// The PNG files of image items, decoded once and within bounds.
#ifndef XTTML_RENDER_PICTURE_H
#define XTTML_RENDER_PICTURE_H

#include "render/cairo_handles.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <string>
#include <vector>

namespace xttml::render {

/// A decoded picture, or why there is none.
struct Picture {
    Surface surface;         ///< null: not decoded
    std::int32_t width = 0;  ///< px
    std::int32_t height = 0; ///< px
    std::string fault;       ///< why it was not decoded; empty: it was
};

/// The memory that one decoded picture may take, in bytes: a frame of 4096 x 2304 at 4 bytes a pixel.
inline constexpr std::uint64_t largestPicture = std::uint64_t{4096} * 2304 * 4;

/// The memory that the decoded pictures of a cache and their files take at most, in bytes; no file is larger.
inline constexpr std::uint64_t largestCache = std::uint64_t{64} << 20;

/// Decodes a PNG file. Its size is looked at before any memory is taken for it.
/// @param file may be null when `size` is 0
/// @param size bytes
Picture DecodePicture(const std::uint8_t* file, std::size_t size);

/// The pictures met last. They are told apart by the content of their files, so that no answer depends on how
/// long a file stays in memory.
class PictureCache {
public:
    /// @param limit the memory that the pictures and their files may take, in bytes
    explicit PictureCache(std::uint64_t limit = largestCache) : limit_(limit) {}

    /// A file's picture, decoded unless the cache holds it.
    /// @param file read during the call only; may be null when `size` is 0
    /// @param size bytes
    std::shared_ptr<const Picture> Find(const std::uint8_t* file, std::size_t size);

private:
    struct Entry {
        std::vector<std::uint8_t> file;
        std::shared_ptr<const Picture> picture;

        std::uint64_t Bytes() const;
    };
    void Keep(Entry entry);

    std::uint64_t limit_;
    std::list<Entry> entries_; // used last: first
};

} // namespace xttml::render

#endif
