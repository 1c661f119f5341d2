// Any bytes as a document and, from the first PNG signature on, its pictures, drawn into 320 x 180.
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "render/owned_parser.h"
#include "render/renderer.h"

#include <algorithm>
#include <string>
#include <vector>

using namespace xttml::render;

namespace {

constexpr Size target = {320, 180};
constexpr std::uint32_t mostTimes = 6;
constexpr std::uint32_t mostItems = 600;

void RequirePixels(const std::vector<std::uint32_t>& pixels, const Box& bounds) {
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const std::uint32_t alpha = pixels[i] >> 24;
        const int x = static_cast<int>(i) % target.width;
        const int y = static_cast<int>(i) / target.width;
        const bool isInside = x >= bounds.left && x < bounds.right && y >= bounds.top && y < bounds.bottom;
        Require(alpha == 0 || isInside, "nothing is drawn outside the bounds");
        for (const int shift : {0, 8, 16})
            Require((pixels[i] >> shift & 255) <= alpha, "a pixel is multiplied by its alpha");
    }
}

void RequireDrawing(Renderer& renderer, const std::vector<DisplayItem*>& items) {
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(target.width * target.height));
    renderer.Show(items.data(), items.size());
    Require(!renderer.Show(items.data(), items.size()), "the same is no change");
    Require(renderer.Draw({reinterpret_cast<std::uint8_t*>(pixels.data()), target.width, target.height,
                           target.width * 4}),
            "what is shown can be drawn");
    RequirePixels(pixels, renderer.Bounds());
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string input(bytes, bytes + size);
    const std::size_t split = std::min(input.find("\x89PNG"), size);
    const std::string pictures = input.substr(split);
    const OwnedParser owned = MakeParser();
    x_ttml_handle parser = owned.get();
    x_ttml_set_untrusted(parser, 1);
    x_ttml_try_load_from_data(parser, input.data(), static_cast<std::uint32_t>(split));
    x_ttml_try_set_image_data(parser, pictures.data(), static_cast<std::int32_t>(pictures.size()));
    x_ttml_try_generate_text(parser, 0);
    x_ttml_try_generate_images(parser, 0);
    Size root;
    x_ttml_get_tt_extent(parser, &root.width, &root.height);
    Renderer renderer(target, root);
    for (std::uint32_t i = 0; i < std::min(mostTimes, x_ttml_get_item_count(parser)); ++i) {
        std::vector<DisplayItem*> items(mostItems);
        const std::int32_t time = x_ttml_item_get_begin(x_ttml_get_item(parser, i));
        const std::uint32_t count = x_ttml_get_items_on_screen(parser, items.data(), mostItems, time);
        items.resize(std::min(count, mostItems));
        RequireDrawing(renderer, items);
    }
    return 0;
}
