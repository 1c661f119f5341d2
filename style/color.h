// Colours as TTML writes them (TTML 1.0, 8.3.2 color): a name, # with hexadecimal digits, or rgb() and
// rgba() with decimal components. The library stores colour text unread; a player turns it into numbers.
#ifndef XTTML_STYLE_COLOR_H
#define XTTML_STYLE_COLOR_H

#include "runtime/export.h"

#include <cstdint>
#include <string>

/// A colour in four components of 0 to 255; opaque white by default.
struct RgbaColor {
    std::uint16_t uRed = 255;   ///< 0 to 255
    std::uint16_t uGreen = 255; ///< 0 to 255
    std::uint16_t uBlue = 255;  ///< 0 to 255
    std::uint16_t uAlpha = 255; ///< 0: fully transparent, 255: fully opaque
};

/// Reads a run of decimal digits out of a text.
/// @param iFirst the position of the first character; one outside the text counts as no digit
/// @param iLast the position of the last character; an empty range (iFirst > iLast) gives true and 0
/// @param iValue set to the number; 255 when a character is no digit; the largest int when the number
///        exceeds it
/// @return whether every character of the range is a digit
XTTML_API bool fgConvertStrToInt(const std::string& strText, int iFirst, int iLast, int& iValue);

/// Normalises a colour text to # and eight hexadecimal digits: red, green, blue, alpha.
/// @param strText the colour; "#rrggbb" has "FF" appended in place, any other text stays as it is
/// @return the normalised text; a text of # and eight characters comes back as it is; what is no colour
///         gives "#FFFFFFFF"
XTTML_API std::string strFormatColor(std::string& strText);

/// The components of a colour text.
/// @param strText the colour; changed as by strFormatColor()
/// @return the colour; opaque white for what is no colour
XTTML_API RgbaColor rMapColor(std::string& strText);

#endif
