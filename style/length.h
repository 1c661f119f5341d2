// Lengths as TTML writes them: a decimal number and a unit (TTML 1.0, 8.3.9 length).
#ifndef XTTML_STYLE_LENGTH_H
#define XTTML_STYLE_LENGTH_H

#include "runtime/export.h"

#include <cstdint>
#include <limits>
#include <string>

/// The unit of a length.
enum length_unit_e : std::int32_t {
    LENGTH_UNIT_NONE = 0,   ///< no length was recognised
    LENGTH_UNIT_PX = 1,     ///< "px"
    LENGTH_UNIT_EM = 2,     ///< "em"
    LENGTH_UNIT_C = 3,      ///< "c", cells
    LENGTH_UNIT_PERCENT = 4 ///< "%"
};

/// Reads one length: digits, optionally a point and more digits, and a unit, filling the whole text.
/// @param strText the text; no sign, exponent or white space is accepted, nor a NUL
/// @param fValue set to the number; 0 when nothing was recognised; infinity when it exceeds a float
/// @param eUnit set to the unit; LENGTH_UNIT_NONE when nothing was recognised
/// @return whether a length was recognised; then the number's text has been written to standard output,
///         followed by a flushed line end
XTTML_API bool fgGetLength(const std::string& strText, float& fValue, length_unit_e& eUnit);

/// Reads a pair of lengths, both in px or both in %, separated by exactly one white-space character and
/// filling the whole text. White space is that of the C locale: space, tab, line feed, vertical tab, form
/// feed, carriage return. Writes nothing to standard output.
/// @param fFirst set to the first number; 0 when nothing was recognised
/// @param fSecond set to the second number; 0 when nothing was recognised
/// @param eUnit set to LENGTH_UNIT_PX or LENGTH_UNIT_PERCENT; LENGTH_UNIT_NONE when nothing was recognised
/// @return whether a pair was recognised
XTTML_API bool fgGetDoubleLength(const std::string& strText, float& fFirst, float& fSecond,
                                 length_unit_e& eUnit);

/// Reads a number as atof does, in the C locale whatever the process's locale is: leading white space is
/// skipped, reading stops at the first character that cannot continue a number, no number gives 0.
/// @return the number rounded to the nearest float; infinity when it exceeds the floats
XTTML_API float fStr2Float(const std::string& strText);

/// A length in whole pixels: truncated toward zero, clamped to 4294967295; NaN gives 0.
/// @param fValue the length in px, 0 or more
inline std::uint32_t uWholePixels(float fValue) {
    constexpr float fTooLarge = 4294967296.0F;
    if (!(fValue > 0))
        return 0;
    if (fValue >= fTooLarge)
        return std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(fValue);
}

#endif
