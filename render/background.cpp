#include "render/background.h"

#include <algorithm>
#include <string_view>

namespace xttml::render {

x_ttml_color BackgroundOf(const x_ttml_styling& styling) {
    constexpr std::string_view beginningsOfWhite = "#rw";
    const x_ttml_color& color = styling.background_color;
    const bool isWhite = std::min({color.red, color.green, color.blue, color.alpha}) == 255;
    const char first = *styling.background_color_text;
    const bool saysWhite = first != '\0' && beginningsOfWhite.find(first) != std::string_view::npos;
    return isWhite && !saysWhite ? x_ttml_color{} : color;
}

} // namespace xttml::render
