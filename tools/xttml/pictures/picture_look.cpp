#include "tools/xttml/pictures/picture_look.h"

#include "render/renderer.h"
#include "tools/xttml/text/media_time.h"

#include <algorithm>
#include <cctype>

namespace xttml {

namespace {

// rMapColor() makes opaque white of these, and of all that is no colour.
constexpr std::string_view whites[] = {"white", "#ffffff", "#ffffffff", "rgb(255,255,255)",
                                       "rgba(255,255,255,255)"};

bool IsWhite(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return std::find(std::begin(whites), std::end(whites), text) != std::end(whites);
}

} // namespace

bool IsPossible(render::Size size) {
    const auto isSide = [](std::int32_t side) { return side >= 1 && side <= render::longestSide; };
    return isSide(size.width) && isSide(size.height) && std::int64_t{size.width} * size.height <= mostPixels;
}

std::optional<render::Size> ParsePictureSize(std::string_view text) {
    const std::size_t middle = std::min(text.find('x'), text.size());
    const auto width = ParseInteger(text.substr(0, middle));
    const auto height = ParseInteger(text.substr(std::min(middle + 1, text.size())));
    const render::Size size = {width.value_or(0), height.value_or(0)};
    return IsPossible(size) ? std::optional(size) : std::nullopt;
}

std::optional<Background> ParseBackground(std::string_view text) {
    if (text == "checkerboard")
        return Background{true};
    std::string color(text);
    const RgbaColor read = rMapColor(color);
    const bool isOpaqueWhite = std::min({read.uRed, read.uGreen, read.uBlue, read.uAlpha}) == 255;
    if (isOpaqueWhite && !IsWhite(std::move(color)))
        return std::nullopt;
    return Background{false, read};
}

} // namespace xttml
