#include "tools/xttml/image_block.h"

#include <png.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <limits>
#include <memory>
#include <stdexcept>

namespace xttml {

namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

[[noreturn]] void Fail(const std::string& file, const char* reason) {
    throw std::runtime_error(file + ": " + reason);
}

void AppendFile(const std::string& path, std::string& bytes) {
    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "rb"));
    if (!file)
        Fail(path, std::strerror(errno));
    char buffer[1U << 16U];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get())) {
        bytes.append(buffer, count);
        if (bytes.size() > std::numeric_limits<std::int32_t>::max())
            Fail(path, "more image data than 2 GiB");
    }
    if (std::ferror(file.get()) != 0)
        Fail(path, std::strerror(errno));
}

} // namespace

ImageBlock::ImageBlock(const std::vector<std::string>& files) {
    for (const std::string& file : files)
        AppendFile(file, bytes_);
    if (!files.empty() && bytes_.empty())
        Fail(files.front(), "no image data");
}

std::optional<std::size_t> ImageBlock::OffsetOf(const ImageItem& item) const {
    const std::string_view data = DataOf(item);
    const std::size_t offset = data.empty() ? std::string::npos : bytes_.find(data);
    return offset == std::string::npos ? std::nullopt : std::optional(offset);
}

std::optional<PixelSize> PixelSizeOf(const ImageItem& item) {
    const std::string_view data = DataOf(item);
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&image, data.data(), data.size()) == 0)
        return std::nullopt;
    png_image_free(&image);
    return PixelSize{image.width, image.height};
}

std::string_view DataOf(const ImageItem& item) {
    if (!item.pImageData || item.iImageDataSize <= 0)
        return {};
    return {reinterpret_cast<const char*>(item.pImageData), static_cast<std::size_t>(item.iImageDataSize)};
}

std::string ImageLine(const ImageItem& item, const ImageBlock& block) {
    const std::optional<std::size_t> offset = block.OffsetOf(item);
    if (!offset)
        return "image without data";
    const std::optional<PixelSize> size = PixelSizeOf(item);
    const std::string pixels = size ? std::to_string(size->width) + "x" + std::to_string(size->height) + " px"
                                    : "that is no PNG file";
    return "image " + pixels + ", " + std::to_string(item.iImageDataSize) + " bytes at " +
           std::to_string(*offset);
}

} // namespace xttml
