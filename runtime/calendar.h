// The proleptic Gregorian calendar as arithmetic on day numbers; year 0 is the year before year 1 (ISO 8601).
#ifndef XTTML_RUNTIME_CALENDAR_H
#define XTTML_RUNTIME_CALENDAR_H

#include <cstdint>

namespace tessera {

struct CalendarDate {
    std::int64_t year;
    int month; ///< 1 to 12
    int day;   ///< 1 to the length of the month
};

/// The quotient rounded down; `divisor` is positive.
constexpr std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor) {
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

/// What FloorDivide leaves over, 0 to `divisor` - 1.
constexpr std::int64_t FloorModulo(std::int64_t value, std::int64_t divisor) {
    const std::int64_t remainder = value % divisor;
    return remainder < 0 ? remainder + divisor : remainder;
}

bool IsLeapYear(std::int64_t year);

int DaysInMonth(std::int64_t year, int month);

/// Days since 0001-01-01; any year that 40 bits hold.
std::int64_t DayNumber(const CalendarDate& date);

/// The date of a day number.
CalendarDate DateOfDay(std::int64_t dayNumber);

/// The same day `months` later (earlier when negative), or that month's last day when it is too short.
CalendarDate AddMonths(const CalendarDate& date, std::int64_t months);

} // namespace tessera

#endif
