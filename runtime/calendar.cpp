#include "runtime/calendar.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr std::int64_t DAYS_PER_YEAR = 365;
constexpr std::int64_t DAYS_PER_4_YEARS = 4 * DAYS_PER_YEAR + 1;
constexpr std::int64_t DAYS_PER_100_YEARS = 25 * DAYS_PER_4_YEARS - 1;
constexpr std::int64_t DAYS_PER_400_YEARS = 4 * DAYS_PER_100_YEARS + 1;

constexpr int DAYS_BEFORE_MONTH[2][13] = {{0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365},
                                          {0, 31, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335, 366}};

// Takes whole periods out of `days`, `most` of them at most: the last one may be a day longer.
std::int64_t TakePeriods(std::int64_t& days, std::int64_t period, std::int64_t most) {
    const std::int64_t count = std::min(days / period, most);
    days -= count * period;
    return count;
}

} // namespace

bool IsLeapYear(std::int64_t year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysInMonth(std::int64_t year, int month) {
    const int* before = DAYS_BEFORE_MONTH[IsLeapYear(year)];
    return before[month] - before[month - 1];
}

std::int64_t DayNumber(const CalendarDate& date) {
    const std::int64_t years = date.year - 1;
    const std::int64_t leapDays = FloorDivide(years, 4) - FloorDivide(years, 100) + FloorDivide(years, 400);
    return years * DAYS_PER_YEAR + leapDays + DAYS_BEFORE_MONTH[IsLeapYear(date.year)][date.month - 1] +
           date.day - 1;
}

CalendarDate DateOfDay(std::int64_t dayNumber) {
    std::int64_t days = FloorModulo(dayNumber, DAYS_PER_400_YEARS);
    std::int64_t year = 1 + 400 * FloorDivide(dayNumber, DAYS_PER_400_YEARS);
    year += 100 * TakePeriods(days, DAYS_PER_100_YEARS, 3);
    year += 4 * TakePeriods(days, DAYS_PER_4_YEARS, 24);
    year += TakePeriods(days, DAYS_PER_YEAR, 3);
    const int* before = DAYS_BEFORE_MONTH[IsLeapYear(year)];
    const int* next = std::upper_bound(before, before + 12, static_cast<int>(days));
    return {year, static_cast<int>(next - before), static_cast<int>(days) - next[-1] + 1};
}

CalendarDate AddMonths(const CalendarDate& date, std::int64_t months) {
    const std::int64_t total = date.year * 12 + date.month - 1 + months;
    const std::int64_t year = FloorDivide(total, 12);
    const int month = static_cast<int>(FloorModulo(total, 12)) + 1;
    return {year, month, std::min(date.day, DaysInMonth(year, month))};
}

} // namespace tessera
