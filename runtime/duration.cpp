#include "runtime/duration.h"

#include "runtime/calendar.h"
#include "runtime/checked_arithmetic.h"
#include "runtime/exceptions.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tessera {

namespace {

constexpr const char* DURATION = "duration";

// The dates of XML Schema Part 2, 3.2.6.2, between which the lengths of months differ most.
constexpr CalendarDate TELLING_DATES[] = {{1696, 9, 1}, {1697, 2, 1}, {1903, 3, 1}, {1903, 7, 1}};

// Where a duration leads from a date: a day and the ticks of that day.
std::pair<std::int64_t, std::int64_t> EndFrom(const CalendarDate& start, const Duration& duration) {
    const CalendarDate date = AddMonths(start, duration.YearMonthPart().TotalMonths());
    const std::int64_t ticks = duration.DayTimePart().Ticks();
    return {DayNumber(date) + FloorDivide(ticks, TICKS_PER_DAY), FloorModulo(ticks, TICKS_PER_DAY)};
}

} // namespace

YearMonthDuration::YearMonthDuration(std::int32_t years, std::int32_t months)
    : months_(CastNumber<std::int32_t>(std::int64_t{years} * 12 + months)) {}

YearMonthDuration YearMonthDuration::operator-() const {
    return YearMonthDuration(CheckedSubtract(0, months_, DURATION));
}

YearMonthDuration YearMonthDuration::operator+(const YearMonthDuration& other) const {
    return YearMonthDuration(CheckedAdd(months_, other.months_, DURATION));
}

YearMonthDuration YearMonthDuration::operator-(const YearMonthDuration& other) const {
    return YearMonthDuration(CheckedSubtract(months_, other.months_, DURATION));
}

DayTimeDuration::DayTimeDuration(std::int32_t days, std::int32_t hours, std::int32_t minutes,
                                 double seconds) {
    const std::int64_t totalMinutes = (std::int64_t{days} * 24 + hours) * 60 + minutes;
    const std::int64_t secondTicks = TruncateDouble<std::int64_t>(seconds * TICKS_PER_SECOND);
    ticks_ = CheckedAdd(CheckedMultiply(totalMinutes, TICKS_PER_MINUTE, DURATION), secondTicks, DURATION);
}

DayTimeDuration DayTimeDuration::operator-() const {
    return DayTimeDuration(CheckedSubtract(std::int64_t{0}, ticks_, DURATION));
}

DayTimeDuration DayTimeDuration::operator+(const DayTimeDuration& other) const {
    return DayTimeDuration(CheckedAdd(ticks_, other.ticks_, DURATION));
}

DayTimeDuration DayTimeDuration::operator-(const DayTimeDuration& other) const {
    return DayTimeDuration(CheckedSubtract(ticks_, other.ticks_, DURATION));
}

Duration::Duration(const YearMonthDuration& yearMonth, const DayTimeDuration& dayTime)
    : dayTime_(dayTime), yearMonth_(yearMonth) {
    if (IsNegative() && IsPositive()) {
        throw ValueNotRepresentableException(DURATION);
    }
}

bool Duration::IsNegative() const {
    return yearMonth_ < YearMonthDuration() || dayTime_ < DayTimeDuration();
}

bool Duration::IsPositive() const {
    return yearMonth_ > YearMonthDuration() || dayTime_ > DayTimeDuration();
}

Duration Duration::operator-() const {
    return Duration(-yearMonth_, -dayTime_);
}

bool Duration::operator==(const Duration& other) const {
    return dayTime_ == other.dayTime_ && yearMonth_ == other.yearMonth_;
}

bool Duration::operator<(const Duration& other) const {
    return std::all_of(std::begin(TELLING_DATES), std::end(TELLING_DATES), [&](const CalendarDate& start) {
        return EndFrom(start, *this) < EndFrom(start, other);
    });
}

} // namespace tessera
