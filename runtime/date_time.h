// Dates and times of day (XML Schema Part 2, 3.2.7 to 3.2.14). CoreTypes reads and prints them.
//
// The calendar is the proleptic Gregorian one with the years counted as ISO 8601 and XML Schema 1.1 do:
// the year before 0001 is 0000, a leap year. It covers whatever 64 bits of ticks reach, from April of the
// year -29227 to September of 29228. Arithmetic that leaves it throws OutOfRangeException; nothing else here
// throws unless its comment says so.
#ifndef XTTML_RUNTIME_DATE_TIME_H
#define XTTML_RUNTIME_DATE_TIME_H

#include "runtime/duration.h"
#include "runtime/export.h"
#include "runtime/ordering.h"

#include <cstdint>

namespace tessera {

/// A point in local time with or without the offset of that local time from UTC.
///
/// Ordering follows XML Schema Part 2, 3.2.7.4: where only one of two values has a timezone they are never
/// equal, and one is less than the other only if it is so for every offset from -14:00 to +14:00.
class XTTML_API DateTime : PartialOrder<DateTime> {
public:
    /// The timezone of a value that has none.
    static constexpr std::int16_t NO_TIMEZONE = -32768;

    /// 0001-01-01T00:00:00 without a timezone.
    constexpr DateTime() = default;
    /// From ticks since 0001-01-01T00:00:00 local time and the offset from UTC in minutes.
    constexpr explicit DateTime(std::int64_t value, std::int16_t offset = NO_TIMEZONE)
        : value_(value), timezone_(offset) {}
    /// Throws as Init does. The timezone is the offset from UTC in minutes.
    DateTime(std::int32_t year, std::uint8_t month, std::uint8_t day, std::uint8_t hour, std::uint8_t minute,
             double second, std::int16_t timezone = NO_TIMEZONE);

    /// The ticks of a date and time since 0001-01-01T00:00:00; fractions of a tick are dropped.
    ///
    /// Throws InvalidArgumentException, the first that applies: "month out of range", "day out of range",
    /// "hour out of range" (0 to 24), "minute out of range" and "second out of range" (both 0 when the hour
    /// is 24), "year out of range" for what 64 bits of ticks do not reach.
    static std::int64_t Init(std::int32_t year, std::uint8_t month, std::uint8_t day, std::uint8_t hour,
                             std::uint8_t minute, double second);
    /// As Init, with the seconds of the minute counted in ticks.
    static std::int64_t InitFromTicks(std::int32_t year, std::uint8_t month, std::uint8_t day,
                                      std::uint8_t hour, std::uint8_t minute, std::int64_t secondTicks);

    /// Whether the year has a February 29.
    static bool IsLeapYear(std::int32_t year);

    /// The calendar date that a tick count falls on.
    static void GetDateFromTimeValue(std::int64_t value, std::int32_t& year, std::uint8_t& month,
                                     std::uint8_t& day);

    /// Ticks since 0001-01-01T00:00:00 in the value's own local time.
    constexpr std::int64_t Value() const { return value_; }
    /// Whether the offset from UTC is known.
    constexpr bool HasTimezone() const { return timezone_ != NO_TIMEZONE; }
    /// The offset from UTC in minutes, or NO_TIMEZONE.
    constexpr std::int16_t Timezone() const { return timezone_; }

    /// 0 and below for the years before 0001.
    std::int32_t Year() const;
    /// 1 to 12.
    std::uint8_t Month() const;
    /// 1 to the length of the month.
    std::uint8_t Day() const;
    /// 0 to 23; an hour of 24 has become 0 of the next day.
    std::uint8_t Hour() const;
    /// 0 to 59.
    std::uint8_t Minute() const;
    /// Seconds of the minute with the fraction.
    double Second() const;
    /// Ticks since the day's midnight.
    std::int64_t TimeOfDay() const;

    /// 1 to 366.
    std::uint16_t DayOfYear() const;
    /// 1 to 6: the line of a month's calendar whose weeks begin on Monday.
    std::uint8_t WeekOfMonth() const;
    /// 1 to 53: the week of ISO 8601, which begins on Monday and belongs to the year of its Thursday.
    std::uint8_t Weeknumber() const;

    /// The ticks in UTC; those of local time without a timezone. Held at the ends of the 64-bit range.
    std::int64_t NormalizedValue() const;

    /// @{
    /// So many ticks later or earlier; the timezone stays.
    DateTime operator+(const DayTimeDuration& duration) const;
    DateTime operator-(const DayTimeDuration& duration) const;
    /// @}
    /// @{
    /// The same day of another month, or that month's last day when it is too short; the time of day and
    /// the timezone stay.
    DateTime operator+(const YearMonthDuration& duration) const;
    DateTime operator-(const YearMonthDuration& duration) const;
    /// @}
    /// @{
    /// The year-month part first, then the day-time part (XML Schema Part 2, appendix E).
    DateTime operator+(const Duration& duration) const;
    DateTime operator-(const Duration& duration) const;
    /// @}
    /// The difference of the two normalised values.
    DayTimeDuration operator-(const DateTime& other) const;

    /// The same instant; false when only one has a timezone.
    bool operator==(const DateTime& other) const;
    /// Earlier for certain.
    bool operator<(const DateTime& other) const;

private:
    std::int64_t value_ = 0;
    std::int16_t timezone_ = NO_TIMEZONE;
};

/// The parts that the text of a date may have and those that it must have, which are allowed as well.
enum DateTimeParts : unsigned {
    REQUIRE_YEAR = 0x1,  ///< no text without a year
    REQUIRE_MONTH = 0x2, ///< no text without a month
    REQUIRE_DAY = 0x4,   ///< no text without a day
    REQUIRE_TIME = 0x8,  ///< no text without a time of day
    ALLOW_YEAR = 0x10,   ///< a year may stand there
    ALLOW_MONTH = 0x20,  ///< a month may stand there
    ALLOW_DAY = 0x40,    ///< a day may stand there
    ALLOW_TIME = 0x80,   ///< a time of day may stand there
    ALLOW_ALL = 0xF0     ///< any part, none required
};

} // namespace tessera

#endif
