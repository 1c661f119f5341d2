#include "runtime/number.h"

#include "runtime/whitespace.h"

#include <cstdlib>
#include <locale.h>
#include <utility>

namespace tessera {

namespace {

enum CharacterClass { SIGN, DIGIT, POINT, EXPONENT, OTHER };

enum State : signed char {
    START,
    AFTER_SIGN,
    INTEGER_DIGITS,
    BARE_POINT, // no digit before it
    FRACTION_DIGITS,
    DIGITS_AND_POINT,
    AFTER_EXPONENT_MARK,
    EXPONENT_SIGN,
    EXPONENT_DIGITS,
    REJECTED
};

constexpr State NEXT_STATE[][OTHER + 1] = {
    // sign, digit, point, exponent, other
    {AFTER_SIGN, INTEGER_DIGITS, BARE_POINT, REJECTED, REJECTED},
    {REJECTED, INTEGER_DIGITS, BARE_POINT, REJECTED, REJECTED},
    {REJECTED, INTEGER_DIGITS, DIGITS_AND_POINT, AFTER_EXPONENT_MARK, REJECTED},
    {REJECTED, FRACTION_DIGITS, REJECTED, REJECTED, REJECTED},
    {REJECTED, FRACTION_DIGITS, REJECTED, AFTER_EXPONENT_MARK, REJECTED},
    {REJECTED, FRACTION_DIGITS, REJECTED, AFTER_EXPONENT_MARK, REJECTED},
    {EXPONENT_SIGN, EXPONENT_DIGITS, REJECTED, REJECTED, REJECTED},
    {REJECTED, EXPONENT_DIGITS, REJECTED, REJECTED, REJECTED},
    {REJECTED, EXPONENT_DIGITS, REJECTED, REJECTED, REJECTED},
};

constexpr NumberKind KIND_AT_END[] = {
    NumberKind::NONE, NumberKind::NONE,    NumberKind::INTEGER,
    NumberKind::NONE, NumberKind::DECIMAL, NumberKind::DECIMAL,
    NumberKind::NONE, NumberKind::NONE,    NumberKind::FLOATING_POINT,
};

CharacterClass ClassOf(char c) {
    switch (c) {
    case '+':
    case '-':
        return SIGN;
    case '.':
        return POINT;
    case 'e':
    case 'E':
        return EXPONENT;
    default:
        return c >= '0' && c <= '9' ? DIGIT : OTHER;
    }
}

// The "C" locale is built into the C library: this allocates nothing and does not fail.
locale_t CLocale() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

} // namespace

LexicalNumber ClassifyNumber(std::string_view text) {
    State state = START;
    std::string copy;
    for (const char c : text) {
        const CharacterClass characterClass = ClassOf(c);
        const State next = NEXT_STATE[state][characterClass];
        if (next == REJECTED) {
            return {NumberKind::NONE, std::string()};
        }
        if (next == BARE_POINT || (state == DIGITS_AND_POINT && characterClass == EXPONENT)) {
            copy += '0';
        }
        copy += c;
        state = next;
    }
    if (state == DIGITS_AND_POINT) {
        copy += '0';
    }
    return {KIND_AT_END[state], std::move(copy)};
}

bool IsNumber(std::string_view text) {
    const std::string_view trimmed = TrimWhitespace(text);
    return SpecialDouble(trimmed) || ClassifyNumber(trimmed).kind != NumberKind::NONE;
}

ParsedInteger ParseInteger(std::string_view text) {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
    ParsedInteger result{0, true, false};
    if (!text.empty() && ClassOf(text.front()) == SIGN) {
        result.positive = text.front() == '+';
        text.remove_prefix(1);
    }
    for (const char c : text) {
        if (ClassOf(c) != DIGIT) {
            break;
        }
        const auto digit = static_cast<std::uint64_t>(c - '0');
        if (result.magnitude > (largest - digit) / 10) {
            result.overflow = true;
        }
        result.magnitude = result.magnitude * 10 + digit;
    }
    if (!result.overflow && result.magnitude == 0) {
        result.positive = true;
    }
    return result;
}

std::optional<double> SpecialDouble(std::string_view text) {
    using Limits = std::numeric_limits<double>;
    if (text == "NaN") {
        return Limits::quiet_NaN();
    }
    if (text == "INF") {
        return Limits::infinity();
    }
    if (text == "-INF") {
        return -Limits::infinity();
    }
    return std::nullopt;
}

std::optional<double> ParseDouble(std::string_view text) {
    const std::string_view trimmed = TrimWhitespace(text);
    if (const std::optional<double> special = SpecialDouble(trimmed)) {
        return special;
    }
    const LexicalNumber number = ClassifyNumber(trimmed);
    return number.kind == NumberKind::NONE ? std::nullopt
                                           : std::optional<double>(ReadDouble(number.text.c_str()));
}

double ReadDouble(const char* text) {
    return text == nullptr ? 0.0 : strtod_l(text, nullptr, CLocale());
}

} // namespace tessera
