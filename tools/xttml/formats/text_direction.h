// The direction that text is read in.
#ifndef XTTML_TOOLS_XTTML_FORMATS_TEXT_DIRECTION_H
#define XTTML_TOOLS_XTTML_FORMATS_TEXT_DIRECTION_H

#include <string_view>

namespace xttml {

/// Whether the first letter of a UTF-8 text is of a script that is written from right to left (Unicode
/// Standard Annex 9, rules P2 and P3). Without a letter it is not.
bool IsRightToLeft(std::string_view text);

} // namespace xttml

#endif
