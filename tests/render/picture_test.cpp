// Pictures: their place, and what is wrong with those that are left out.
#include "render/picture.h"
#include "tests/render/screenshot.h"

#include <gtest/gtest.h>

namespace xttml::render {
namespace {

/// A PNG file of red pixels.
std::string RedPicture(int width, int height) {
    std::string file;
    const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
    const DrawingContext context(cairo_create(surface.get()));
    cairo_set_source_rgb(context.get(), 1, 0, 0);
    cairo_paint(context.get());
    const auto write = [](void* closure, const unsigned char* data, unsigned int length) {
        static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
        return CAIRO_STATUS_SUCCESS;
    };
    cairo_surface_write_to_png_stream(surface.get(), write, &file);
    return file;
}

/// The file with another width and height in its head.
std::string Claiming(std::string file, std::uint32_t width, std::uint32_t height) {
    for (std::size_t i = 0; i < 4; ++i) {
        file[16 + i] = static_cast<char>(width >> (24 - 8 * i) & 255);
        file[20 + i] = static_cast<char>(height >> (24 - 8 * i) & 255);
    }
    return file;
}

std::string ImageDocument(const std::string& attributes) {
    return Document("tts:visibility='visible'",
                    "<div begin='0s' end='9s' " + attributes +
                        " smpte:backgroundImage='urn:dece:container:subtitleimageindex:1.png'/>");
}

struct Place {
    const char* attributes;
    Box expected;
};

TEST(Picture, IsScaledIntoItsBox) {
    const Place cases[] = {
        {"tts:origin='10px 20px' tts:extent='100px 50px'", {10, 20, 110, 70}},
        {"tts:origin='10px 20px' tts:extent='0px 0px'", {10, 20, 90, 40}}, // as large as it is
        {"tts:origin='10px 20px' tts:extent='40px 0px'", {10, 20, 50, 30}},
        {"tts:origin='10px 20px' tts:extent='0px 40px'", {10, 20, 170, 60}},
        {"tts:origin='300px 170px' tts:extent='100px 50px'", {300, 170, 320, 180}},
        {"tts:origin='10px 20px' tts:extent='4294967295px 4294967295px'", {10, 20, 320, 180}},
    };
    for (const Place& each : cases) {
        const Screenshot shot = Shoot(Player(ImageDocument(each.attributes), RedPicture(80, 20)));
        EXPECT_EQ(shot.Around(IsRed), each.expected) << each.attributes;
        EXPECT_EQ(shot.Count(IsInk), shot.Count([](const Pixel& pixel) { return pixel.red == 255; }));
    }
}

struct Fault {
    std::string file;
    const char* reason;
};

TEST(Picture, ThatCannotBeDecodedIsLeftOutWithAReason) {
    const std::string good = RedPicture(80, 20);
    std::string deep = Claiming(good, 2048, 2048);
    deep[24] = 16;
    const Fault cases[] = {
        {good.substr(0, 24), "not a PNG file"},
        {"\x89PNG is only the beginning of it", "not a PNG file"},
        {good.substr(0, good.size() / 2), "a damaged PNG file"},
        {Claiming(good, 80, 21), "a damaged PNG file"},
        {Claiming(good, 0, 20), "a damaged PNG file"},
        {Claiming(good, 65535, 65535), "a picture of 65535 x 65535 pixels is too large"},
        {Claiming(good, UINT32_MAX, UINT32_MAX), "a picture of 4294967295 x 4294967295 pixels is too large"},
        {deep, "a picture of 2048 x 2048 pixels is too large"},
    };
    for (const Fault& each : cases) {
        const Renderer renderer = Showing(Player(ImageDocument(""), each.file));
        EXPECT_TRUE(renderer.Bounds().IsEmpty());
        ASSERT_EQ(renderer.Remarks().size(), 1U);
        EXPECT_EQ(renderer.Remarks().front().reason, each.reason);
    }
    EXPECT_EQ(DecodePicture(nullptr, 0).fault, "no image data");
}

TEST(PictureCache, DecodesOnceAndForgetsWhatIsTooMuch) {
    const auto find = [](PictureCache& cache, const std::string& file) {
        return cache.Find(reinterpret_cast<const std::uint8_t*>(file.data()), file.size());
    };
    PictureCache cache(40 * 40 * 4 * 3);
    const std::string small = RedPicture(10, 10);
    const std::weak_ptr<const Picture> first = find(cache, small);
    for (const int height : {36, 37, 38, 39}) {
        find(cache, RedPicture(40, height));
        EXPECT_EQ(find(cache, small), first.lock()) << "used last, forgotten last";
    }
    for (const int height : {32, 33, 34, 35})
        find(cache, RedPicture(40, height));
    EXPECT_TRUE(first.expired());
    EXPECT_NE(find(cache, small)->surface, nullptr);
}

} // namespace
} // namespace xttml::render
