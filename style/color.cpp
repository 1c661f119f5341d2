#include "style/color.h"

#include <array>
#include <climits>
#include <cstddef>
#include <optional>

namespace {

constexpr char opaqueWhite[] = "#FFFFFFFF";
constexpr std::size_t uNormalisedLength = 9;
constexpr int iComponentMax = 255;

struct NamedColor {
    const char* name;
    const char* normalised;
};

constexpr NamedColor namedColors[] = {
    {"transparent", "#00000000"}, {"black", "#000000FF"},   {"silver", "#C0C0C0FF"}, {"gray", "#808080FF"},
    {"white", "#FFFFFFFF"},       {"maroon", "#800000FF"},  {"red", "#FF0000FF"},    {"purple", "#800080FF"},
    {"fuchsia", "#FF00FFFF"},     {"magenta", "#FF00FFFF"}, {"green", "#008000FF"},  {"lime", "#00FF00FF"},
    {"olive", "#808000FF"},       {"yellow", "#FFFF00FF"},  {"navy", "#000080FF"},   {"blue", "#0000FFFF"},
    {"teal", "#008080FF"},        {"aqua", "#00FFFFFF"},    {"cyan", "#00FFFFFF"},
};

bool fgIsDigit(char character) {
    return character >= '0' && character <= '9';
}

std::string strHexComponent(int iComponent) {
    constexpr char digits[] = "0123456789ABCDEF";
    return {digits[iComponent / 16], digits[iComponent % 16]};
}

/// The value of a hexadecimal digit of either case; -1 for any other character.
int iHexDigit(char character) {
    if (fgIsDigit(character))
        return character - '0';
    if (character >= 'A' && character <= 'F')
        return character - 'A' + 10;
    if (character >= 'a' && character <= 'f')
        return character - 'a' + 10;
    return -1;
}

/// The component in [uBegin, uEnd) as two hexadecimal digits; nothing when it is no number of 0 to 255.
std::optional<std::string> ReadComponent(const std::string& strText, std::size_t uBegin, std::size_t uEnd) {
    int iValue = 0;
    const bool fgNumber =
        fgConvertStrToInt(strText, static_cast<int>(uBegin), static_cast<int>(uEnd) - 1, iValue);
    if (!fgNumber || iValue > iComponentMax)
        return std::nullopt;
    return strHexComponent(iValue);
}

/// The text of rgb(...) or rgba(...) with the given count of components; missing alpha is opaque.
std::string strFormatFunction(const std::string& strText, int iComponents) {
    std::size_t uBegin = strText.find('(');
    const std::size_t uClose = strText.find(')');
    if (uBegin == std::string::npos || uClose == std::string::npos || uBegin > uClose || uClose > INT_MAX)
        return opaqueWhite;
    std::string strResult = "#";
    for (int i = 0; i < iComponents; ++i) {
        ++uBegin;
        const bool fgLast = i == iComponents - 1;
        const std::size_t uEnd = fgLast ? uClose : strText.find(',', uBegin);
        if (uEnd == std::string::npos || uEnd > uClose)
            return opaqueWhite;
        const std::optional<std::string> component = ReadComponent(strText, uBegin, uEnd);
        if (!component)
            return opaqueWhite;
        strResult += *component;
        uBegin = uEnd;
    }
    return iComponents == 4 ? strResult : strResult + "FF";
}

std::string strFormatHash(std::string& strText) {
    constexpr std::size_t uWithoutAlpha = 7;
    if (strText.size() == uWithoutAlpha)
        strText += "FF";
    return strText.size() == uNormalisedLength ? strText : opaqueWhite;
}

std::string strFormatName(const std::string& strText) {
    for (const NamedColor& color : namedColors) {
        if (strText == color.name)
            return color.normalised;
    }
    return opaqueWhite;
}

bool fgStartsWith(const std::string& strText, const char* prefix) {
    return strText.rfind(prefix, 0) == 0;
}

} // namespace

bool fgConvertStrToInt(const std::string& strText, int iFirst, int iLast, int& iValue) {
    iValue = 0;
    for (long long i = iFirst; i <= iLast; ++i) {
        const bool fgInside = i >= 0 && static_cast<std::size_t>(i) < strText.size();
        const char character = fgInside ? strText[static_cast<std::size_t>(i)] : '\0';
        if (!fgIsDigit(character)) {
            iValue = iComponentMax;
            return false;
        }
        const int iDigit = character - '0';
        iValue = iValue > (INT_MAX - iDigit) / 10 ? INT_MAX : iValue * 10 + iDigit;
    }
    return true;
}

std::string strFormatColor(std::string& strText) {
    if (fgStartsWith(strText, "#"))
        return strFormatHash(strText);
    if (fgStartsWith(strText, "rgba"))
        return strFormatFunction(strText, 4);
    if (fgStartsWith(strText, "rgb"))
        return strFormatFunction(strText, 3);
    return strFormatName(strText);
}

RgbaColor rMapColor(std::string& strText) {
    const std::string strNormalised = strFormatColor(strText);
    std::array<std::uint16_t, 4> components{};
    for (std::size_t i = 0; i < components.size(); ++i) {
        const int iHigh = iHexDigit(strNormalised[2 * i + 1]);
        const int iLow = iHexDigit(strNormalised[2 * i + 2]);
        if (iHigh < 0 || iLow < 0)
            return {};
        components[i] = static_cast<std::uint16_t>(16 * iHigh + iLow);
    }
    return {components[0], components[1], components[2], components[3]};
}
