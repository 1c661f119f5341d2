#include "runtime/number.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace tessera {

namespace {

constexpr int SIGNIFICANT_DIGITS = 15;

// The powers of ten that a double holds exactly.
constexpr double EXACT_POWERS[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// A positive number: its significant digits, the first of them in the place of 10^exponent.
struct Decimal {
    std::string digits;
    int exponent;
};

// The value with `exponent` + 1 digits before the point moved to 15 of them.
double ScaleToInteger(double value, int exponent) {
    const int power = SIGNIFICANT_DIGITS - 1 - exponent;
    return power < 0 ? value / EXACT_POWERS[-power] : value * EXACT_POWERS[power];
}

// Whether ScaleToInteger rounded its result up.
bool IsScaledTooHigh(double value, int exponent, double scaled) {
    const int power = SIGNIFICANT_DIGITS - 1 - exponent;
    const double error = power < 0 ? std::fma(-scaled, EXACT_POWERS[-power], value)
                                   : std::fma(value, EXACT_POWERS[power], -scaled);
    return error < 0;
}

// Halves are rounded up. The scaled value is rounded itself and may so have become a half, but never have
// passed one.
Decimal RoundByScaling(double value) {
    constexpr double fifteenDigits = 1e14;
    constexpr double sixteenDigits = 1e15;
    int exponent = static_cast<int>(std::floor(std::log10(value))); // one too high just below a power of ten
    exponent -= ScaleToInteger(value, exponent) < fifteenDigits ? 1 : 0;
    const double scaled = ScaleToInteger(value, exponent);
    double digits = std::floor(scaled + 0.5);
    digits -= digits - scaled == 0.5 && IsScaledTooHigh(value, exponent, scaled) ? 1 : 0;
    return {std::to_string(static_cast<std::uint64_t>(digits)), exponent + (digits < sixteenDigits ? 0 : 1)};
}

void PrintScientific(double value, char* first, char* last) {
#ifdef __cpp_lib_to_chars
    *std::to_chars(first, last, value, std::chars_format::scientific, SIGNIFICANT_DIGITS - 1).ptr = '\0';
#else
    std::snprintf(first, static_cast<std::size_t>(last - first), "%.*e", SIGNIFICANT_DIGITS - 1, value);
#endif
}

Decimal RoundByPrinting(double value) {
    char text[40];
    PrintScientific(value, text, std::end(text));
    Decimal decimal{std::string(), 0};
    const char* c = text;
    for (; *c != 'e'; ++c) {
        if (*c >= '0' && *c <= '9') { // what else stands there is the locale's decimal point
            decimal.digits += *c;
        }
    }
    decimal.exponent = std::atoi(c + 1);
    return decimal;
}

Decimal RoundToSignificantDigits(double value) {
    const bool canScale = value > 1e-7 && value < 1e36; // by a power of EXACT_POWERS
    return canScale ? RoundByScaling(value) : RoundByPrinting(value);
}

double ReadBack(const Decimal& decimal) {
    const int unit = decimal.exponent + 1 - static_cast<int>(decimal.digits.size());
    return ReadDouble((decimal.digits + "e" + std::to_string(unit)).c_str());
}

void DropTrailingZeros(std::string& digits) {
    digits.erase(digits.find_last_not_of('0') + 1);
}

// Only a subnormal number may be known by less digits than the 15 leave without their trailing zeros.
void DropNeedlessDigits(Decimal& decimal, double value) {
    for (Decimal shorter = decimal; shorter.digits.size() > 1; decimal = shorter) {
        shorter.digits.pop_back();
        if (ReadBack(shorter) != value) {
            return;
        }
    }
}

void AppendPlain(const Decimal& decimal, std::string& text) {
    const auto size = static_cast<int>(decimal.digits.size());
    const int pointPlace = decimal.exponent + 1;
    if (pointPlace <= 0) {
        text.append("0.").append(static_cast<std::size_t>(-pointPlace), '0').append(decimal.digits);
    } else if (pointPlace >= size) {
        text.append(decimal.digits).append(static_cast<std::size_t>(pointPlace - size), '0');
    } else {
        text.append(decimal.digits).insert(text.size() - static_cast<std::size_t>(size - pointPlace), 1, '.');
    }
}

} // namespace

std::string PrintDouble(double value) {
    if (std::isnan(value)) {
        return "NaN";
    }
    if (value == 0) {
        return "0";
    }
    std::string text(value < 0 ? "-" : "");
    const double magnitude = std::abs(value);
    if (std::isinf(magnitude)) {
        return text + "INF";
    }
    Decimal decimal = RoundToSignificantDigits(magnitude);
    DropTrailingZeros(decimal.digits);
    if (magnitude < std::numeric_limits<double>::min()) {
        DropNeedlessDigits(decimal, magnitude);
    }
    AppendPlain(decimal, text);
    return text;
}

std::string PrintDigits(std::uint64_t value, unsigned width) {
    std::string digits = std::to_string(value);
    if (digits.size() < width) {
        digits.insert(0, width - digits.size(), '0');
    }
    return digits;
}

std::string PrintFraction(std::uint64_t value, unsigned width) {
    if (value == 0) {
        return std::string();
    }
    std::string digits = PrintDigits(value, width);
    DropTrailingZeros(digits);
    return "." + digits;
}

} // namespace tessera
