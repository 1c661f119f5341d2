// Keyword conversion. The text is compared as a whole and case-sensitively; what equals no keyword gives the
// fallback named with the enumeration, or 0.
#ifndef XTTML_STYLE_KEYWORDS_H
#define XTTML_STYLE_KEYWORDS_H

#include "style/styling_attrib.h"

#include <cstdint>
#include <string>

/// The value of a tts:displayAlign text.
display_align_e eDisplayAlignFromKeyword(const std::string& text);
/// The value of a tts:textAlign text.
text_align_e eTextAlignFromKeyword(const std::string& text);
/// The value of a tts:textDecoration text.
text_decoration_e eTextDecorationFromKeyword(const std::string& text);
/// 1 for "italic", else 0.
std::int32_t iFontStyleFromKeyword(const std::string& text);
/// 1 for "bold", else 0.
std::int32_t iFontWeightFromKeyword(const std::string& text);
/// 1 for "hidden", else 0.
std::int32_t iVisibilityFromKeyword(const std::string& text);

#endif
