#include "runtime/date_time_text.h"

#include "runtime/number.h"
#include "runtime/text_cursor.h"
#include "runtime/whitespace.h"

#include <cstdlib>

namespace tessera {

namespace {

constexpr unsigned FRACTION_DIGITS = 7; // of a second in ticks, and of a day
constexpr std::uint64_t FRACTIONS_PER_DAY = 10000000;

constexpr unsigned ALLOW_ANY_DATE = ALLOW_YEAR | ALLOW_MONTH | ALLOW_DAY;

std::string TwoDigits(int value) {
    return PrintDigits(static_cast<std::uint64_t>(value), 2);
}

std::string YearText(const DateTime& value) {
    const std::int32_t year = value.Year();
    return (year < 0 ? "-" : "") + PrintDigits(static_cast<std::uint64_t>(std::abs(year)), 4);
}

std::string DateText(const DateTime& value) {
    return YearText(value) + "-" + TwoDigits(value.Month()) + "-" + TwoDigits(value.Day());
}

std::string TimeText(const DateTime& value) {
    const auto ticks = static_cast<std::uint64_t>(value.TimeOfDay() % TICKS_PER_MINUTE);
    return TwoDigits(value.Hour()) + ":" + TwoDigits(value.Minute()) + ":" +
           PrintDigits(ticks / TICKS_PER_SECOND, 2) +
           PrintFraction(ticks % TICKS_PER_SECOND, FRACTION_DIGITS);
}

std::string ZoneText(const DateTime& value) {
    return PrintTimezone(value.Timezone());
}

// The tick count in another unit, sign before the magnitude.
std::string CountText(const DateTime& value, std::uint64_t ticksPerUnit) {
    const bool isNegative = value.Value() < 0;
    const auto ticks = static_cast<std::uint64_t>(value.Value());
    const std::uint64_t magnitude = isNegative ? 0 - ticks : ticks;
    const std::uint64_t fraction = magnitude % ticksPerUnit * FRACTIONS_PER_DAY / ticksPerUnit;
    return (isNegative ? "-" : "") + std::to_string(magnitude / ticksPerUnit) +
           PrintFraction(fraction, FRACTION_DIGITS);
}

// A text's fields before their ranges are checked, and which of them it has (the ALLOW bits).
struct Fields {
    unsigned present = 0;
    int year = 1;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    std::int64_t secondTicks = 0;
    int timezone = DateTime::NO_TIMEZONE;
};

bool TakeYear(TextCursor& cursor, Fields& fields) {
    constexpr int farBeyond = 1000000; // no DateTime reaches it, so more digits change nothing
    if (!cursor.TakeDigits(4, fields.year)) {
        return false;
    }
    const bool mayBeLonger = fields.year >= 1000;
    for (int digit = 0; mayBeLonger && cursor.TakeDigit(digit);) {
        fields.year = fields.year < farBeyond ? fields.year * 10 + digit : fields.year;
    }
    fields.present |= ALLOW_YEAR;
    return true;
}

bool TakeDay(TextCursor& cursor, Fields& fields) {
    fields.present |= ALLOW_DAY;
    return cursor.Take('-') && cursor.TakeDigits(2, fields.day);
}

bool TakeMonthAndDay(TextCursor& cursor, Fields& fields) {
    cursor.Take('-');
    if (cursor.Peek() == '-') {
        return TakeDay(cursor, fields);
    }
    fields.present |= ALLOW_MONTH;
    return cursor.TakeDigits(2, fields.month) && (cursor.Peek() != '-' || TakeDay(cursor, fields));
}

bool TakeDate(TextCursor& cursor, Fields& fields) {
    const bool hasSign = cursor.Take('-');
    if (cursor.Peek() == '-') {
        fields.year = 4; // a leap year, so that every day of a month is valid
        return TakeMonthAndDay(cursor, fields);
    }
    if (!TakeYear(cursor, fields)) {
        return false;
    }
    fields.year = hasSign ? -fields.year : fields.year;
    return cursor.Peek() != '-' || TakeMonthAndDay(cursor, fields);
}

bool TakeTime(TextCursor& cursor, Fields& fields) {
    int second = 0;
    std::int64_t fraction = 0;
    fields.present |= ALLOW_TIME;
    const bool isTaken = cursor.TakeDigits(2, fields.hour) && cursor.Take(':') &&
                         cursor.TakeDigits(2, fields.minute) && cursor.Take(':') &&
                         cursor.TakeDigits(2, second) &&
                         (!cursor.Take('.') || cursor.TakeFraction(FRACTION_DIGITS, fraction));
    fields.secondTicks = second * TICKS_PER_SECOND + fraction;
    return isTaken;
}

bool TakeTimezone(TextCursor& cursor, Fields& fields) {
    if (cursor.Take('Z')) {
        fields.timezone = 0;
        return true;
    }
    const bool isWest = cursor.Peek() == '-';
    if (!cursor.Take('+') && !cursor.Take('-')) {
        return true;
    }
    int hours = 0;
    int minutes = 0;
    const bool isTaken = cursor.TakeDigits(2, hours) && cursor.Take(':') && cursor.TakeDigits(2, minutes);
    fields.timezone = (isWest ? -1 : 1) * (hours * 60 + minutes);
    return isTaken;
}

bool TakeFields(TextCursor& cursor, unsigned allowed, Fields& fields) {
    if (cursor.Peek(2) == ':') {
        return TakeTime(cursor, fields) && TakeTimezone(cursor, fields);
    }
    return (allowed & ALLOW_ANY_DATE) != 0 && TakeDate(cursor, fields) &&
           (!cursor.Take('T') || TakeTime(cursor, fields)) && TakeTimezone(cursor, fields);
}

} // namespace

std::string PrintDateTime(const DateTime& value) {
    return DateText(value) + "T" + TimeText(value) + ZoneText(value);
}

std::string PrintDate(const DateTime& value) {
    return DateText(value) + ZoneText(value);
}

std::string PrintTime(const DateTime& value) {
    return TimeText(value) + ZoneText(value);
}

std::string PrintGYear(const DateTime& value) {
    return YearText(value) + ZoneText(value);
}

std::string PrintGYearMonth(const DateTime& value) {
    return YearText(value) + "-" + TwoDigits(value.Month()) + ZoneText(value);
}

std::string PrintGMonth(const DateTime& value) {
    return "--" + TwoDigits(value.Month()) + ZoneText(value);
}

std::string PrintGMonthDay(const DateTime& value) {
    return "--" + TwoDigits(value.Month()) + "-" + TwoDigits(value.Day()) + ZoneText(value);
}

std::string PrintGDay(const DateTime& value) {
    return "---" + TwoDigits(value.Day()) + ZoneText(value);
}

std::string PrintDateSpaceTime(const DateTime& value) {
    return DateText(value) + " " + TimeText(value) + ZoneText(value);
}

std::string PrintSeconds(const DateTime& value) {
    return CountText(value, TICKS_PER_SECOND) + ZoneText(value);
}

std::string PrintDays(const DateTime& value) {
    return CountText(value, TICKS_PER_DAY) + ZoneText(value);
}

std::string PrintTimezone(std::int16_t minutes) {
    if (minutes == DateTime::NO_TIMEZONE) {
        return std::string();
    }
    if (minutes == 0) {
        return "Z";
    }
    const int magnitude = std::abs(minutes);
    return (minutes < 0 ? "-" : "+") + TwoDigits(magnitude / 60) + ":" + TwoDigits(magnitude % 60);
}

bool TryParseDateTime(std::string_view text, unsigned parts, DateTime& result) {
    constexpr std::size_t shortestLength = 3;
    const std::string_view trimmed = TrimWhitespace(text);
    const unsigned required = (parts << 4) & ALLOW_ALL;
    const unsigned allowed = (parts & ALLOW_ALL) | required;
    TextCursor cursor(trimmed);
    Fields fields;
    if (trimmed.size() < shortestLength || !TakeFields(cursor, allowed, fields) || !cursor.AtEnd()) {
        return false;
    }
    if ((fields.present & ~allowed) != 0 || (required & ~fields.present) != 0) {
        return false;
    }
    const std::int64_t value = DateTime::InitFromTicks(
        fields.year, static_cast<std::uint8_t>(fields.month), static_cast<std::uint8_t>(fields.day),
        static_cast<std::uint8_t>(fields.hour), static_cast<std::uint8_t>(fields.minute), fields.secondTicks);
    result = DateTime(value, static_cast<std::int16_t>(fields.timezone));
    return true;
}

} // namespace tessera
