#include "runtime/duration_text.h"

#include "runtime/exceptions.h"
#include "runtime/number.h"
#include "runtime/text_cursor.h"
#include "runtime/whitespace.h"

#include <iterator>

namespace tessera {

namespace {

constexpr unsigned FRACTION_DIGITS = 7;

// A length without its sign.
struct Magnitude {
    std::uint64_t months = 0;
    std::uint64_t ticks = 0;
};

// What a number before a designator counts: months or ticks.
struct Designator {
    char letter;
    std::uint64_t months;
    std::uint64_t ticks;
};

constexpr Designator DATE_DESIGNATORS[] = {{'Y', 12, 0}, {'M', 1, 0}, {'D', 0, TICKS_PER_DAY}};
constexpr Designator TIME_DESIGNATORS[] = {
    {'H', 0, TICKS_PER_HOUR}, {'M', 0, TICKS_PER_MINUTE}, {'S', 0, TICKS_PER_SECOND}};

std::uint64_t AbsoluteValue(std::int64_t value) {
    return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

bool AddProduct(std::uint64_t number, std::uint64_t unit, std::uint64_t& sum) {
    std::uint64_t product = 0;
    return !__builtin_mul_overflow(number, unit, &product) && !__builtin_add_overflow(sum, product, &sum);
}

// Reads a number with its fraction and its designator, which is `*next` or a later one, and moves `next`
// behind that.
bool TakePair(TextCursor& cursor, const Designator*& next, const Designator* end, Magnitude& magnitude) {
    std::uint64_t number = 0;
    std::int64_t fraction = 0;
    if (!cursor.TakeNumber(number)) {
        return false;
    }
    const bool hasFraction = cursor.Take('.');
    if (hasFraction && !cursor.TakeFraction(FRACTION_DIGITS, fraction)) {
        return false;
    }
    while (next != end && !cursor.Take(next->letter)) {
        ++next;
    }
    if (next == end || (hasFraction && next->letter != 'S')) {
        return false;
    }
    const Designator& designator = *next++;
    return AddProduct(number, designator.months, magnitude.months) &&
           AddProduct(number, designator.ticks, magnitude.ticks) &&
           AddProduct(1, static_cast<std::uint64_t>(fraction), magnitude.ticks);
}

template <std::size_t size>
bool TakePairs(TextCursor& cursor, const Designator (&designators)[size], Magnitude& magnitude) {
    const Designator* next = designators;
    while (cursor.AtDigit()) {
        if (!TakePair(cursor, next, std::end(designators), magnitude)) {
            return false;
        }
    }
    return true;
}

bool TakeMagnitude(TextCursor& cursor, Magnitude& magnitude) {
    if (!cursor.Take('P') || !(cursor.AtDigit() || cursor.Peek() == 'T') ||
        !TakePairs(cursor, DATE_DESIGNATORS, magnitude)) {
        return false;
    }
    return !cursor.Take('T') || (cursor.AtDigit() && TakePairs(cursor, TIME_DESIGNATORS, magnitude));
}

std::string PrintPair(std::uint64_t number, const char* designator) {
    return number == 0 ? std::string() : std::to_string(number) + designator;
}

std::string PrintMonths(std::uint64_t months) {
    return PrintPair(months / 12, "Y") + PrintPair(months % 12, "M");
}

std::string PrintSecondPart(std::uint64_t ticks) {
    const std::uint64_t seconds = ticks / TICKS_PER_SECOND;
    return ticks == 0
               ? std::string()
               : std::to_string(seconds) + PrintFraction(ticks % TICKS_PER_SECOND, FRACTION_DIGITS) + "S";
}

std::string PrintTicks(std::uint64_t ticks) {
    const std::string days = PrintPair(ticks / TICKS_PER_DAY, "D");
    const std::string time = PrintPair(ticks % TICKS_PER_DAY / TICKS_PER_HOUR, "H") +
                             PrintPair(ticks % TICKS_PER_HOUR / TICKS_PER_MINUTE, "M") +
                             PrintSecondPart(ticks % TICKS_PER_MINUTE);
    return time.empty() ? days : days + "T" + time;
}

} // namespace

std::string PrintDuration(const YearMonthDuration& value) {
    const std::int32_t months = value.TotalMonths();
    return (months < 0 ? "-P" : "P") + (months == 0 ? "0M" : PrintMonths(AbsoluteValue(months)));
}

std::string PrintDuration(const DayTimeDuration& value) {
    return PrintDuration(YearMonthDuration(), value);
}

std::string PrintDuration(const YearMonthDuration& yearMonth, const DayTimeDuration& dayTime) {
    const std::int32_t months = yearMonth.TotalMonths();
    const std::int64_t ticks = dayTime.Ticks();
    if ((months < 0 && ticks > 0) || (months > 0 && ticks < 0)) {
        throw ValueNotRepresentableException("duration",
                                             "Sign of year month part differs from sign of day time part.");
    }
    const std::string parts = PrintMonths(AbsoluteValue(months)) + PrintTicks(AbsoluteValue(ticks));
    return (months < 0 || ticks < 0 ? "-P" : "P") + (parts.empty() ? "T0S" : parts);
}

bool TryParseDuration(std::string_view text, Duration& result) {
    TextCursor cursor(TrimLeadingWhitespace(text));
    const bool isPositive = !cursor.Take('-');
    Magnitude magnitude;
    if (!TakeMagnitude(cursor, magnitude) || !cursor.AtEnd()) {
        return false;
    }
    const auto months = IntegerFromMagnitude<std::int32_t>(magnitude.months, isPositive);
    const auto ticks = IntegerFromMagnitude<std::int64_t>(magnitude.ticks, isPositive);
    if (!months || !ticks) {
        return false;
    }
    result = Duration(YearMonthDuration(*months), DayTimeDuration(*ticks));
    return true;
}

} // namespace tessera
