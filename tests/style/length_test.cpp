#include "style/length.h"

#include "tests/support/captured_output.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <regex>
#include <string_view>
#include <vector>

namespace {

struct LengthCase {
    std::string_view text;
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
    {"1000000000000000000000000000000000000000em", std::numeric_limits<float>::infinity(), LENGTH_UNIT_EM,
     "1000000000000000000000000000000000000000\n"},
};

constexpr std::string_view noLengths[] = {
    "-5px", "+5px", "1e3px", "24PX", "24pt", "24px\n", {"24px\0", 5}, {"24\0px", 5}, "",
};

void vExpectLength(const LengthCase& test) {
    SCOPED_TRACE(test.text);
    float fValue = -1;
    length_unit_e eUnit = LENGTH_UNIT_EM;
    bool fgRead = false;
    const std::string strOutput =
        CapturedOutput([&] { fgRead = fgGetLength(std::string(test.text), fValue, eUnit); });
    EXPECT_EQ(fgRead, test.eUnit != LENGTH_UNIT_NONE);
    EXPECT_EQ(fValue, test.fValue);
    EXPECT_EQ(eUnit, test.eUnit);
    EXPECT_EQ(strOutput, test.output);
}

TEST(Length, ReadsOneLengthAndWritesItsNumber) {
    for (const LengthCase& test : lengthCases)
        vExpectLength(test);
    for (const std::string_view text : noLengths)
        vExpectLength({text, 0, LENGTH_UNIT_NONE, ""});
}

struct PairCase {
    std::string_view text;
    float fFirst;
    float fSecond;
    length_unit_e eUnit;
};

constexpr PairCase pairCases[] = {
    {"640px 480px", 640, 480, LENGTH_UNIT_PX},
    {"640px\t480px", 640, 480, LENGTH_UNIT_PX},
    {"640px\n480.5px", 640, 480.5F, LENGTH_UNIT_PX},
    {"50% 25.5%", 50, 25.5F, LENGTH_UNIT_PERCENT},
};

constexpr std::string_view noPairs[] = {
    "640px  480px",   "640px 50%", "50% 640px", "640px",    "640px480px", {"1px\0002px", 7},
    {"1px 2px\0", 8}, "1em 2em",   "auto",      " 1px 2px", "",
};

void vExpectPair(const PairCase& test) {
    SCOPED_TRACE(test.text);
    float fFirst = -1;
    float fSecond = -1;
    length_unit_e eUnit = LENGTH_UNIT_EM;
    bool fgRead = false;
    const std::string strOutput =
        CapturedOutput([&] { fgRead = fgGetDoubleLength(std::string(test.text), fFirst, fSecond, eUnit); });
    EXPECT_EQ(fgRead, test.eUnit != LENGTH_UNIT_NONE);
    EXPECT_EQ(fFirst, test.fFirst);
    EXPECT_EQ(fSecond, test.fSecond);
    EXPECT_EQ(eUnit, test.eUnit);
    EXPECT_EQ(strOutput, "");
}

TEST(Length, ReadsAPairSilently) {
    for (const PairCase& test : pairCases)
        vExpectPair(test);
    for (const std::string_view text : noPairs)
        vExpectPair({text, 0, 0, LENGTH_UNIT_NONE});
}

/// Whether both readers take a text for what the grammar of lengths says.
bool fgAgrees(const std::string& strText) {
    static const std::regex length("[0-9]+(\\.[0-9]+)?(px|%|c|em)");
    static const std::regex pixels("[0-9]+(\\.[0-9]+)?px\\s[0-9]+(\\.[0-9]+)?px");
    static const std::regex percent("[0-9]+(\\.[0-9]+)?%\\s[0-9]+(\\.[0-9]+)?%");
    float fFirst = 0;
    float fSecond = 0;
    length_unit_e eUnit = LENGTH_UNIT_NONE;
    const bool fgRead = fgGetLength(strText, fFirst, eUnit);
    const bool fgNumber = fFirst == static_cast<float>(fgRead ? std::atof(strText.c_str()) : 0);
    const bool fgPair = fgGetDoubleLength(strText, fFirst, fSecond, eUnit);
    return fgNumber && fgRead == std::regex_match(strText, length) &&
           (fgPair && eUnit == LENGTH_UNIT_PX) == std::regex_match(strText, pixels) &&
           (fgPair && eUnit == LENGTH_UNIT_PERCENT) == std::regex_match(strText, percent);
}

TEST(Length, AcceptsWhatTheGrammarAccepts) {
    constexpr std::string_view characters = "05.px%cem \ta";
    constexpr std::size_t uLongest = 5;
    std::vector<std::string> vecDisagreed;
    std::vector<std::string> vecTexts = {""};
    for (int i = 1; i < 256; ++i)
        vecTexts.push_back(std::string("1px") + static_cast<char>(i) + "2px");
    CapturedOutput([&] {
        for (std::size_t i = 0; i < vecTexts.size(); ++i) {
            if (!fgAgrees(vecTexts[i]))
                vecDisagreed.push_back(vecTexts[i]);
            for (const char character : vecTexts[i].size() < uLongest ? characters : "")
                vecTexts.push_back(vecTexts[i] + character);
        }
    });
    EXPECT_EQ(vecDisagreed, std::vector<std::string>());
}

TEST(Length, ReadsNumbersLikeAtof) {
    constexpr float fLargest = std::numeric_limits<float>::max();
    constexpr float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(fStr2Float("3.4028235e38"), fLargest);
    EXPECT_EQ(fStr2Float("-3.40282356e38"), -fLargest);
    EXPECT_EQ(fStr2Float("0x1.ffffffp127"), infinity) << "half a step beyond";
    EXPECT_TRUE(std::isnan(fStr2Float("nan")));
    EXPECT_EQ(fStr2Float(" \n-2.5e1x"), -25.0F);
    EXPECT_EQ(fStr2Float("none"), 0.0F);
    EXPECT_EQ(fStr2Float(""), 0.0F);
    EXPECT_EQ(fStr2Float("1e60"), infinity);
    EXPECT_EQ(fStr2Float("-1e60"), -infinity);
}

TEST(Length, SeparatesByWhiteSpaceOfTheCLocale) {
    ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr);
    float fFirst = 0;
    float fSecond = 0;
    length_unit_e eUnit = LENGTH_UNIT_NONE;
    EXPECT_FALSE(fgGetDoubleLength("1px\u20032px", fFirst, fSecond, eUnit)) << "an em space";
    std::setlocale(LC_CTYPE, "C");
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
