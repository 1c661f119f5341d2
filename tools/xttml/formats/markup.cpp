#include "tools/xttml/formats/markup.h"

#include <algorithm>
#include <fmt/format.h>

namespace xttml {

std::string Escaped(std::string_view text, std::initializer_list<Escape> escapes) {
    std::string escaped;
    while (!text.empty()) {
        const auto* const found = std::find_if(escapes.begin(), escapes.end(), [=](const Escape& escape) {
            return text.substr(0, escape.meaning.size()) == escape.meaning;
        });
        const bool isText = found == escapes.end();
        escaped += isText ? text.substr(0, 1) : found->replacement;
        text.remove_prefix(isText ? 1 : found->meaning.size());
    }
    return escaped;
}

std::string Tagged(std::string text, const char* name, bool hasProperty) {
    return hasProperty ? fmt::format("<{0}>{1}</{0}>", name, text) : text;
}

std::string HexColor(Rgba color) {
    return fmt::format("{:06x}", color >> 8U);
}

} // namespace xttml
