#include "tools/xttml/output/styling_words.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace xttml {

namespace {

/// The words of an attribute, in the order of the values of the record's field.
struct Words {
    const char* attribute;
    const char* words[7]; // null behind the last one
};

constexpr Words displayAlign = {"displayAlign", {"before", "center", "after"}};
constexpr Words fontStyle = {"fontStyle", {"normal", "italic"}};
constexpr Words fontWeight = {"fontWeight", {"normal", "bold"}};
constexpr Words textAlign = {"textAlign", {"left", "center", "right", "start", "end"}};
constexpr Words textDecoration = {
    "textDecoration",
    {"none", "underline", "noUnderline", "lineThrough", "noLineThrough", "overline", "noOverline"}};
constexpr Words visibility = {"visibility", {"visible", "hidden"}};

const char* WordOf(std::int32_t value, const Words& words) {
    const auto position = static_cast<std::size_t>(value);
    const char* const word = position < std::size(words.words) ? words.words[position] : nullptr;
    return word ? word : "unknown";
}

} // namespace

const char* DisplayAlignWord(const StylingAttrib& styling) {
    return WordOf(styling.eDisplayAlign, displayAlign);
}

const char* TextAlignWord(const StylingAttrib& styling) {
    return WordOf(styling.eTextAlign, textAlign);
}

const char* TextDecorationWord(const StylingAttrib& styling) {
    return WordOf(styling.eTextDecoration, textDecoration);
}

const char* FontStyleWord(const StylingAttrib& styling) {
    return WordOf(styling.iFontStyle, fontStyle);
}

const char* FontWeightWord(const StylingAttrib& styling) {
    return WordOf(styling.iFontWeight, fontWeight);
}

const char* VisibilityWord(const StylingAttrib& styling) {
    return WordOf(styling.iVisibility, visibility);
}

bool IsStylingKeyword(std::string_view attribute, std::string_view text) {
    for (const Words& words : {displayAlign, fontStyle, fontWeight, textAlign, textDecoration, visibility}) {
        if (attribute == words.attribute)
            return std::any_of(std::begin(words.words), std::end(words.words),
                               [text](const char* word) { return word && text == word; });
    }
    return false;
}

} // namespace xttml
