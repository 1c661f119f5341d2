// Numbers in text: classify, parse, print. The decimal point is "." whatever the process's locale is.
#ifndef XTTML_RUNTIME_NUMBER_H
#define XTTML_RUNTIME_NUMBER_H

#include "runtime/exceptions.h"
#include "runtime/parsed_integer.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace tessera {

/// What a text is as a number.
enum class NumberKind {
    NONE = 0,          ///< not a number
    INTEGER = 1,       ///< an optional sign and digits
    DECIMAL = 2,       ///< with a point
    FLOATING_POINT = 3 ///< with an exponent
};

/// A classified text with its normalised copy: a point always has a digit on both sides (".5" becomes
/// "0.5", "5." "5.0" and "5.e3" "5.0e3"). The copy means nothing when `kind` is NONE.
struct LexicalNumber {
    NumberKind kind;
    std::string text;
};

/// Classifies a text that has been trimmed already; white space anywhere makes it no number.
LexicalNumber ClassifyNumber(std::string_view text);

/// As CoreTypes::IsNumber: one of "NaN", "INF", "-INF" or whatever classifies as a number.
bool IsNumber(std::string_view text);

/// As CoreTypes::ParseInteger; the normalised copy of a text of kind INTEGER is read whole.
ParsedInteger ParseInteger(std::string_view text);

/// The integer of a magnitude and a sign, or nothing when `Integer` cannot hold it.
template <class Integer>
std::optional<Integer> IntegerFromMagnitude(std::uint64_t magnitude, bool positive);

/// The value of "NaN", "INF" and "-INF"; nothing for any other text.
std::optional<double> SpecialDouble(std::string_view text);

/// The XML Schema double in a text, white space around it allowed: "NaN", "INF", "-INF" or a number; too
/// large becomes infinite, too small 0. Nothing when the text is not a number.
std::optional<double> ParseDouble(std::string_view text);

/// What C's atof reads in the "C" locale: skips leading white space, stops at the first character that
/// cannot continue the number, 0 when there is none. Null reads as 0.
double ReadDouble(const char* text);

/// The XML Schema name of a numeric type, as the messages of OutOfRangeException give it.
template <class Number>
constexpr const char* TypeName();

/// Truncates toward zero. A value outside the range of `Integer`, and NaN, throws OutOfRangeException from
/// "double".
template <class Integer>
Integer TruncateDouble(double value);

/// The value in another type: an integer unchanged, a floating-point number truncated toward zero. Throws
/// OutOfRangeException when it is outside the range of `Integer`.
template <class Integer, class Number>
Integer CastNumber(Number value);

/// As CoreTypes::CastToString.
std::string PrintDouble(double value);

/// An integer's decimal digits, "-" before a negative one; a floating-point number as PrintDouble prints it.
template <class Number>
std::string PrintNumber(Number value);

/// As CoreTypes::FormatNumber.
std::string PrintDigits(std::uint64_t value, unsigned width);

/// As CoreTypes::FormatFraction.
std::string PrintFraction(std::uint64_t value, unsigned width);

template <class Number>
constexpr const char* TypeName() {
    if constexpr (std::is_floating_point_v<Number>) {
        return "double";
    } else if constexpr (sizeof(Number) == 8) {
        return std::is_signed_v<Number> ? "long" : "unsignedLong";
    } else {
        return std::is_signed_v<Number> ? "int" : "unsignedInt";
    }
}

template <class Integer>
std::optional<Integer> IntegerFromMagnitude(std::uint64_t magnitude, bool positive) {
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<Integer>::max());
    if (positive) {
        return magnitude <= largest ? std::optional<Integer>(static_cast<Integer>(magnitude)) : std::nullopt;
    }
    constexpr std::uint64_t lowest = std::is_signed_v<Integer> ? largest + 1 : 0;
    return magnitude <= lowest ? std::optional<Integer>(static_cast<Integer>(0 - magnitude)) : std::nullopt;
}

template <class Integer>
Integer TruncateDouble(double value) {
    using Limits = std::numeric_limits<Integer>;
    constexpr double end = 2.0 * static_cast<double>(std::uint64_t(1) << (Limits::digits - 1));
    // The largest 64-bit integers round up to `end` as a double, hence both upper bounds.
    const bool fits = value >= static_cast<double>(Limits::min()) && value < end &&
                      value <= static_cast<double>(Limits::max());
    if (!fits) {
        throw OutOfRangeException("double", TypeName<Integer>(), PrintDouble(value));
    }
    return static_cast<Integer>(value);
}

template <class Integer, class Number>
Integer CastNumber(Number value) {
    if constexpr (std::is_floating_point_v<Number>) {
        return TruncateDouble<Integer>(value);
    } else {
        const bool isPositive = value >= 0;
        const auto bits = static_cast<std::uint64_t>(value);
        const auto result = IntegerFromMagnitude<Integer>(isPositive ? bits : 0 - bits, isPositive);
        if (!result) {
            throw OutOfRangeException(TypeName<Number>(), TypeName<Integer>(), PrintNumber(value));
        }
        return *result;
    }
}

template <class Number>
std::string PrintNumber(Number value) {
    if constexpr (std::is_floating_point_v<Number>) {
        return PrintDouble(value);
    } else {
        return std::to_string(value);
    }
}

} // namespace tessera

#endif
