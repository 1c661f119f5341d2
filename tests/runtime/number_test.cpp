#include "runtime/number.h"

#include "tests/support/outcomes.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <random>

using namespace tessera;

namespace {

constexpr double INFINITE = std::numeric_limits<double>::infinity();

} // namespace

TEST(Numbers, AreClassifiedAndNormalised) {
    const struct {
        const char* text;
        int kind;
        const char* normalised;
    } cases[] = {
        {"0", 1, "0"},        {"+30", 1, "+30"},      {"-007", 1, "-007"},   {".5", 2, "0.5"},
        {"-.5", 2, "-0.5"},   {"5.", 2, "5.0"},       {"25.90", 2, "25.90"}, {"5.e3", 3, "5.0e3"},
        {"5.E3", 3, "5.0E3"}, {".5e-3", 3, "0.5e-3"}, {"3e+1", 3, "3e+1"},   {"1E10", 3, "1E10"},
    };
    for (const auto& c : cases) {
        const LexicalNumber number = ClassifyNumber(c.text);
        EXPECT_EQ(static_cast<int>(number.kind), c.kind) << c.text;
        EXPECT_EQ(number.text, c.normalised) << c.text;
    }
    for (const std::string& text :
         Split("|+|-|.|+.|-.|e5|.e5|1e|1e+|1e-|1e.|1.2.3|1..|--1|1-|1e5.|1e5e|1 2| 1|"
               "1 |0x1|inf|nan|30fps|1,5")) {
        EXPECT_EQ(ClassifyNumber(text).kind, NumberKind::NONE) << text;
    }
    EXPECT_EQ(ClassifyNumber(std::string_view("1\0", 2)).kind, NumberKind::NONE);
    EXPECT_TRUE(IsNumber("\t-INF\r\n") && IsNumber(" NaN ") && IsNumber("INF") && IsNumber(" .5 "));
    EXPECT_FALSE(IsNumber("+INF") || IsNumber("nan") || IsNumber(" ") || IsNumber("1 1"));
}

TEST(Numbers, DoublesArePrintedShortAndPlain) {
    const struct {
        double value;
        std::string text;
    } cases[] = {
        {0.0, "0"},
        {-0.0, "0"},
        {0.1, "0.1"},
        {-2.5, "-2.5"},
        {100, "100"},
        {1.0 / 3, "0.333333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {1e15, "1000000000000000"},
        {123456789012345678.0, "123456789012346000"},
        {100000000000000.5, "100000000000001"}, // halves go up
        {1234567890123.125, "1234567890123.13"},
        {97672746331.292144775390625, "97672746331.2921"}, // times 10^4 it is no half, but rounds to one
        {126519.139178390498, "126519.13917839"},
        {999999999999999.9, "1000000000000000"},
        {0.99999999999999989, "1"},
        {9.99999999999995e34, "999999999999995" + std::string(20, '0')},
        {1e20, "1" + std::string(20, '0')},
        {1e-7, "0.0000001"},
        {1.5e-10, "0.00000000015"},
        {1e300, "1" + std::string(300, '0')},
        {std::numeric_limits<double>::max(), "179769313486232" + std::string(294, '0')},
        {std::numeric_limits<double>::min(), "0." + std::string(307, '0') + "22250738585072"},
        {1e-320, "0." + std::string(320, '0') + "9999"}, // digits fall away while the rest reads back
        {-5e-324, "-0." + std::string(323, '0') + "4"},
        {INFINITE, "INF"},
        {-INFINITE, "-INF"},
        {std::nan(""), "NaN"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(PrintDouble(c.value), c.text);
    }
}

TEST(Numbers, WhateverFifteenDigitsCanHoldComesBack) {
    std::mt19937_64 generator(20);
    const auto expectBack = [](double value) {
        const std::string text = PrintDouble(value);
        ASSERT_EQ(ParseDouble(text), value) << text;
        ASSERT_EQ(text.find_first_of("eE"), std::string::npos) << text;
    };
    for (int i = 0; i < 20000; ++i) {
        const std::uint64_t digits = generator() % 1000000000000000U;
        const int exponent = static_cast<int>(generator() % 620) - 330;
        expectBack(ReadDouble((std::to_string(digits) + "e" + std::to_string(exponent)).c_str()));
    }
    for (int exponent = -323; exponent < 309; ++exponent) {
        const double power = ReadDouble(("1e" + std::to_string(exponent)).c_str());
        expectBack(power);
        expectBack(ReadDouble(("999999999999999e" + std::to_string(exponent - 15)).c_str()));
        expectBack(ReadDouble(("100000000000001e" + std::to_string(exponent - 15)).c_str()));
    }
}

TEST(Numbers, ReadDoubleStopsWhereANumberEnds) {
    const struct {
        const char* text;
        double value;
    } cases[] = {
        {"12.5px", 12.5}, {" \t\n-3e2 ", -300},
        {"1e", 1},        {".5.5", 0.5},
        {"5.", 5},        {"px", 0},
        {"", 0},          {"-", 0},
        {"1,5", 1},       {"1e999", INFINITE},
        {"1e-999", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ReadDouble(c.text), c.value) << c.text;
    }
    EXPECT_EQ(ReadDouble(nullptr), 0);
}

#ifdef XTTML_LOCALES
TEST(Numbers, KeepThePointInALocaleWithAComma) {
    EXPECT_EQ(ReadDouble("0.5"), 0.5); // before LOCPATH is there, over which newlocale() loses memory
    setenv("LOCPATH", XTTML_LOCALES, 1);
    ASSERT_STREQ(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"), "de_DE.UTF-8");
    const double half = ReadDouble("0.5");
    const std::string printed = PrintDouble(0.5) + " " + PrintDouble(1.5e-10);
    std::setlocale(LC_NUMERIC, "C");
    unsetenv("LOCPATH");
    EXPECT_EQ(half, 0.5);
    EXPECT_EQ(printed, "0.5 0.00000000015");
}
#endif
