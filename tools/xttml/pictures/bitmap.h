// Pixels in memory.
#ifndef XTTML_TOOLS_XTTML_PICTURES_BITMAP_H
#define XTTML_TOOLS_XTTML_PICTURES_BITMAP_H

#include "render/renderer.h"

#include <cstdint>
#include <string>
#include <vector>

namespace xttml {

/// A picture that belongs to the program; transparent at first.
class Bitmap {
public:
    /// @param size one that IsPossible()
    explicit Bitmap(render::Size size);

    render::Size Extent() const { return size_; }
    /// All of it, valid as long as the bitmap.
    render::Frame Whole() { return Part(0, 0, size_); }
    /// A part that lies inside, likewise.
    /// @param left, top px
    render::Frame Part(std::int32_t left, std::int32_t top, render::Size size);
    /// The bytes of a PNG file. Throws std::bad_alloc.
    std::string Png();

private:
    render::Size size_;
    std::vector<std::uint32_t> pixels_;
};

} // namespace xttml

#endif
