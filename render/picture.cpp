#include "render/picture.h"

#include <algorithm>
#include <cstring>

namespace xttml::render {

namespace {

// A PNG file begins with a signature and the chunk IHDR (PNG, 5.2 and 11.2.2).
constexpr std::uint8_t beginning[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n',
                                      0,    0,   0,   13,  'I',  'H',  'D',  'R'};
constexpr std::size_t widthPlace = sizeof beginning;
constexpr std::size_t heightPlace = widthPlace + 4;
constexpr std::size_t bitDepthPlace = heightPlace + 4;
constexpr std::size_t headSize = bitDepthPlace + 1;

// Cairo keeps a pixel in 4 bytes, or in floating-point numbers when the file has 16 bits a sample.
constexpr std::uint64_t pixelSize = 4;
constexpr std::uint64_t deepPixelSize = 16;

std::uint64_t ReadNumber(const std::uint8_t* bytes) {
    return (std::uint64_t{bytes[0]} << 24) | (std::uint64_t{bytes[1]} << 16) |
           (std::uint64_t{bytes[2]} << 8) | bytes[3];
}

/// What a file's head says against decoding it; empty: nothing.
std::string FaultOfHead(const std::uint8_t* file, std::size_t size) {
    if (size == 0)
        return "no image data";
    if (size < headSize || !std::equal(std::begin(beginning), std::end(beginning), file))
        return "not a PNG file";
    const std::uint64_t width = ReadNumber(file + widthPlace);
    const std::uint64_t height = ReadNumber(file + heightPlace);
    const std::uint64_t bytes = file[bitDepthPlace] > 8 ? deepPixelSize : pixelSize;
    if (height != 0 && width > largestPicture / bytes / height)
        return "a picture of " + std::to_string(width) + " x " + std::to_string(height) +
               " pixels is too large";
    if (size > largestCache)
        return "a PNG file of " + std::to_string(size) + " bytes is too large";
    return {};
}

struct Reader {
    const std::uint8_t* next;
    std::size_t left;
};

cairo_status_t Read(void* closure, unsigned char* data, unsigned int length) {
    auto& reader = *static_cast<Reader*>(closure);
    if (length > reader.left)
        return CAIRO_STATUS_READ_ERROR;
    std::memcpy(data, reader.next, length);
    reader.next += length;
    reader.left -= length;
    return CAIRO_STATUS_SUCCESS;
}

} // namespace

Picture DecodePicture(const std::uint8_t* file, std::size_t size) {
    Picture picture;
    picture.fault = FaultOfHead(file, size);
    if (!picture.fault.empty())
        return picture;
    Reader reader = {file, size};
    Surface surface(cairo_image_surface_create_from_png_stream(Read, &reader));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
        picture.fault = "a damaged PNG file";
        return picture;
    }
    picture.width = cairo_image_surface_get_width(surface.get());
    picture.height = cairo_image_surface_get_height(surface.get());
    picture.surface = std::move(surface);
    return picture;
}

std::uint64_t PictureCache::Entry::Bytes() const {
    const std::uint64_t stride =
        picture->surface ? static_cast<std::uint64_t>(cairo_image_surface_get_stride(picture->surface.get()))
                         : 0;
    return file.size() + stride * static_cast<std::uint64_t>(picture->height);
}

std::shared_ptr<const Picture> PictureCache::Find(const std::uint8_t* file, std::size_t size) {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.file.size() == size && std::equal(entry.file.begin(), entry.file.end(), file);
    });
    if (found != entries_.end()) {
        entries_.splice(entries_.begin(), entries_, found);
        return found->picture;
    }
    auto picture = std::make_shared<const Picture>(DecodePicture(file, size));
    if (size <= limit_)
        Keep({std::vector<std::uint8_t>(file, file + size), picture});
    return picture;
}

void PictureCache::Keep(Entry entry) {
    entries_.push_front(std::move(entry));
    std::uint64_t bytes = 0;
    const auto tooMany = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& kept) {
        bytes += kept.Bytes();
        return bytes > limit_;
    });
    entries_.erase(tooMany, entries_.end());
}

} // namespace xttml::render
