// Lengths of time (XML Schema Part 2, 3.2.6 duration, and XPath 2.0's two totally ordered halves of it) and
// their lexical forms.
//
// Time is counted in ticks of 100 nanoseconds. What does not fit the fields never wraps: arithmetic throws
// OutOfRangeException.
#ifndef XTTML_RUNTIME_DURATION_H
#define XTTML_RUNTIME_DURATION_H

#include "runtime/ordering.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tessera {

constexpr std::int64_t TICKS_PER_SECOND = 10000000;
constexpr std::int64_t TICKS_PER_MINUTE = 60 * TICKS_PER_SECOND;
constexpr std::int64_t TICKS_PER_HOUR = 60 * TICKS_PER_MINUTE;
constexpr std::int64_t TICKS_PER_DAY = 24 * TICKS_PER_HOUR;

/// A number of months.
class YearMonthDuration : PartialOrder<YearMonthDuration> {
public:
    /// Zero months.
    constexpr YearMonthDuration() = default;
    constexpr explicit YearMonthDuration(std::int32_t months) : months_(months) {}
    /// `years` × 12 + `months`; throws OutOfRangeException beyond 32 bits.
    YearMonthDuration(std::int32_t years, std::int32_t months);

    /// The whole length in months.
    constexpr std::int32_t TotalMonths() const { return months_; }
    /// Whole years, toward zero; negative in a negative duration.
    constexpr std::int32_t Years() const { return months_ / 12; }
    /// The months beyond the whole years, -11 to 11.
    constexpr std::int32_t Months() const { return months_ % 12; }

    YearMonthDuration operator-() const;
    friend YearMonthDuration operator+(const YearMonthDuration& a, const YearMonthDuration& b);
    friend YearMonthDuration operator-(const YearMonthDuration& a, const YearMonthDuration& b);
    friend constexpr bool operator==(const YearMonthDuration& a, const YearMonthDuration& b) {
        return a.months_ == b.months_;
    }
    friend constexpr bool operator<(const YearMonthDuration& a, const YearMonthDuration& b) {
        return a.months_ < b.months_;
    }

private:
    std::int32_t months_ = 0;
};

/// A number of ticks.
class DayTimeDuration : PartialOrder<DayTimeDuration> {
public:
    /// Zero ticks.
    constexpr DayTimeDuration() = default;
    constexpr explicit DayTimeDuration(std::int64_t ticks) : ticks_(ticks) {}
    /// The sum of the four, any of which may be negative; the seconds are truncated to whole ticks. Throws
    /// OutOfRangeException when the minutes, the seconds (or NaN) or the sum do not fit in 64 bits of ticks.
    DayTimeDuration(std::int32_t days, std::int32_t hours, std::int32_t minutes, double seconds);

    /// The whole length in ticks.
    constexpr std::int64_t Ticks() const { return ticks_; }
    /// Whole days, toward zero; negative in a negative duration, as are the parts below.
    constexpr std::int32_t Days() const { return static_cast<std::int32_t>(ticks_ / TICKS_PER_DAY); }
    /// The hours beyond the whole days, -23 to 23.
    constexpr std::int32_t Hours() const {
        return static_cast<std::int32_t>(ticks_ % TICKS_PER_DAY / TICKS_PER_HOUR);
    }
    /// The minutes beyond the whole hours, -59 to 59.
    constexpr std::int32_t Minutes() const {
        return static_cast<std::int32_t>(ticks_ % TICKS_PER_HOUR / TICKS_PER_MINUTE);
    }
    /// The seconds beyond the whole minutes, with the fraction.
    constexpr double Seconds() const {
        return static_cast<double>(ticks_ % TICKS_PER_MINUTE) / static_cast<double>(TICKS_PER_SECOND);
    }

    DayTimeDuration operator-() const;
    friend DayTimeDuration operator+(const DayTimeDuration& a, const DayTimeDuration& b);
    friend DayTimeDuration operator-(const DayTimeDuration& a, const DayTimeDuration& b);
    friend constexpr bool operator==(const DayTimeDuration& a, const DayTimeDuration& b) {
        return a.ticks_ == b.ticks_;
    }
    friend constexpr bool operator<(const DayTimeDuration& a, const DayTimeDuration& b) {
        return a.ticks_ < b.ticks_;
    }

private:
    std::int64_t ticks_ = 0;
};

/// A day-time and a year-month part that do not differ in sign.
///
/// Equal means equal in both parts. The order is the partial one of XML Schema Part 2, 3.2.6.2: a duration
/// is less than another when it is so from each of four telling dates on; a month is neither less nor
/// greater than 30 days.
class Duration : PartialOrder<Duration> {
public:
    /// Zero.
    constexpr Duration() = default;
    /// Throws ValueNotRepresentableException ("duration") when one part is negative and the other positive.
    Duration(const YearMonthDuration& yearMonth, const DayTimeDuration& dayTime);

    constexpr YearMonthDuration YearMonthPart() const { return yearMonth_; }
    constexpr DayTimeDuration DayTimePart() const { return dayTime_; }

    /// True when a part is negative.
    bool IsNegative() const;
    /// True when a part is positive; zero is neither.
    bool IsPositive() const;

    Duration operator-() const;
    friend bool operator==(const Duration& a, const Duration& b);
    friend bool operator<(const Duration& a, const Duration& b);

private:
    DayTimeDuration dayTime_;
    YearMonthDuration yearMonth_;
};

/// "P1Y2M", "-P3M"; "P0M" for zero.
std::string PrintDuration(const YearMonthDuration& value);

/// "P1DT2H3M4.5S", "-PT1M"; "PT0S" for zero.
std::string PrintDuration(const DayTimeDuration& value);

/// Both parts after one sign and one "P"; "PT0S" for zero. Throws ValueNotRepresentableException when one
/// part is negative and the other positive.
std::string PrintDuration(const YearMonthDuration& yearMonth, const DayTimeDuration& dayTime);

/// Reads the XML Schema form, white space around it allowed: "P" and at least one number with its
/// designator, in the order Y M D, T, H M S, none of them twice, only the seconds with a fraction (digits
/// beyond the seventh are dropped); a "T" has a pair after it. False for any other text and for a length
/// that the fields cannot hold; `result` is then unchanged.
bool TryParseDuration(std::string_view text, Duration& result);

} // namespace tessera

#endif
