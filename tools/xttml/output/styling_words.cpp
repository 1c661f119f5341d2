#include "tools/xttml/output/styling_words.h"

#include <cstddef>

namespace xttml {

namespace {

template <std::size_t count>
const char* WordOf(std::int32_t value, const char* const (&words)[count]) {
    return value >= 0 && static_cast<std::size_t>(value) < count ? words[value] : "unknown";
}

} // namespace

const char* DisplayAlignWord(const StylingAttrib& styling) {
    return WordOf(styling.eDisplayAlign, {"before", "center", "after"});
}

const char* TextAlignWord(const StylingAttrib& styling) {
    return WordOf(styling.eTextAlign, {"left", "center", "right", "start", "end"});
}

const char* TextDecorationWord(const StylingAttrib& styling) {
    return WordOf(styling.eTextDecoration, {"none", "underline", "noUnderline", "lineThrough",
                                            "noLineThrough", "overline", "noOverline"});
}

const char* FontStyleWord(const StylingAttrib& styling) {
    return WordOf(styling.iFontStyle, {"normal", "italic"});
}

const char* FontWeightWord(const StylingAttrib& styling) {
    return WordOf(styling.iFontWeight, {"normal", "bold"});
}

const char* VisibilityWord(const StylingAttrib& styling) {
    return WordOf(styling.iVisibility, {"visible", "hidden"});
}

} // namespace xttml
