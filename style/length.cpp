#include "style/length.h"

#include "runtime/number.h"
#include "runtime/progress_lines.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace {

// The grammar is that of three POSIX extended regular expressions in the C locale. It is read by hand:
// regcomp and regexec stop at a NUL, depend on the locale and fail for lack of memory, and glibc 2.36's may
// then crash. What never fails needs no line that says "incorrect regular express: ".
//
//   length        ^[0-9]+(\.[0-9]+)?(px|%|c|em)$
//   pixel pair    ^[0-9]+(\.[0-9]+)?px\s[0-9]+(\.[0-9]+)?px$
//   percent pair  ^[0-9]+(\.[0-9]+)?%\s[0-9]+(\.[0-9]+)?%$

constexpr std::string_view digits = "0123456789";
constexpr std::string_view whiteSpace = " \t\n\v\f\r";

struct Unit {
    std::string_view strText;
    length_unit_e eUnit;
};

constexpr Unit units[] = {
    {"px", LENGTH_UNIT_PX},
    {"%", LENGTH_UNIT_PERCENT},
    {"c", LENGTH_UNIT_C},
    {"em", LENGTH_UNIT_EM},
};

/// A length as it is written.
struct WrittenLength {
    std::string_view strNumber;
    length_unit_e eUnit; ///< LENGTH_UNIT_NONE: there is no length
};

/// Takes the first characters off a text.
std::string_view strTake(std::string_view& strRest, std::size_t uCount) {
    const std::string_view strTaken = strRest.substr(0, uCount);
    strRest.remove_prefix(strTaken.size());
    return strTaken;
}

std::size_t uCountDigits(std::string_view strText) {
    return std::min(strText.find_first_not_of(digits), strText.size());
}

std::string_view strTakeNumber(std::string_view& strRest) {
    std::size_t uLength = uCountDigits(strRest);
    if (uLength > 0 && uLength < strRest.size() && strRest[uLength] == '.') {
        const std::size_t uFraction = uCountDigits(strRest.substr(uLength + 1));
        uLength += uFraction > 0 ? 1 + uFraction : 0;
    }
    return strTake(strRest, uLength);
}

WrittenLength rTakeLength(std::string_view& strRest) {
    const std::string_view strNumber = strTakeNumber(strRest);
    for (const Unit& unit : units) {
        if (!strNumber.empty() && strRest.substr(0, unit.strText.size()) == unit.strText) {
            strTake(strRest, unit.strText.size());
            return {strNumber, unit.eUnit};
        }
    }
    return {strNumber, LENGTH_UNIT_NONE};
}

bool fgTakeWhiteSpace(std::string_view& strRest) {
    const std::string_view strTaken = strTake(strRest, 1);
    return !strTaken.empty() && whiteSpace.find(strTaken) != std::string_view::npos;
}

/// Rounds to the nearest float, as the hardware does; beyond the floats the language leaves it open.
float fNarrow(double fValue) {
    constexpr double fLargest = std::numeric_limits<float>::max();
    constexpr double fInfinite = 0x1.ffffffp127; // half a step beyond the largest float
    if (std::abs(fValue) >= fInfinite)
        return static_cast<float>(std::copysign(std::numeric_limits<double>::infinity(), fValue));
    return static_cast<float>(std::clamp(fValue, -fLargest, fLargest));
}

/// Reads in place: no unit continues a number, and a zero ends the text.
float fReadNumber(const WrittenLength& length) {
    return fNarrow(tessera::ReadDouble(length.strNumber.data()));
}

} // namespace

bool fgGetLength(const std::string& strText, float& fValue, length_unit_e& eUnit) {
    fValue = 0;
    eUnit = LENGTH_UNIT_NONE;
    std::string_view strRest = strText;
    const WrittenLength length = rTakeLength(strRest);
    if (length.eUnit == LENGTH_UNIT_NONE || !strRest.empty())
        return false;
    eUnit = length.eUnit;
    tessera::WriteLine(length.strNumber);
    fValue = fReadNumber(length);
    return true;
}

bool fgGetDoubleLength(const std::string& strText, float& fFirst, float& fSecond, length_unit_e& eUnit) {
    fFirst = 0;
    fSecond = 0;
    eUnit = LENGTH_UNIT_NONE;
    std::string_view strRest = strText;
    const WrittenLength first = rTakeLength(strRest);
    const bool fgSeparated = fgTakeWhiteSpace(strRest);
    const WrittenLength second = rTakeLength(strRest);
    const bool fgPair = first.eUnit == LENGTH_UNIT_PX || first.eUnit == LENGTH_UNIT_PERCENT;
    if (!fgPair || !fgSeparated || second.eUnit != first.eUnit || !strRest.empty())
        return false;
    fFirst = fReadNumber(first);
    fSecond = fReadNumber(second);
    eUnit = first.eUnit;
    return true;
}

float fStr2Float(const std::string& strText) {
    return fNarrow(tessera::ReadDouble(strText.c_str()));
}
