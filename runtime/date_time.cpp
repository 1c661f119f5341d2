#include "runtime/date_time.h"

#include "runtime/calendar.h"
#include "runtime/checked_arithmetic.h"
#include "runtime/date_time_text.h"
#include "runtime/exceptions.h"

#include <limits>
#include <optional>

namespace tessera {

namespace {

constexpr const char* DATE_TIME = "dateTime";

// The offset that a value without a timezone may have at most, in minutes (XML Schema Part 2, 3.2.7.4).
constexpr std::int64_t LARGEST_OFFSET = std::int64_t{14} * 60;

CalendarDate DateOf(std::int64_t value) {
    return DateOfDay(FloorDivide(value, TICKS_PER_DAY));
}

// Monday is 0; so was 0001-01-01.
std::int64_t Weekday(std::int64_t dayNumber) {
    return FloorModulo(dayNumber, 7);
}

std::int64_t ToUtc(std::int64_t value, std::int64_t offset) {
    std::int64_t result = 0;
    if (__builtin_sub_overflow(value, offset * TICKS_PER_MINUTE, &result)) {
        using Limits = std::numeric_limits<std::int64_t>;
        return value < 0 ? Limits::min() : Limits::max();
    }
    return result;
}

void Require(bool condition, const char* message) {
    if (!condition) {
        throw InvalidArgumentException(message);
    }
}

// The ticks of a time of day (up to 24:00), or nothing when they do not fit.
std::optional<std::int64_t> TicksAt(std::int64_t day, std::int64_t timeOfDay) {
    if (day < 0) { // counted from the end of the day: the first day's midnight is out of reach
        ++day;
        timeOfDay -= TICKS_PER_DAY;
    }
    std::int64_t ticks = 0;
    const bool overflows = __builtin_mul_overflow(day, TICKS_PER_DAY, &ticks) ||
                           __builtin_add_overflow(ticks, timeOfDay, &ticks);
    return overflows ? std::nullopt : std::optional<std::int64_t>(ticks);
}

DateTime MoveMonths(const DateTime& time, std::int64_t months) {
    const std::int64_t day = DayNumber(AddMonths(DateOf(time.Value()), months));
    const std::optional<std::int64_t> ticks = TicksAt(day, time.TimeOfDay());
    if (!ticks) {
        throw OutOfRangeException(DATE_TIME, DATE_TIME,
                                  PrintDateTime(time) + " + " + std::to_string(months) + " months");
    }
    return DateTime(*ticks, time.Timezone());
}

} // namespace

DateTime::DateTime(std::int32_t year, std::uint8_t month, std::uint8_t day, std::uint8_t hour,
                   std::uint8_t minute, double second, std::int16_t timezone)
    : DateTime(Init(year, month, day, hour, minute, second), timezone) {}

std::int64_t DateTime::Init(std::int32_t year, std::uint8_t month, std::uint8_t day, std::uint8_t hour,
                            std::uint8_t minute, double second) {
    constexpr std::int64_t invalid = -1;
    const bool fits = second >= 0 && second < 60 && (hour < 24 || second == 0);
    return InitFromTicks(year, month, day, hour, minute,
                         fits ? static_cast<std::int64_t>(second * TICKS_PER_SECOND) : invalid);
}

std::int64_t DateTime::InitFromTicks(std::int32_t year, std::uint8_t month, std::uint8_t day,
                                     std::uint8_t hour, std::uint8_t minute, std::int64_t secondTicks) {
    Require(month >= 1 && month <= 12, "month out of range");
    Require(day >= 1 && day <= DaysInMonth(year, month), "day out of range");
    Require(hour <= 24, "hour out of range");
    Require(minute < 60 && (hour < 24 || minute == 0), "minute out of range");
    Require(secondTicks >= 0 && secondTicks < TICKS_PER_MINUTE && (hour < 24 || secondTicks == 0),
            "second out of range");
    const std::int64_t timeOfDay = hour * TICKS_PER_HOUR + minute * TICKS_PER_MINUTE + secondTicks;
    const std::optional<std::int64_t> value = TicksAt(DayNumber({year, month, day}), timeOfDay);
    Require(value.has_value(), "year out of range");
    return *value;
}

bool DateTime::IsLeapYear(std::int32_t year) {
    return tessera::IsLeapYear(year);
}

void DateTime::GetDateFromTimeValue(std::int64_t value, std::int32_t& year, std::uint8_t& month,
                                    std::uint8_t& day) {
    const CalendarDate date = DateOf(value);
    year = static_cast<std::int32_t>(date.year);
    month = static_cast<std::uint8_t>(date.month);
    day = static_cast<std::uint8_t>(date.day);
}

std::int32_t DateTime::Year() const {
    return static_cast<std::int32_t>(DateOf(value_).year);
}

std::uint8_t DateTime::Month() const {
    return static_cast<std::uint8_t>(DateOf(value_).month);
}

std::uint8_t DateTime::Day() const {
    return static_cast<std::uint8_t>(DateOf(value_).day);
}

std::uint8_t DateTime::Hour() const {
    return static_cast<std::uint8_t>(TimeOfDay() / TICKS_PER_HOUR);
}

std::uint8_t DateTime::Minute() const {
    return static_cast<std::uint8_t>(TimeOfDay() % TICKS_PER_HOUR / TICKS_PER_MINUTE);
}

double DateTime::Second() const {
    return static_cast<double>(TimeOfDay() % TICKS_PER_MINUTE) / TICKS_PER_SECOND;
}

std::int64_t DateTime::TimeOfDay() const {
    return FloorModulo(value_, TICKS_PER_DAY);
}

std::uint16_t DateTime::DayOfYear() const {
    const std::int64_t day = FloorDivide(value_, TICKS_PER_DAY);
    return static_cast<std::uint16_t>(day - DayNumber({DateOfDay(day).year, 1, 1}) + 1);
}

std::uint8_t DateTime::WeekOfMonth() const {
    const CalendarDate date = DateOf(value_);
    const std::int64_t firstWeekday = Weekday(DayNumber({date.year, date.month, 1}));
    return static_cast<std::uint8_t>((date.day - 1 + firstWeekday) / 7 + 1);
}

std::uint8_t DateTime::Weeknumber() const {
    const std::int64_t day = FloorDivide(value_, TICKS_PER_DAY);
    const std::int64_t thursday = day - Weekday(day) + 3;
    return static_cast<std::uint8_t>((thursday - DayNumber({DateOfDay(thursday).year, 1, 1})) / 7 + 1);
}

std::int64_t DateTime::NormalizedValue() const {
    return HasTimezone() ? ToUtc(value_, timezone_) : value_;
}

DateTime DateTime::operator+(const DayTimeDuration& duration) const {
    return DateTime(CheckedAdd(value_, duration.Ticks(), DATE_TIME), timezone_);
}

DateTime DateTime::operator-(const DayTimeDuration& duration) const {
    return DateTime(CheckedSubtract(value_, duration.Ticks(), DATE_TIME), timezone_);
}

DateTime DateTime::operator+(const YearMonthDuration& duration) const {
    return MoveMonths(*this, duration.TotalMonths());
}

DateTime DateTime::operator-(const YearMonthDuration& duration) const {
    return MoveMonths(*this, -std::int64_t{duration.TotalMonths()});
}

DateTime DateTime::operator+(const Duration& duration) const {
    return *this + duration.YearMonthPart() + duration.DayTimePart();
}

DateTime DateTime::operator-(const Duration& duration) const {
    return *this - duration.YearMonthPart() - duration.DayTimePart();
}

DayTimeDuration DateTime::operator-(const DateTime& other) const {
    return DayTimeDuration(CheckedSubtract(NormalizedValue(), other.NormalizedValue(), "duration"));
}

bool DateTime::operator==(const DateTime& other) const {
    return HasTimezone() == other.HasTimezone() && NormalizedValue() == other.NormalizedValue();
}

bool DateTime::operator<(const DateTime& other) const {
    if (HasTimezone() == other.HasTimezone()) {
        return NormalizedValue() < other.NormalizedValue();
    }
    return HasTimezone() ? NormalizedValue() < ToUtc(other.value_, LARGEST_OFFSET)
                         : ToUtc(value_, -LARGEST_OFFSET) < other.NormalizedValue();
}

} // namespace tessera
