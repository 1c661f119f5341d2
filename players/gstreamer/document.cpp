#include "players/gstreamer/document.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <new>

namespace xttml::gstreamer {

namespace {

bool IsNotForced(const DisplayItem* item) {
    return x_ttml_item_is_forced(item) == 0;
}

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

[[noreturn]] void Refuse(const std::string& path, const std::string& reason) {
    throw UnusableDocument(path + ": " + reason);
}

std::string ReadFile(const std::string& path) {
    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "rb"));
    if (!file)
        Refuse(path, std::strerror(errno));
    std::string bytes;
    char buffer[1U << 16U];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get())) {
        bytes.append(buffer, count);
        if (bytes.size() > mostBytes)
            Refuse(path, "more than " + std::to_string(mostBytes) + " bytes");
    }
    if (std::ferror(file.get()) != 0)
        Refuse(path, std::strerror(errno));
    return bytes;
}

} // namespace

Document::Document(std::string_view bytes, bool isTrusted, std::string_view pictures)
    : parser_(render::MakeParser()) {
    const x_ttml_handle parser = parser_.get();
    x_ttml_set_untrusted(parser, isTrusted ? 0 : 1);
    Require(x_ttml_try_load_from_data(parser, bytes.data(), static_cast<std::uint32_t>(bytes.size())));
    if (pictures.empty()) {
        Require(x_ttml_try_generate_text(parser, 0));
    } else {
        Require(
            x_ttml_try_set_image_data(parser, pictures.data(), static_cast<std::int32_t>(pictures.size())));
        Require(x_ttml_try_generate_images(parser, 0));
    }
    language_ = render::ReadLanguage(parser);
    x_ttml_destory_doc(parser); // its memory is many times that of the items
}

void Document::Require(int status) const {
    if (status == X_TTML_OUT_OF_MEMORY)
        throw std::bad_alloc();
    if (status != X_TTML_OK)
        throw UnusableDocument(x_ttml_get_reason(parser_.get()));
}

std::vector<DisplayItem*> Document::OnScreen(std::int32_t time, bool forcedOnly) const {
    std::vector<DisplayItem*> items(x_ttml_get_items_on_screen(parser_.get(), nullptr, 0, time));
    x_ttml_get_items_on_screen(parser_.get(), items.data(), static_cast<std::uint32_t>(items.size()), time);
    if (forcedOnly)
        items.erase(std::remove_if(items.begin(), items.end(), IsNotForced), items.end());
    return items;
}

std::int64_t Document::NextChange(std::int32_t time) const {
    return x_ttml_get_next_change(parser_.get(), time);
}

render::Size Document::Root() const {
    render::Size root;
    x_ttml_get_tt_extent(parser_.get(), &root.width, &root.height);
    return root;
}

std::unique_ptr<Document> ReadDocument(const std::string& path, const std::string& images, bool isTrusted) {
    const std::string bytes = ReadFile(path);
    const std::string pictures = images.empty() ? std::string() : ReadFile(images);
    if (!images.empty() && pictures.empty())
        Refuse(images, "no image data");
    try {
        return std::make_unique<Document>(bytes, isTrusted, pictures);
    } catch (const UnusableDocument& fault) {
        throw UnusableDocument(path + ":" + fault.what());
    }
}

} // namespace xttml::gstreamer
