#include "runtime/core_types.h"
#include "runtime/duration_text.h"

#include "tests/support/outcomes.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

using namespace tessera;

namespace {

constexpr std::int32_t MONTHS_LOWEST = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t TICKS_LOWEST = std::numeric_limits<std::int64_t>::min();

Duration Read(const std::string& text) {
    return CoreTypes::CastToDuration(text);
}

} // namespace

TEST(Durations, AreReadAndPrinted) {
    const struct {
        std::string text;
        std::int32_t months;
        std::int64_t ticks;
        std::string printed;
    } cases[] = {
        {"P1Y2M3DT4H5M6.789S", 14, 2739067890000, "P1Y2M3DT4H5M6.789S"},
        {" \n-P1Y1M", -13, 0, "-P1Y1M"},
        {"P0M", 0, 0, "PT0S"},
        {"-PT0S", 0, 0, "PT0S"},
        {"P14M", 14, 0, "P1Y2M"},
        {"P1D", 0, TICKS_PER_DAY, "P1D"},
        {"PT36H", 0, 36 * TICKS_PER_HOUR, "P1DT12H"},
        {"-PT0.00000019S", 0, -1, "-PT0.0000001S"},
        {"PT0.5S", 0, 5000000, "PT0.5S"},
        {"PT1M", 0, TICKS_PER_MINUTE, "PT1M"},
        {"P1M", 1, 0, "P1M"},
        {"P007Y", 84, 0, "P7Y"},
        {"-P178956970Y8M", MONTHS_LOWEST, 0, "-P178956970Y8M"},
        {"-P10675199DT2H48M5.4775808S", 0, TICKS_LOWEST, "-P10675199DT2H48M5.4775808S"},
    };
    for (const auto& c : cases) {
        const Duration duration = Read(c.text);
        EXPECT_EQ(duration.YearMonthPart().TotalMonths(), c.months) << c.text;
        EXPECT_EQ(duration.DayTimePart().Ticks(), c.ticks) << c.text;
        EXPECT_EQ(CoreTypes::CastToString(duration), c.printed);
    }
    EXPECT_EQ(CoreTypes::CastToString(YearMonthDuration()), "P0M");
    EXPECT_EQ(CoreTypes::CastToString(DayTimeDuration()), "PT0S");
    EXPECT_EQ(CoreTypes::CastToString(YearMonthDuration(-1, -2)), "-P1Y2M");
    EXPECT_EQ(CoreTypes::CastToString(DayTimeDuration(0, 0, -1, -2.5)), "-PT1M2.5S");
    EXPECT_EQ(CoreTypes::CastToYearMonthDuration("\t-P1Y"), YearMonthDuration(-12));
    EXPECT_EQ(CoreTypes::CastToDayTimeDuration(" PT1S"), DayTimeDuration(TICKS_PER_SECOND));
}

TEST(Durations, RejectOtherTexts) {
    const auto expectRejected = [](const std::string& text, auto cast) {
        EXPECT_EQ(ThrownMessage<StringParseException>([&] { cast(text); }),
                  "'" + text + "' could not be parsed as duration");
    };
    for (const std::string& text : Split(
             "|-| - |P|-P|PT|P1YT|P1|1Y|P1Y1Y|P1M1Y|P1D1M|P1H|PT1D|PT1S1M|P1.5Y|PT1.5M|PT1.S|PT.5S|P-1Y|+P1Y|"
             "--P1Y|p1y|P 1Y|P1Y 2M|P1YX|PT1S ,|P178956970Y8M|P99999999999999999999Y|"
             "PT922337203685.4775808S|P18446744073709551616D|P1Y |PT1S\n")) {
        expectRejected(text, [](const std::string& t) { Read(t); });
    }
    for (const std::string& text : Split("P1Y1D|P0D |-")) {
        expectRejected(text, [](const std::string& t) { CoreTypes::CastToDayTimeDuration(t); });
        expectRejected(text, [](const std::string& t) { CoreTypes::CastToYearMonthDuration(t); });
    }
}

TEST(Durations, HaveParts) {
    const DayTimeDuration dayTime(-1, -2, -3, -4.5);
    EXPECT_EQ(dayTime.Ticks(), -(26 * TICKS_PER_HOUR + 3 * TICKS_PER_MINUTE + 45000000));
    EXPECT_EQ(dayTime.Days(), -1);
    EXPECT_EQ(dayTime.Hours(), -2);
    EXPECT_EQ(dayTime.Minutes(), -3);
    EXPECT_EQ(dayTime.Seconds(), -4.5);
    EXPECT_EQ(DayTimeDuration(0, 0, 1, -0.99999999).Ticks(), TICKS_PER_MINUTE - 9999999); // toward zero
    EXPECT_EQ(YearMonthDuration(-14).Years(), -1);
    EXPECT_EQ(YearMonthDuration(-14).Months(), -2);
    EXPECT_TRUE(Read("-PT1S").IsNegative() && Read("P1M").IsPositive());
    EXPECT_FALSE(Duration().IsNegative() || Duration().IsPositive());
}

TEST(Durations, DoNotMixSigns) {
    const auto build = [](std::int32_t months, std::int64_t ticks) {
        return ThrownMessage<ValueNotRepresentableException>(
            [&] { Duration(YearMonthDuration(months), DayTimeDuration(ticks)); });
    };
    EXPECT_EQ(build(1, -1), "duration");
    EXPECT_EQ(build(-1, 1), "duration");
    EXPECT_EQ(build(-1, 0), "(nothing)");
    EXPECT_EQ(build(0, -1), "(nothing)");
    EXPECT_EQ(ThrownMessage<ValueNotRepresentableException>(
                  [] { PrintDuration(YearMonthDuration(1), DayTimeDuration(-1)); }),
              "Source value of type duration cannot be converted to string: "
              "Sign of year month part differs from sign of day time part.");
}

TEST(Durations, NeverLeaveTheirRange) {
    EXPECT_EQ(YearMonthDuration(5) - YearMonthDuration(7), -YearMonthDuration(2));
    EXPECT_EQ(DayTimeDuration(5) + DayTimeDuration(-7), -DayTimeDuration(2));
    EXPECT_EQ(-Read("P1MT1S"), Read("-P1MT1S"));
    EXPECT_THROW(YearMonthDuration(2147483647) + YearMonthDuration(1), OutOfRangeException);
    EXPECT_THROW(-YearMonthDuration(MONTHS_LOWEST), OutOfRangeException);
    EXPECT_THROW(YearMonthDuration(200000000, 0), OutOfRangeException);
    EXPECT_THROW(YearMonthDuration(178956970, 8), OutOfRangeException);
    EXPECT_THROW(-DayTimeDuration(TICKS_LOWEST), OutOfRangeException);
    EXPECT_THROW(DayTimeDuration(TICKS_LOWEST) - DayTimeDuration(1), OutOfRangeException);
    EXPECT_THROW(DayTimeDuration(2147483647, 0, 0, 0), OutOfRangeException);
    EXPECT_THROW(DayTimeDuration(0, 0, 0, 1e12), OutOfRangeException);
    EXPECT_THROW(DayTimeDuration(0, 0, 0, NAN), OutOfRangeException);
}

TEST(Durations, AreOrderedWhereMonthsAllow) {
    const struct {
        const char* less;
        const char* greater;
    } ordered[] = {
        {"P1M", "P32D"},
        {"P27D", "P1M"},
        {"P1Y", "P367D"},
        {"P364D", "P1Y"},
        {"-P1M", "P0M"},
        {"PT59S", "PT1M"},
        {"P5M", "P154D"},
        {"P149D", "P5M"},
        {"P1M", "P2M"},
        {"-P178956970Y", "-P1D"},
        {"P10675199D", "P178956970Y"},
    };
    for (const auto& c : ordered) {
        const Duration less = Read(c.less);
        const Duration greater = Read(c.greater);
        EXPECT_TRUE(less < greater && less <= greater && greater > less && greater >= less) << c.less;
        EXPECT_FALSE(greater < less || greater <= less || less == greater) << c.less;
    }
    for (const char* days : {"P28D", "P29D", "P30D", "P31D"}) {
        const Duration month = Read("P1M");
        EXPECT_FALSE(month < Read(days) || month > Read(days) || month <= Read(days) || month == Read(days))
            << days;
    }
    EXPECT_TRUE(Read("P1Y") == Read("P12M") && Read("P1D") <= Read("PT24H"));
    EXPECT_TRUE(YearMonthDuration(1) < YearMonthDuration(2) && DayTimeDuration(2) >= DayTimeDuration(2));
}

TEST(Durations, GoOutAndComeBack) {
    std::mt19937_64 generator(13);
    for (int i = 0; i < 20000; ++i) {
        auto months = static_cast<std::int32_t>(generator() >> (generator() % 64));
        auto ticks = static_cast<std::int64_t>(generator()) >> (generator() % 63);
        if ((months < 0) != (ticks < 0)) {
            (generator() % 2 == 0 ? months = 0 : ticks = 0);
        }
        const Duration value{YearMonthDuration(months), DayTimeDuration(ticks)};
        ASSERT_EQ(Read(CoreTypes::CastToString(value)), value) << months << ' ' << ticks;
    }
}
