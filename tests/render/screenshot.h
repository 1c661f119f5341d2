// A document drawn at a time, and what can be read from the pixels whatever the fonts are.
#ifndef XTTML_TESTS_RENDER_SCREENSHOT_H
#define XTTML_TESTS_RENDER_SCREENSHOT_H

#include "render/owned_parser.h"
#include "render/renderer.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>
#include <x_ttml_items.h>

namespace xttml::render {

/// A loaded document. Text items, or image items when there are images.
class Player {
public:
    explicit Player(const std::string& document, const std::string& images = {}) {
        x_ttml_handle parser = parser_.get();
        x_ttml_drop_lines();
        x_ttml_try_init();               // to the end of the process
        x_ttml_set_untrusted(parser, 0); // which would bound the documents by itself
        x_ttml_try_load_from_data(parser, document.data(), static_cast<std::uint32_t>(document.size()));
        x_ttml_try_set_image_data(parser, images.data(), static_cast<std::int32_t>(images.size()));
        if (images.empty())
            x_ttml_try_generate_text(parser, 0);
        else
            x_ttml_try_generate_images(parser, 0);
    }

    std::vector<DisplayItem*> ItemsAt(std::int32_t time) const {
        std::vector<DisplayItem*> items(x_ttml_get_items_on_screen(parser_.get(), nullptr, 0, time));
        x_ttml_get_items_on_screen(parser_.get(), items.data(), static_cast<std::uint32_t>(items.size()),
                                   time);
        return items;
    }
    Size Root() const {
        Size root;
        x_ttml_get_tt_extent(parser_.get(), &root.width, &root.height);
        return root;
    }

private:
    const OwnedParser parser_ = MakeParser();
};

/// A pixel as it is in a frame: multiplied by alpha.
struct Pixel {
    unsigned alpha, red, green, blue;
};

using Kind = bool (*)(const Pixel&);
inline bool IsInk(const Pixel& pixel) {
    return pixel.alpha > 0;
}
inline bool IsRed(const Pixel& pixel) {
    return pixel.red > 0 && pixel.green == 0 && pixel.blue == 0;
}
inline bool IsBlue(const Pixel& pixel) {
    return pixel.blue > 0 && pixel.green == 0 && pixel.red == 0;
}

/// The pixels of a frame.
class Screenshot {
public:
    explicit Screenshot(Size size)
        : size_(size), pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height)) {
    }

    Frame View() {
        return {reinterpret_cast<std::uint8_t*>(pixels_.data()), size_.width, size_.height, 4 * size_.width};
    }
    std::vector<std::uint32_t>& Numbers() { return pixels_; }
    Pixel At(int x, int y) const {
        const std::uint32_t number =
            pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width) +
                    static_cast<std::size_t>(x)];
        return {number >> 24, number >> 16 & 255, number >> 8 & 255, number & 255};
    }
    int Count(Kind isKind) const {
        int count = 0;
        Visit(isKind, [&](int, int) { ++count; });
        return count;
    }
    /// The smallest box around all pixels of a kind.
    Box Around(Kind isKind) const {
        Box box;
        Visit(isKind, [&](int x, int y) { box = Union(box, {x + 0.0, y + 0.0, x + 1.0, y + 1.0}); });
        return box;
    }
    bool operator==(const Screenshot& other) const { return pixels_ == other.pixels_; }

private:
    template <class Visitor>
    void Visit(Kind isKind, Visitor&& visitor) const {
        for (int y = 0; y < size_.height; ++y) {
            for (int x = 0; x < size_.width; ++x) {
                if (isKind(At(x, y)))
                    visitor(x, y);
            }
        }
    }

    Size size_;
    std::vector<std::uint32_t> pixels_;
};

/// A document of 320 x 180 with a region "r" from (40, 20) to (280, 160), font size 20.
inline std::string Document(const std::string& regionAttributes, const std::string& content) {
    return R"(<tt xmlns="http://www.w3.org/ns/ttml" xmlns:tts="http://www.w3.org/ns/ttml#styling"
        xmlns:smpte="http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt" tts:extent="320px 180px"><head><layout>
        <region xml:id="r" tts:origin="40px 20px" tts:extent="240px 140px" tts:fontSize="20px" )" +
           regionAttributes + "/></layout></head><body>" + content + "</body></tt>";
}

/// Such a document with one paragraph in the region.
inline std::string Paragraph(const std::string& regionAttributes, const std::string& text) {
    return Document(regionAttributes, R"(<div><p region="r" begin="0s" end="9s">)" + text + "</p></div>");
}

inline constexpr Box region = {40, 20, 280, 160};

/// A renderer that shows what there is at 1 s.
inline Renderer Showing(const Player& player, Size target = {320, 180}) {
    Renderer renderer(target, player.Root());
    const std::vector<DisplayItem*> items = player.ItemsAt(1000);
    renderer.Show(items.data(), items.size());
    return renderer;
}

/// What a document shows at 1 s, drawn as large as it is unless told otherwise.
inline Screenshot Shoot(const Player& player, Size target = {320, 180}) {
    Screenshot screenshot(target);
    Showing(player, target).Draw(screenshot.View());
    return screenshot;
}

inline Screenshot ShootParagraph(const std::string& regionAttributes, const std::string& text) {
    return Shoot(Player(Paragraph(regionAttributes, text)));
}

} // namespace xttml::render

#endif
