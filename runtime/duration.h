// Lengths of time (XML Schema Part 2, 3.2.6 duration, and XPath 2.0's two totally ordered halves of it).
// CoreTypes reads and prints them.
//
// Time is counted in ticks of 100 nanoseconds. What does not fit the fields never wraps: arithmetic throws
// OutOfRangeException; nothing else here throws unless its comment says so.
#ifndef XTTML_RUNTIME_DURATION_H
#define XTTML_RUNTIME_DURATION_H

#include "runtime/export.h"
#include "runtime/ordering.h"

#include <cstdint>

namespace tessera {

constexpr std::int64_t TICKS_PER_SECOND = 10000000;              ///< a tick is 100 nanoseconds
constexpr std::int64_t TICKS_PER_MINUTE = 60 * TICKS_PER_SECOND; ///< of 60 seconds
constexpr std::int64_t TICKS_PER_HOUR = 60 * TICKS_PER_MINUTE;   ///< of 60 minutes
constexpr std::int64_t TICKS_PER_DAY = 24 * TICKS_PER_HOUR;      ///< of 24 hours

/// A number of months.
class XTTML_API YearMonthDuration : PartialOrder<YearMonthDuration> {
public:
    /// Zero months.
    constexpr YearMonthDuration() = default;
    /// So many months; a negative number makes a negative duration.
    constexpr explicit YearMonthDuration(std::int32_t months) : months_(months) {}
    /// `years` × 12 + `months`; throws OutOfRangeException beyond 32 bits.
    YearMonthDuration(std::int32_t years, std::int32_t months);

    /// The whole length in months.
    constexpr std::int32_t TotalMonths() const { return months_; }
    /// Whole years, toward zero; negative in a negative duration.
    constexpr std::int32_t Years() const { return months_ / 12; }
    /// The months beyond the whole years, -11 to 11.
    constexpr std::int32_t Months() const { return months_ % 12; }

    /// @{
    /// Arithmetic on the number of months.
    YearMonthDuration operator-() const;
    YearMonthDuration operator+(const YearMonthDuration& other) const;
    YearMonthDuration operator-(const YearMonthDuration& other) const;
    /// @}
    /// @{
    /// Comparison of the numbers of months.
    constexpr bool operator==(const YearMonthDuration& other) const { return months_ == other.months_; }
    constexpr bool operator<(const YearMonthDuration& other) const { return months_ < other.months_; }
    /// @}

private:
    std::int32_t months_ = 0;
};

/// A number of ticks.
class XTTML_API DayTimeDuration : PartialOrder<DayTimeDuration> {
public:
    /// Zero ticks.
    constexpr DayTimeDuration() = default;
    /// So many ticks; a negative number makes a negative duration.
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

    /// @{
    /// Arithmetic on the number of ticks.
    DayTimeDuration operator-() const;
    DayTimeDuration operator+(const DayTimeDuration& other) const;
    DayTimeDuration operator-(const DayTimeDuration& other) const;
    /// @}
    /// @{
    /// Comparison of the numbers of ticks.
    constexpr bool operator==(const DayTimeDuration& other) const { return ticks_ == other.ticks_; }
    constexpr bool operator<(const DayTimeDuration& other) const { return ticks_ < other.ticks_; }
    /// @}

private:
    std::int64_t ticks_ = 0;
};

/// A day-time and a year-month part that do not differ in sign.
///
/// Equal means equal in both parts. The order is the partial one of XML Schema Part 2, 3.2.6.2: a duration
/// is less than another when it is so from each of four telling dates on; a month is neither less nor
/// greater than 30 days.
class XTTML_API Duration : PartialOrder<Duration> {
public:
    /// Zero.
    constexpr Duration() = default;
    /// Throws ValueNotRepresentableException ("duration") when one part is negative and the other positive.
    Duration(const YearMonthDuration& yearMonth, const DayTimeDuration& dayTime);

    /// The years and months; zero when there are none.
    constexpr YearMonthDuration YearMonthPart() const { return yearMonth_; }
    /// The days and the time; zero when there are none.
    constexpr DayTimeDuration DayTimePart() const { return dayTime_; }

    /// True when a part is negative.
    bool IsNegative() const;
    /// True when a part is positive; zero is neither.
    bool IsPositive() const;

    /// The same length in the other direction.
    Duration operator-() const;
    /// Equal in both parts.
    bool operator==(const Duration& other) const;
    /// Shorter from each of the telling dates on.
    bool operator<(const Duration& other) const;

private:
    DayTimeDuration dayTime_;
    YearMonthDuration yearMonth_;
};

} // namespace tessera

#endif
