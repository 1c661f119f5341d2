#include "style/keywords.h"

#include <cstddef>

namespace {

template <class Value>
struct Keyword {
    const char* text;
    Value value;
};

template <class Value, std::size_t count>
Value ValueOf(const std::string& text, const Keyword<Value> (&keywords)[count], Value fallback) {
    for (const Keyword<Value>& keyword : keywords) {
        if (text == keyword.text)
            return keyword.value;
    }
    return fallback;
}

constexpr Keyword<display_align_e> displayAlignKeywords[] = {
    {"before", DISPLAY_ALIGN_BEFORE},
    {"center", DISPLAY_ALIGN_CENTER},
    {"after", DISPLAY_ALIGN_AFTER},
};

constexpr Keyword<text_align_e> textAlignKeywords[] = {
    {"left", TEXT_ALIGN_LEFT},   {"center", TEXT_ALIGN_CENTER}, {"right", TEXT_ALIGN_RIGHT},
    {"start", TEXT_ALIGN_START}, {"end", TEXT_ALIGN_END},
};

constexpr Keyword<text_decoration_e> textDecorationKeywords[] = {
    {"none", TEXT_DECORATION_NONE},
    {"underline", TEXT_DECORATION_UNDERLINE},
    {"noUnderline", TEXT_DECORATION_NO_UNDERLINE},
    {"lineThrough", TEXT_DECORATION_LINE_THROUGH},
    {"noLineThrough", TEXT_DECORATION_NO_LINE_THROUGH},
    {"overline", TEXT_DECORATION_OVERLINE},
    {"noOverline", TEXT_DECORATION_NO_OVERLINE},
};

} // namespace

display_align_e eDisplayAlignFromKeyword(const std::string& text) {
    return ValueOf(text, displayAlignKeywords, DISPLAY_ALIGN_BEFORE);
}

text_align_e eTextAlignFromKeyword(const std::string& text) {
    return ValueOf(text, textAlignKeywords, TEXT_ALIGN_START);
}

text_decoration_e eTextDecorationFromKeyword(const std::string& text) {
    return ValueOf(text, textDecorationKeywords, TEXT_DECORATION_NONE);
}

std::int32_t iFontStyleFromKeyword(const std::string& text) {
    return text == "italic" ? 1 : 0;
}

std::int32_t iFontWeightFromKeyword(const std::string& text) {
    return text == "bold" ? 1 : 0;
}

std::int32_t iVisibilityFromKeyword(const std::string& text) {
    return text == "hidden" ? 1 : 0;
}
