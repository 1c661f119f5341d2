#include "tools/xttml/pictures/bitmap.h"

#include "render/cairo_handles.h"

#include <new>

namespace xttml {

namespace {

// Called by Cairo, which no exception may reach.
cairo_status_t Append(void* file, const unsigned char* bytes, unsigned int length) {
    try {
        static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(bytes), length);
        return CAIRO_STATUS_SUCCESS;
    } catch (const std::bad_alloc&) {
        return CAIRO_STATUS_NO_MEMORY;
    }
}

} // namespace

Bitmap::Bitmap(render::Size size)
    : size_(size), pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height)) {}

render::Frame Bitmap::Part(std::int32_t left, std::int32_t top, render::Size size) {
    const auto first = static_cast<std::size_t>(top) * static_cast<std::size_t>(size_.width) +
                       static_cast<std::size_t>(left);
    return {reinterpret_cast<std::uint8_t*>(&pixels_[first]), size.width, size.height, 4 * size_.width};
}

std::string Bitmap::Png() {
    const render::Frame all = Whole();
    const render::Surface surface(cairo_image_surface_create_for_data(all.pixels, CAIRO_FORMAT_ARGB32,
                                                                      all.width, all.height, all.stride));
    std::string file;
    if (cairo_surface_write_to_png_stream(surface.get(), Append, &file) != CAIRO_STATUS_SUCCESS)
        throw std::bad_alloc();
    return file;
}

} // namespace xttml
