#include "runtime/core_types.h"

#include "tests/support/outcomes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>
#include <random>

using namespace tessera;

namespace {

constexpr std::int64_t LOWEST = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t LARGEST = std::numeric_limits<std::int64_t>::max();

DateTime Read(const std::string& text) {
    return CoreTypes::CastToDateTime(text);
}

std::string Print(const DateTime& value) {
    return CoreTypes::CastToString(value);
}

} // namespace

TEST(DateTimes, AreMadeOfFieldsInRange) {
    const struct {
        std::uint8_t month, day, hour, minute;
        double second;
        const char* message;
    } cases[] = {
        {0, 1, 0, 0, 0, "month out of range"},         {13, 0, 99, 99, 99, "month out of range"},
        {2, 29, 99, 99, 99, "day out of range"},       {4, 31, 0, 0, 0, "day out of range"},
        {1, 0, 0, 0, 0, "day out of range"},           {1, 1, 25, 99, 99, "hour out of range"},
        {1, 1, 23, 60, 99, "minute out of range"},     {1, 1, 24, 1, 99, "minute out of range"},
        {1, 1, 23, 59, 60, "second out of range"},     {1, 1, 24, 0, 1, "second out of range"},
        {1, 1, 24, 0, 1e-9, "second out of range"},    {1, 1, 0, 0, -1e-9, "second out of range"},
        {1, 1, 0, 0, NAN, "second out of range"},      {12, 31, 24, 0, 0, "(nothing)"},
        {1, 1, 23, 59, 59.9999999999999, "(nothing)"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ThrownMessage<InvalidArgumentException>(
                      [&] { DateTime::Init(2001, c.month, c.day, c.hour, c.minute, c.second); }),
                  c.message);
    }
    EXPECT_EQ(DateTime::Init(1, 1, 1, 0, 0, 0), 0);
    EXPECT_EQ(DateTime::Init(2000, 2, 29, 0, 0, 0), 630873792000000000);
    EXPECT_EQ(DateTime::Init(1, 1, 1, 24, 0, 0), TICKS_PER_DAY);
    EXPECT_EQ(DateTime::Init(0, 12, 31, 23, 59, 59.5), -5000000);
    EXPECT_EQ(DateTime(2011, 3, 15, 10, 20, 30.5, 60).Second(), 30.5);
    for (const std::int32_t year : {29229, -29228, 2147483647, -2147483647}) {
        EXPECT_EQ(ThrownMessage<InvalidArgumentException>([&] { DateTime::Init(year, 1, 1, 0, 0, 0); }),
                  "year out of range");
    }
}

TEST(DateTimes, AreReadAndPrinted) {
    const struct {
        std::string text;
        CoreTypes::DateTimeFormat format;
        std::string printed;
    } cases[] = {
        {"2011-03-15T10:20:30.5Z", CoreTypes::FormatDateTime, "2011-03-15T10:20:30.5Z"},
        {" \t2011-03-15T10:20:30\n", CoreTypes::FormatDateTime, "2011-03-15T10:20:30"},
        {"2011-03-15T24:00:00", CoreTypes::FormatDateTime, "2011-03-16T00:00:00"},
        {"0000-02-29T00:00:00", CoreTypes::FormatDateTime, "0000-02-29T00:00:00"},
        {"-0044-03-15T12:00:00-00:30", CoreTypes::FormatDateTime, "-0044-03-15T12:00:00-00:30"},
        {"12345-01-02T03:04:05.12345678", CoreTypes::FormatDateTime, "12345-01-02T03:04:05.1234567"},
        {"2011-03-15+05:45", CoreTypes::FormatDate, "2011-03-15+05:45"},
        {"2011-03-15-14:00", CoreTypes::FormatDate, "2011-03-15-14:00"},
        {"13:05:09.250", CoreTypes::FormatTime, "13:05:09.25"},
        {"13:05:09-08:00", CoreTypes::FormatTime, "13:05:09-08:00"},
        {"0987", CoreTypes::FormatGYear, "0987"},
        {"-2011+05:00", CoreTypes::FormatGYear, "-2011+05:00"},
        {"2011-03", CoreTypes::FormatGYearMonth, "2011-03"},
        {"--03Z", CoreTypes::FormatGMonth, "--03Z"},
        {"--02-29", CoreTypes::FormatGMonthDay, "--02-29"},
        {"--02-29+01:00", CoreTypes::FormatGMonthDay, "--02-29+01:00"},
        {"---05-05:00", CoreTypes::FormatGDay, "---05-05:00"},
        {"---31", CoreTypes::FormatDateTime, "0004-01-31T00:00:00"},
        {"10:20:30", CoreTypes::FormatDateTime, "0001-01-01T10:20:30"},
        {"2011--15", CoreTypes::FormatDate, "2011-01-15"},
        {"2011-03-15T10:20:30.5Z", CoreTypes::FormatDateSpaceTime, "2011-03-15 10:20:30.5Z"},
        {"0001-01-02T00:00:01.5", CoreTypes::FormatSeconds, "86401.5"},
        {"0000-12-31T23:59:59.9", CoreTypes::FormatSeconds, "-0.1"},
        {"0001-01-01", CoreTypes::FormatSeconds, "0"},
        {"0001-01-01", CoreTypes::FormatDays, "0"},
        {"0001-01-01T23:59:59.9999999", CoreTypes::FormatDays, "0.9999999"},
        {"0001-01-03T18:00:00", CoreTypes::FormatDays, "2.75"},
        {"0000-12-30T12:00:00Z", CoreTypes::FormatDays, "-1.5Z"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CoreTypes::CastToString(Read(c.text), c.format), c.printed) << c.text;
    }
    EXPECT_EQ(Read("2011-03-15T10:20:30.5Z").TimeOfDay() % TICKS_PER_SECOND, 5000000);
    EXPECT_EQ(Read("2011-03-15T10:20:30.5Z").Timezone(), 0);
    EXPECT_EQ(Read("2011-03-15").Timezone(), -32768);
    EXPECT_FALSE(Read("2011-03-15").HasTimezone());
}

TEST(DateTimes, CountTheDaysOfEveryMonth) {
    const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int days = 0;
    for (int year = 1; year <= 400; ++year) {
        const bool isLeap = year % 4 == 0 && (year % 100 != 0 || year == 400);
        for (int month = 1; month <= 12; ++month) {
            char first[16];
            std::snprintf(first, sizeof first, "%04d-%02d-01", year, month);
            EXPECT_EQ(CoreTypes::CastToString(Read(first), CoreTypes::FormatDays), std::to_string(days));
            EXPECT_EQ(CoreTypes::CastToString(Read(first), CoreTypes::FormatDate), first);
            days += lengths[month - 1] + (month == 2 && isLeap ? 1 : 0);
        }
    }
}

TEST(DateTimes, RejectOtherTexts) {
    for (const std::string& text : Split(
             "|  |20|201|201-01-01|02011-01-01|2011-1-01|2011-03-5|2011-03-155|2011-|2011--|---|--|--3|-|now|"
             "+2011-03-15|20x1-01-01|2011-03-15T|2011-03-15T10:20|2011-03-15T10:20:3|2011-03-15T10:20:30.|"
             "2011-03-15 10:20:30|2011-03-15t10:20:30|2011-03-15T10:20:30z|2011-03-15ZZ|10:20|10:20:30Zx|"
             "10:20:30+1:00|10:20:30+0100|--05:00|---05:00|"
             "2011-05:00|-2011-05:00|2011-03-05:00|--03-05:00|T10:20:30|+01:00")) {
        EXPECT_EQ(ThrownMessage<StringParseException>([&] { Read(text); }),
                  "'" + text + "' could not be parsed as dateTime");
    }
    EXPECT_EQ(ThrownMessage<InvalidArgumentException>([] { Read("2011-02-29"); }), "day out of range");
    EXPECT_EQ(ThrownMessage<InvalidArgumentException>([] { Read("24:00:00.1"); }), "second out of range");
    EXPECT_EQ(ThrownMessage<InvalidArgumentException>([] { Read("99999999999999999999-01-01"); }),
              "year out of range");
}

TEST(DateTimes, HaveThePartsThatAreAskedFor) {
    const struct {
        const char* text;
        unsigned parts;
        bool isRead;
    } cases[] = {
        {"10:20:30", ALLOW_TIME, true},
        {"10:20:30", ALLOW_YEAR | ALLOW_MONTH | ALLOW_DAY, false},
        {"10:20:30", ALLOW_TIME | REQUIRE_DAY, false},
        {"2011-03-15", ALLOW_TIME, false},
        {"2011-03-15", REQUIRE_YEAR | REQUIRE_MONTH | REQUIRE_DAY, true},
        {"2011-03", REQUIRE_YEAR | REQUIRE_MONTH | REQUIRE_DAY, false},
        {"2011-03-15T10:20:30", ALLOW_YEAR | ALLOW_MONTH | ALLOW_DAY, false},
        {"2011-03-15", ALLOW_YEAR | ALLOW_MONTH | ALLOW_DAY | REQUIRE_TIME, false},
        {"--03-15", ALLOW_MONTH | ALLOW_DAY, true},
        {"--03-15", ALLOW_ALL | REQUIRE_YEAR, false},
        {"--03-15", ALLOW_DAY, false},
        {"2011", ALLOW_MONTH | ALLOW_DAY, false},
        {"---15", REQUIRE_DAY, true},
        {"---15", REQUIRE_MONTH | REQUIRE_DAY, false},
    };
    for (const auto& c : cases) {
        DateTime result(77);
        EXPECT_EQ(CoreTypes::TryParseDateTime(c.text, c.parts, result), c.isRead) << c.text << ' ' << c.parts;
        EXPECT_TRUE(c.isRead || result == DateTime(77)) << c.text;
    }
    EXPECT_EQ(CoreTypes::ParseTime("10:20:30Z", 0).Hour(), 10);
    EXPECT_EQ(CoreTypes::ParseTime("2011-03-15T10:20:30", 0x70).Year(), 2011);
    EXPECT_EQ(ThrownMessage<StringParseException>([] { CoreTypes::ParseTime("2011-03-15", 0); }),
              "'2011-03-15' could not be parsed as time");
}

TEST(DateTimes, MoveInMonthsTicksAndBoth) {
    const auto months = [](std::int32_t count) { return YearMonthDuration(count); };
    const struct {
        DateTime moved;
        const char* expected;
    } cases[] = {
        {Read("2011-01-31") + months(1), "2011-02-28T00:00:00"},
        {Read("2012-01-31T10:20:30.5+01:00") + months(1), "2012-02-29T10:20:30.5+01:00"},
        {Read("2012-02-29") - months(12), "2011-02-28T00:00:00"},
        {Read("2011-12-15") + months(1), "2012-01-15T00:00:00"},
        {Read("2011-01-15") - months(1), "2010-12-15T00:00:00"},
        {Read("0001-01-31") - months(2), "0000-11-30T00:00:00"},
        {Read("2011-01-31") + DayTimeDuration(1, 2, 3, 4.5), "2011-02-01T02:03:04.5"},
        {Read("2011-01-01Z") - DayTimeDuration(TICKS_PER_SECOND), "2010-12-31T23:59:59Z"},
        {Read("2011-01-31") + CoreTypes::CastToDuration("P1M1D"), "2011-03-01T00:00:00"},
        {Read("2011-03-31") - CoreTypes::CastToDuration("P1M1D"), "2011-02-27T00:00:00"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Print(c.moved), c.expected);
    }
    EXPECT_EQ((Read("2011-01-01T01:00:00+01:00") - Read("2010-12-31T00:00:00Z")).Ticks(), TICKS_PER_DAY);
}

TEST(DateTimes, NeverLeaveTheirRange) {
    const DateTime first(LOWEST, 840);
    const DateTime last(LARGEST, -840);
    EXPECT_EQ(Print(DateTime(LOWEST)), "-29227-04-19T21:11:54.5224192");
    EXPECT_EQ(Print(DateTime(LARGEST)), "29228-09-14T02:48:05.4775807");
    EXPECT_EQ(Print(first + YearMonthDuration(0)), Print(first));
    EXPECT_EQ(first.NormalizedValue(), LOWEST);
    EXPECT_EQ(last.NormalizedValue(), LARGEST);
    EXPECT_TRUE(DateTime(LOWEST) < last && first < last);
    EXPECT_THROW(last + DayTimeDuration(1), OutOfRangeException);
    EXPECT_THROW(first - DayTimeDuration(1), OutOfRangeException);
    EXPECT_THROW(DateTime(0) - DayTimeDuration(LOWEST), OutOfRangeException);
    EXPECT_THROW(last + YearMonthDuration(1), OutOfRangeException);
    EXPECT_THROW(first + YearMonthDuration(2147483647), OutOfRangeException);
    EXPECT_THROW(first - YearMonthDuration(std::numeric_limits<std::int32_t>::min()), OutOfRangeException);
    EXPECT_THROW(last - first, OutOfRangeException);
}

TEST(DateTimes, CompareAcrossTimezones) {
    const DateTime utc = Read("2011-01-01T10:00:00Z");
    const DateTime paris = Read("2011-01-01T11:00:00+01:00");
    const DateTime local = Read("2011-01-01T10:00:00");
    EXPECT_TRUE(utc == paris && utc <= paris && utc >= paris && !(utc != paris) && !(utc < paris));
    EXPECT_TRUE(utc != local && !(utc == local) && !(utc < local) && !(utc > local) && !(utc <= local));
    EXPECT_TRUE(local == Read("2011-01-01T10:00:00") && local < Read("2011-01-01T10:00:00.0000001"));
    // 14 hours on either side decide
    EXPECT_TRUE(Read("2010-12-31T19:59:59Z") < local && Read("2010-12-31T20:00:00Z") != local);
    EXPECT_FALSE(Read("2010-12-31T20:00:00Z") < local);
    EXPECT_TRUE(Read("2011-01-02T00:00:01Z") > local);
    EXPECT_FALSE(Read("2011-01-02T00:00:00Z") > local);
}

TEST(DateTimes, CountDaysAndWeeks) {
    const struct {
        const char* date;
        int dayOfYear, weekOfMonth, week;
    } cases[] = {
        {"2011-01-01", 1, 1, 52},  {"2011-01-03", 3, 2, 1},    {"2010-01-03", 3, 1, 53},
        {"2012-12-31", 366, 6, 1}, {"2009-12-31", 365, 5, 53}, {"2021-02-28", 59, 4, 8},
        {"2008-12-29", 364, 5, 1}, {"0001-01-01", 1, 1, 1},    {"0000-12-31", 366, 5, 52},
    };
    for (const auto& c : cases) {
        const DateTime date = Read(c.date);
        EXPECT_EQ(date.DayOfYear(), c.dayOfYear) << c.date;
        EXPECT_EQ(date.WeekOfMonth(), c.weekOfMonth) << c.date;
        EXPECT_EQ(date.Weeknumber(), c.week) << c.date;
    }
}

TEST(DateTimes, GoOutAndComeBackOverTheWholeRange) {
    std::mt19937_64 generator(11);
    for (int i = 0; i < 20000; ++i) {
        const auto zone = static_cast<std::int16_t>(i % 1681 - 840);
        const DateTime value(static_cast<std::int64_t>(generator()),
                             i % 2 == 0 ? DateTime::NO_TIMEZONE : zone);
        const DateTime back = Read(Print(value));
        ASSERT_EQ(back.Value(), value.Value()) << Print(value);
        ASSERT_EQ(back.Timezone(), value.Timezone()) << Print(value);
        std::int32_t year = 0;
        std::uint8_t month = 0;
        std::uint8_t day = 0;
        DateTime::GetDateFromTimeValue(value.Value(), year, month, day);
        ASSERT_EQ(DateTime::InitFromTicks(year, month, day, value.Hour(), value.Minute(),
                                          value.TimeOfDay() % TICKS_PER_MINUTE),
                  value.Value());
    }
}
