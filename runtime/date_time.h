// Dates and times of day (XML Schema Part 2, 3.2.7 to 3.2.14) and their lexical forms.
//
// The calendar is the proleptic Gregorian one with the years counted as ISO 8601 and XML Schema 1.1 do:
// the year before 0001 is 0000, a leap year. It covers whatever 64 bits of ticks reach, the years -29226 to
// 29228. Arithmetic that leaves it throws OutOfRangeException.
#ifndef XTTML_RUNTIME_DATE_TIME_H
#define XTTML_RUNTIME_DATE_TIME_H

#include "runtime/duration.h"
#include "runtime/ordering.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tessera {

/// A point in local time with or without the offset of that local time from UTC.
///
/// Ordering follows XML Schema Part 2, 3.2.7.4: where only one of two values has a timezone they are never
/// equal, and one is less than the other only if it is so for every offset from -14:00 to +14:00.
class DateTime : PartialOrder<DateTime> {
public:
    /// The timezone of a value that has none.
    static constexpr std::int16_t NO_TIMEZONE = -32768;

    /// 0001-01-01T00:00:00 without a timezone.
    constexpr DateTime() = default;
    /// From ticks since 0001-01-01T00:00:00 local time and the offset from UTC in minutes.
    constexpr explicit DateTime(std::int64_t value, std::int16_t timezone = NO_TIMEZONE)
        : value_(value), timezone_(timezone) {}
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

    static bool IsLeapYear(std::int32_t year);

    /// The calendar date that a tick count falls on.
    static void GetDateFromTimeValue(std::int64_t value, std::int32_t& year, std::uint8_t& month,
                                     std::uint8_t& day);

    /// Ticks since 0001-01-01T00:00:00 in the value's own local time.
    constexpr std::int64_t Value() const { return value_; }
    constexpr bool HasTimezone() const { return timezone_ != NO_TIMEZONE; }
    /// The offset from UTC in minutes, or NO_TIMEZONE.
    constexpr std::int16_t Timezone() const { return timezone_; }

    /// 0 and below for the years before 0001.
    std::int32_t Year() const;
    std::uint8_t Month() const;
    std::uint8_t Day() const;
    /// 0 to 23; an hour of 24 has become 0 of the next day.
    std::uint8_t Hour() const;
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

    friend DateTime operator+(const DateTime& time, const DayTimeDuration& duration);
    friend DateTime operator-(const DateTime& time, const DayTimeDuration& duration);
    /// The same day of another month, or that month's last day when it is too short; the time of day and
    /// the timezone stay.
    friend DateTime operator+(const DateTime& time, const YearMonthDuration& duration);
    friend DateTime operator-(const DateTime& time, const YearMonthDuration& duration);
    /// The year-month part first, then the day-time part (XML Schema Part 2, appendix E).
    friend DateTime operator+(const DateTime& time, const Duration& duration);
    friend DateTime operator-(const DateTime& time, const Duration& duration);
    /// The difference of the two normalised values.
    friend DayTimeDuration operator-(const DateTime& a, const DateTime& b);

    friend bool operator==(const DateTime& a, const DateTime& b);
    friend bool operator<(const DateTime& a, const DateTime& b);

private:
    std::int64_t value_ = 0;
    std::int16_t timezone_ = NO_TIMEZONE;
};

// Every form ends with the timezone when the value has one. Years have at least four digits and a "-" before
// 0000; months, days, hours, minutes and seconds have two digits; the fraction of a second has up to seven.

std::string PrintDateTime(const DateTime& value);      ///< date "T" time
std::string PrintDate(const DateTime& value);          ///< yyyy-mm-dd
std::string PrintTime(const DateTime& value);          ///< hh:mm:ss, fraction
std::string PrintGYear(const DateTime& value);         ///< yyyy
std::string PrintGYearMonth(const DateTime& value);    ///< yyyy-mm
std::string PrintGMonth(const DateTime& value);        ///< --mm
std::string PrintGMonthDay(const DateTime& value);     ///< --mm-dd
std::string PrintGDay(const DateTime& value);          ///< ---dd
std::string PrintDateSpaceTime(const DateTime& value); ///< date " " time
std::string PrintSeconds(const DateTime& value);       ///< the tick count in seconds
std::string PrintDays(const DateTime& value);          ///< the tick count in days, up to seven decimals

/// "Z" for 0, else the sign, hours and minutes of an offset in minutes: "+05:30"; empty for NO_TIMEZONE.
std::string PrintTimezone(std::int16_t minutes);

/// Which parts TryParseDateTime accepts and which it insists on; a required part is allowed as well.
enum DateTimeParts : unsigned {
    REQUIRE_YEAR = 0x1,
    REQUIRE_MONTH = 0x2,
    REQUIRE_DAY = 0x4,
    REQUIRE_TIME = 0x8,
    ALLOW_YEAR = 0x10,
    ALLOW_MONTH = 0x20,
    ALLOW_DAY = 0x40,
    ALLOW_TIME = 0x80,
    ALLOW_ALL = 0xF0
};

/// Reads any form above but the last three, as far as `parts` (DateTimeParts) allows, white space around it
/// allowed. A text without a date is of 0001-01-01, a date without a year of the leap year 0004. A "-" with
/// two digits and a ":" is a timezone, not a month or day. Digits of a fraction beyond the seventh are
/// dropped. The offset of a timezone is not bounded.
///
/// False for any other text; `result` is then unchanged. A field out of its range throws
/// InvalidArgumentException as DateTime::Init does.
bool TryParseDateTime(std::string_view text, unsigned parts, DateTime& result);

} // namespace tessera

#endif
