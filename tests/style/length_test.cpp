#include "style/length.h"

#include "tests/support/captured_output.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

namespace {

struct LengthCase {
    const char* text;
    float fValue;
    length_unit_e eUnit;
    const char* output;
};

constexpr LengthCase lengthCases[] = {
    {"24px", 24.0F, LENGTH_UNIT_PX, "24\n"},
    {"1.5em", 1.5F, LENGTH_UNIT_EM, "1.5\n"},
    {"2c", 2.0F, LENGTH_UNIT_C, "2\n"},
    {"50%", 50.0F, LENGTH_UNIT_PERCENT, "50\n"},
    {"007.250px", 7.25F, LENGTH_UNIT_PX, "007.250\n"},
    {"24 px", 0, LENGTH_UNIT_NONE, ""},
    {"-5px", 0, LENGTH_UNIT_NONE, ""},
    {"+5px", 0, LENGTH_UNIT_NONE, ""},
    {".5px", 0, LENGTH_UNIT_NONE, ""},
    {"5.px", 0, LENGTH_UNIT_NONE, ""},
    {"1e3px", 0, LENGTH_UNIT_NONE, ""},
    {"24PX", 0, LENGTH_UNIT_NONE, ""},
    {"24pt", 0, LENGTH_UNIT_NONE, ""},
    {"24px ", 0, LENGTH_UNIT_NONE, ""},
    {"24px\n", 0, LENGTH_UNIT_NONE, ""},
    {"px", 0, LENGTH_UNIT_NONE, ""},
    {"24", 0, LENGTH_UNIT_NONE, ""},
    {"", 0, LENGTH_UNIT_NONE, ""},
};

TEST(Length, ReadsOneLengthAndWritesItsNumber) {
    for (const LengthCase& test : lengthCases) {
        SCOPED_TRACE(test.text);
        float fValue = -1;
        length_unit_e eUnit = LENGTH_UNIT_EM;
        bool fgRead = false;
        const std::string strOutput = CapturedOutput([&] { fgRead = fgGetLength(test.text, fValue, eUnit); });
        EXPECT_EQ(fgRead, test.eUnit != LENGTH_UNIT_NONE);
        EXPECT_EQ(fValue, test.fValue);
        EXPECT_EQ(eUnit, test.eUnit);
        EXPECT_EQ(strOutput, test.output);
    }
}

struct PairCase {
    const char* text;
    float fFirst;
    float fSecond;
    length_unit_e eUnit;
};

constexpr PairCase pairCases[] = {
    {"640px 480px", 640, 480, LENGTH_UNIT_PX},
    {"640px\t480px", 640, 480, LENGTH_UNIT_PX},
    {"640px\n480.5px", 640, 480.5F, LENGTH_UNIT_PX},
    {"50% 25.5%", 50, 25.5F, LENGTH_UNIT_PERCENT},
    {"640px  480px", 0, 0, LENGTH_UNIT_NONE},
    {"640px 50%", 0, 0, LENGTH_UNIT_NONE},
    {"50% 640px", 0, 0, LENGTH_UNIT_NONE},
    {"640px", 0, 0, LENGTH_UNIT_NONE},
    {"640px480px", 0, 0, LENGTH_UNIT_NONE},
    {"1em 2em", 0, 0, LENGTH_UNIT_NONE},
    {"auto", 0, 0, LENGTH_UNIT_NONE},
    {" 1px 2px", 0, 0, LENGTH_UNIT_NONE},
    {"", 0, 0, LENGTH_UNIT_NONE},
};

TEST(Length, ReadsAPairSilently) {
    for (const PairCase& test : pairCases) {
        SCOPED_TRACE(test.text);
        float fFirst = -1;
        float fSecond = -1;
        length_unit_e eUnit = LENGTH_UNIT_EM;
        bool fgRead = false;
        const std::string strOutput =
            CapturedOutput([&] { fgRead = fgGetDoubleLength(test.text, fFirst, fSecond, eUnit); });
        EXPECT_EQ(fgRead, test.eUnit != LENGTH_UNIT_NONE);
        EXPECT_EQ(fFirst, test.fFirst);
        EXPECT_EQ(fSecond, test.fSecond);
        EXPECT_EQ(eUnit, test.eUnit);
        EXPECT_EQ(strOutput, "");
    }
}

TEST(Length, ReadsNumbersLikeAtof) {
    EXPECT_EQ(fStr2Float(" \n-2.5e1x"), -25.0F);
    EXPECT_EQ(fStr2Float("none"), 0.0F);
    EXPECT_EQ(fStr2Float(""), 0.0F);
    EXPECT_TRUE(std::isinf(fStr2Float("1e60")));
    EXPECT_TRUE(std::isinf(fStr2Float("-1e60")));
}

TEST(Length, IgnoresTheLocaleOfTheProcess) {
    const char* const pChosen = std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
    if (!pChosen)
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    EXPECT_EQ(fStr2Float("1.5"), 1.5F);
    std::setlocale(LC_NUMERIC, "C");
}

TEST(Length, WholePixelsAreTruncatedAndClamped) {
    EXPECT_EQ(uWholePixels(2.99F), 2U);
    EXPECT_EQ(uWholePixels(-1.0F), 0U);
    EXPECT_EQ(uWholePixels(4294967040.0F), 4294967040U);
    EXPECT_EQ(uWholePixels(4294967296.0F), 4294967295U);
    EXPECT_EQ(uWholePixels(std::numeric_limits<float>::infinity()), 4294967295U);
    EXPECT_EQ(uWholePixels(std::numeric_limits<float>::quiet_NaN()), 0U);
}

} // namespace
