// Any text as a length, a pair of lengths, a number and a colour.
#include "fuzz/choices.h"
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "style/color.h"
#include "style/length.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <optional>

namespace {

struct Length {
    float value;
    length_unit_e unit;
};

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Takes digits from the front of a text, with a point among them, and gives what they say.
std::optional<float> TakeNumber(std::string& text) {
    std::size_t end = 0;
    while (end < text.size() && IsDigit(text[end]))
        ++end;
    const std::size_t point = end;
    if (end > 0 && end < text.size() && text[end] == '.') {
        ++end;
        while (end < text.size() && IsDigit(text[end]))
            ++end;
    }
    if (point == 0 || end == point + 1)
        return std::nullopt;
    const std::string number = text.substr(0, end);
    text.erase(0, end);
    return std::strtof(number.c_str(), nullptr);
}

/// Takes a length from the front of a text, as a grammar of its own reads it.
std::optional<Length> TakeLength(std::string& text) {
    constexpr struct {
        const char* name;
        length_unit_e unit;
    } units[] = {
        {"px", LENGTH_UNIT_PX}, {"em", LENGTH_UNIT_EM}, {"c", LENGTH_UNIT_C}, {"%", LENGTH_UNIT_PERCENT}};
    const std::optional<float> value = TakeNumber(text);
    for (const auto& unit : units) {
        if (value && text.rfind(unit.name, 0) == 0) {
            text.erase(0, std::string(unit.name).size());
            return Length{*value, unit.unit};
        }
    }
    return std::nullopt;
}

/// Rounding to double first may end one float beside rounding at once.
bool IsNear(float a, float b) {
    return a == b || (a - b <= b * 2e-7F && b - a <= b * 2e-7F);
}

void RequireLength(const std::string& text) {
    Length read = {-1, LENGTH_UNIT_EM};
    const bool isRead = fgGetLength(text, read.value, read.unit);
    std::string rest = text;
    const std::optional<Length> expected = TakeLength(rest);
    Require(isRead == (expected && rest.empty()), "a length is a number and a unit");
    Require(read.unit == (isRead ? expected->unit : LENGTH_UNIT_NONE), "the unit of a length");
    Require(IsNear(read.value, isRead ? expected->value : 0), "the number of a length");
    const std::uint32_t pixels = uWholePixels(read.value);
    Require(static_cast<double>(pixels) <= static_cast<double>(read.value), "pixels are truncated");
    Require(pixels == UINT32_MAX || static_cast<double>(read.value) < static_cast<double>(pixels) + 1,
            "pixels are truncated by less than one");
}

void RequirePair(const std::string& text) {
    Length first = {-1, LENGTH_UNIT_EM};
    float second = -1;
    const bool isRead = fgGetDoubleLength(text, first.value, second, first.unit);
    std::string rest = text;
    const std::optional<Length> expectedFirst = TakeLength(rest);
    const bool isSeparated = !rest.empty() && std::string(" \t\n\v\f\r").find(rest[0]) != std::string::npos;
    rest.erase(0, 1);
    const std::optional<Length> expectedSecond = TakeLength(rest);
    const bool isPair = expectedFirst && isSeparated && expectedSecond && rest.empty() &&
                        expectedFirst->unit == expectedSecond->unit &&
                        (expectedFirst->unit == LENGTH_UNIT_PX || expectedFirst->unit == LENGTH_UNIT_PERCENT);
    Require(isRead == isPair, "a pair is two lengths of one unit");
    Require(first.unit == (isRead ? expectedFirst->unit : LENGTH_UNIT_NONE), "the unit of a pair");
    Require(IsNear(first.value, isRead ? expectedFirst->value : 0), "the first number of a pair");
    Require(IsNear(second, isRead ? expectedSecond->value : 0), "the second number of a pair");
}

void RequireInteger(const std::string& text, int first, int last) {
    int value = -1;
    const bool isRead = fgConvertStrToInt(text, first, last, value);
    bool isNumber = true;
    long long expected = 0;
    for (int i = first; i <= last && isNumber; ++i) {
        isNumber =
            i >= 0 && static_cast<std::size_t>(i) < text.size() && IsDigit(text[static_cast<std::size_t>(i)]);
        if (isNumber && expected <= std::numeric_limits<int>::max())
            expected = expected * 10 + (text[static_cast<std::size_t>(i)] - '0');
    }
    Require(isRead == isNumber, "an integer is digits");
    Require(!isRead || value == std::min<long long>(expected, std::numeric_limits<int>::max()), "an integer");
    Require(isRead || value == 255, "what is no integer is 255");
}

void RequireColor(const std::string& text) {
    std::string given = text;
    std::string normalised = strFormatColor(given);
    Require(normalised.size() == 9 && normalised[0] == '#', "a colour has a normal form");
    Require(given == text || given == text + "FF", "a colour gains at most its alpha");
    const RgbaColor color = rMapColor(given);
    const RgbaColor same = rMapColor(normalised);
    for (const auto component :
         {&RgbaColor::uRed, &RgbaColor::uGreen, &RgbaColor::uBlue, &RgbaColor::uAlpha}) {
        Require(color.*component <= 255, "a component is a byte");
        Require(color.*component == same.*component, "a normal form is the same colour");
    }
}

void RequireComponentsReadBack(const RgbaColor& color) {
    std::string text = "rgba(" + std::to_string(color.uRed) + "," + std::to_string(color.uGreen) + "," +
                       std::to_string(color.uBlue) + "," + std::to_string(color.uAlpha) + ")";
    const RgbaColor read = rMapColor(text);
    Require(read.uRed == color.uRed && read.uGreen == color.uGreen && read.uBlue == color.uBlue &&
                read.uAlpha == color.uAlpha,
            "components read back");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Choices choices(bytes, size);
    RequireComponentsReadBack({choices.Byte(), choices.Byte(), choices.Byte(), choices.Byte()});
    const int first = static_cast<int>(choices.OneOf(40)) - 4;
    const int last = static_cast<int>(choices.OneOf(40)) - 4;
    const std::string rest = choices.Rest();
    const std::string text = rest.substr(0, rest.find('\0')); // a document holds no zero
    RequireLength(text);
    RequirePair(text);
    RequireInteger(text, first, last);
    RequireColor(text);
    fStr2Float(text);
    return 0;
}
