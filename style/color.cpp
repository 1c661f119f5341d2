#include "style/color.h"

#include "style/color_reading.h"

#include <climits>
#include <cstddef>
#include <optional>

namespace {

constexpr char opaqueWhite[] = "#FFFFFFFF";
constexpr std::size_t uNormalisedLength = 9;
constexpr std::size_t uLengthWithoutAlpha = 7;
constexpr int iComponentMax = 255;

struct NamedColor {
    const char* name;
    RgbaColor color;
};

constexpr NamedColor namedColors[] = {
    {"transparent", {0, 0, 0, 0}}, {"black", {0, 0, 0}},       {"silver", {192, 192, 192}},
    {"gray", {128, 128, 128}},     {"white", {255, 255, 255}}, {"maroon", {128, 0, 0}},
    {"red", {255, 0, 0}},          {"purple", {128, 0, 128}},  {"fuchsia", {255, 0, 255}},
    {"magenta", {255, 0, 255}},    {"green", {0, 128, 0}},     {"lime", {0, 255, 0}},
    {"olive", {128, 128, 0}},      {"yellow", {255, 255, 0}},  {"navy", {0, 0, 128}},
    {"blue", {0, 0, 255}},         {"teal", {0, 128, 128}},    {"aqua", {0, 255, 255}},
    {"cyan", {0, 255, 255}},
};

bool fgIsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool fgReadNumber(std::string_view strText, long long iFirst, long long iLast, int& iValue) {
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

/// The four components of a colour, to read and write by number.
constexpr std::uint16_t RgbaColor::*components[] = {&RgbaColor::uRed, &RgbaColor::uGreen, &RgbaColor::uBlue,
                                                    &RgbaColor::uAlpha};

/// The text of rgb(...) or rgba(...) with the given count of components; missing alpha is opaque.
std::optional<RgbaColor> ReadFunction(std::string_view strText, std::size_t uComponents) {
    std::size_t uBegin = strText.find('(');
    const std::size_t uClose = strText.find(')');
    if (uBegin == std::string_view::npos || uClose == std::string_view::npos || uBegin > uClose)
        return std::nullopt;
    RgbaColor color;
    for (std::size_t i = 0; i < uComponents; ++i) {
        ++uBegin;
        const std::size_t uEnd = i == uComponents - 1 ? uClose : strText.find(',', uBegin);
        if (uEnd == std::string_view::npos || uEnd > uClose)
            return std::nullopt;
        const std::string_view strNumber = strText.substr(uBegin, uEnd - uBegin);
        int iValue = 0;
        if (!fgReadNumber(strNumber, 0, static_cast<long long>(strNumber.size()) - 1, iValue) ||
            iValue > iComponentMax)
            return std::nullopt;
        color.*components[i] = static_cast<std::uint16_t>(iValue);
        uBegin = uEnd;
    }
    return color;
}

/// The text of # and six or eight hexadecimal digits.
std::optional<RgbaColor> ReadHash(std::string_view strText) {
    if (strText.size() != uLengthWithoutAlpha && strText.size() != uNormalisedLength)
        return std::nullopt;
    RgbaColor color;
    for (std::size_t i = 0; 2 * i + 2 < strText.size(); ++i) {
        const int iHigh = iHexDigit(strText[2 * i + 1]);
        const int iLow = iHexDigit(strText[2 * i + 2]);
        if (iHigh < 0 || iLow < 0)
            return std::nullopt;
        color.*components[i] = static_cast<std::uint16_t>(16 * iHigh + iLow);
    }
    return color;
}

std::optional<RgbaColor> ReadName(std::string_view strText) {
    for (const NamedColor& named : namedColors) {
        if (strText == named.name)
            return named.color;
    }
    return std::nullopt;
}

bool fgStartsWith(std::string_view strText, std::string_view strPrefix) {
    return strText.substr(0, strPrefix.size()) == strPrefix;
}

bool fgIsHash(std::string_view strText) {
    return fgStartsWith(strText, "#");
}

std::optional<RgbaColor> ReadAny(std::string_view strText) {
    if (fgIsHash(strText))
        return ReadHash(strText);
    if (fgStartsWith(strText, "rgba"))
        return ReadFunction(strText, 4);
    if (fgStartsWith(strText, "rgb"))
        return ReadFunction(strText, 3);
    return ReadName(strText);
}

/// "#rrggbb" becomes "#rrggbbFF".
void vCompleteHash(std::string& strText) {
    if (fgIsHash(strText) && strText.size() == uLengthWithoutAlpha)
        strText += "FF";
}

std::string strNormalised(const RgbaColor& color) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string strText = "#";
    for (const auto component : components) {
        strText += digits[color.*component / 16];
        strText += digits[color.*component % 16];
    }
    return strText;
}

} // namespace

bool fgConvertStrToInt(const std::string& strText, int iFirst, int iLast, int& iValue) {
    return fgReadNumber(strText, iFirst, iLast, iValue);
}

std::string strFormatColor(std::string& strText) {
    if (!fgIsHash(strText))
        return strNormalised(rReadColor(strText));
    vCompleteHash(strText);
    return strText.size() == uNormalisedLength ? strText : opaqueWhite;
}

RgbaColor rMapColor(std::string& strText) {
    vCompleteHash(strText);
    return rReadColor(strText);
}

RgbaColor rReadColor(std::string_view strText) noexcept {
    return ReadAny(strText).value_or(RgbaColor{});
}
