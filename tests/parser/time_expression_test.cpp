#include "parser/ttml_parser.h"

#include "tests/support/outcomes.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct TimeCase {
    const char* text;
    int iFrameRate;
    double fTickRate;
    int iExpected;
};

const TimeCase timeCases[] = {
    // clock times
    {"00:00:01", 30, 1, 1000},
    {"01:02:03.5", 30, 1, 3723500},
    {"01:02:03.25", 30, 1, 3723250},
    {"01:02:03.004", 30, 1, 3723004},
    {"00:00:01.", 30, 1, 1000},
    {"100:00:00", 30, 1, 360000000},
    {"596:31:23.647", 30, 1, 2147483647},
    {"::", 30, 1, 0},
    {"00:59:59.999", 30, 1, 3599999},
    {"00:00:01.5000x", 30, 1, 1500},
    {"00:00:01.1239", 30, 1, 1123},
    // clock times with frames
    {"00:00:01:12", 30, 1, 1400},
    {"00:00:00:01", 30, 1, 33},
    {"00:00:00:02", 30, 1, 66},
    {"00:00:01:29", 30, 1, 1966},
    {"00:00:01:12.5", 25, 1, 1480},
    {"00:00:01:12.500", 25, 1, 1500},
    {"00:00:01:12.5000x", 25, 1, 1500},
    {"00:00:01:12.5x", 25, 1, -1},
    {"00:00:00:00", 0, 1, -1},
    {"00:00:00:00", -5, 1, -1},
    {":::", 30, 1, 0},
    {"00:00:00:2147483646", 2147483647, 1, 999},
    // other counts of colons
    {"01:30", 30, 1, 0},
    {"1:2:3:4:5", 30, 1, 0},
    // offset times
    {"10s ", 30, 1, 10000},
    {"10sxyz", 30, 1, 10000},
    {"s", 30, 1, 0},
    {"2.5s", 30, 1, 2500},
    {".5s", 30, 1, 500},
    {"5.s", 30, 1, 5000},
    {"1.5h", 30, 1, 5400000},
    {"2m", 30, 1, 120000},
    {"5min", 30, 1, 300000},
    {"150ms", 30, 1, 150},
    {"1.9ms", 30, 1, 1},
    {"596h", 30, 1, 2145600000},
    // single precision: 16777217 has no float
    {"16777217ms", 30, 1, 16777216},
    {"0.001s", 30, 1, 0},
    // frames and ticks
    {"75f", 30, 1, 2500},
    {"1.5f", 30, 1, 50},
    {"201f", 25, 1, 8040}, // 8039 when it is divided before it is multiplied
    {"75f", 0, 1, -1},
    {"75f", -1, 1, -1},
    {"18637368750t", 30, 1e7, 1863736},
    {"18637370000t", 30, 1e7, 1863737},
    {"21474836470000t", 30, 1e7, 2147483647},
    {"21474836480000t", 30, 1e7, -1},
    {"5t", 30, 1, 5000},
    {"5t", 30, 0, -1},
};

TEST(TimeExpression, ConvertsToMilliseconds) {
    for (const TimeCase& test : timeCases) {
        EXPECT_EQ(TtmlParser::iGetTimeFromString(test.text, test.iFrameRate, test.fTickRate), test.iExpected)
            << test.text << " at " << test.iFrameRate << " frames, " << test.fTickRate << " ticks";
    }
    for (const std::string& text :
         Split("596:31:23.648|600:00:00|4294967296:00:00|99999999999999999999:00:00|00:60:00|00:00:60|"
               "00:00:01.5x|00:00:-1| 00:00:01|00:00:01 |00.5:00:01|00:x:01|00:00:01:30|00:x.000:1|"
               "00:00:01:x999|00:00:60:00|596:31:23:20||10| 1s|5s.|1.2.3s|-1s|1e3s|597h|"
               "999999999999999999999999999999999999999999s|12x4t"))
        EXPECT_EQ(TtmlParser::iGetTimeFromString(text, 30, 1), -1) << text;
}

TEST(TimeExpression, CountsColonsInSixteenBits) {
    EXPECT_EQ(TtmlParser::iGetTimeFromString(std::string(65536 + 2, ':'), 30), -1);
    EXPECT_EQ(TtmlParser::iGetTimeFromString(std::string(65536 + 1, ':'), 30), 0);
}

TEST(TimeExpression, FindsTheMetric) {
    EXPECT_EQ(TtmlParser::eGetOffsetTimeMetric("1ms"), OFFSET_METRIC_MILLISECONDS);
    EXPECT_EQ(TtmlParser::eGetOffsetTimeMetric("1sm"), OFFSET_METRIC_MINUTES);
    EXPECT_EQ(TtmlParser::eGetOffsetTimeMetric("hs"), OFFSET_METRIC_SECONDS);
    EXPECT_EQ(TtmlParser::eGetOffsetTimeMetric("fth"), OFFSET_METRIC_HOURS);
    EXPECT_EQ(TtmlParser::eGetOffsetTimeMetric("tf"), OFFSET_METRIC_FRAMES);
    EXPECT_EQ(TtmlParser::eGetOffsetTimeMetric("t"), OFFSET_METRIC_TICKS);
    EXPECT_EQ(TtmlParser::eGetOffsetTimeMetric("1 S"), OFFSET_METRIC_NONE);
}

TEST(TimeExpression, TrimsSpacesOnly) {
    for (const auto& [before, after] : {std::pair<std::string, std::string>{"  a b ", "a b"},
                                        {"", ""},
                                        {"   ", ""},
                                        {"\t a\n", "\t a\n"}}) {
        std::string strText = before;
        EXPECT_EQ(&TtmlParser::rTrim(strText), &strText);
        EXPECT_EQ(strText, after);
    }
}

} // namespace
