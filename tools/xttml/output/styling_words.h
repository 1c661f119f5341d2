// The values of the styling record in the words of TTML.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_STYLING_WORDS_H
#define XTTML_TOOLS_XTTML_OUTPUT_STYLING_WORDS_H

#include <string_view>
#include <xttml/style/styling_attrib.h>

namespace xttml {

const char* DisplayAlignWord(const StylingAttrib& styling);
const char* TextAlignWord(const StylingAttrib& styling);
const char* TextDecorationWord(const StylingAttrib& styling);
const char* FontStyleWord(const StylingAttrib& styling);
const char* FontWeightWord(const StylingAttrib& styling);
const char* VisibilityWord(const StylingAttrib& styling);

/// Whether a text is one of the words of an attribute, such as "textAlign".
bool IsStylingKeyword(std::string_view attribute, std::string_view text);

} // namespace xttml

#endif
