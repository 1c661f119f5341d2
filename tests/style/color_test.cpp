#include "style/color.h"

#include "tests/support/outcomes.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

struct ColorCase {
    const char* text;
    const char* normalised;
    RgbaColor color;
};

constexpr RgbaColor white = {255, 255, 255, 255};

const ColorCase colorCases[] = {
    {"#12345678", "#12345678", {18, 52, 86, 120}},
    {"#abCDef00", "#abCDef00", {171, 205, 239, 0}},
    {"#1234567g", "#1234567g", white},
    {"#ZZZZZZZZ", "#ZZZZZZZZ", white},
    {"rgb(255,0,0)", "#FF0000FF", {255, 0, 0, 255}},
    {"rgba(0,0,0,128)", "#00000080", {0, 0, 0, 128}},
    {"rgba(1,22,173,0)", "#0116AD00", {1, 22, 173, 0}},
    {"rgb is (1,2,3) here", "#010203FF", {1, 2, 3, 255}},
    {"rgb(,,)", "#000000FF", {0, 0, 0, 255}},
    {"rgba(,,,)", "#00000000", {0, 0, 0, 0}},
    {"transparent", "#00000000", {0, 0, 0, 0}},
    {"black", "#000000FF", {0, 0, 0, 255}},
    {"silver", "#C0C0C0FF", {192, 192, 192, 255}},
    {"gray", "#808080FF", {128, 128, 128, 255}},
    {"white", "#FFFFFFFF", white},
    {"maroon", "#800000FF", {128, 0, 0, 255}},
    {"red", "#FF0000FF", {255, 0, 0, 255}},
    {"purple", "#800080FF", {128, 0, 128, 255}},
    {"fuchsia", "#FF00FFFF", {255, 0, 255, 255}},
    {"magenta", "#FF00FFFF", {255, 0, 255, 255}},
    {"green", "#008000FF", {0, 128, 0, 255}},
    {"lime", "#00FF00FF", {0, 255, 0, 255}},
    {"olive", "#808000FF", {128, 128, 0, 255}},
    {"yellow", "#FFFF00FF", {255, 255, 0, 255}},
    {"navy", "#000080FF", {0, 0, 128, 255}},
    {"blue", "#0000FFFF", {0, 0, 255, 255}},
    {"teal", "#008080FF", {0, 128, 128, 255}},
    {"aqua", "#00FFFFFF", {0, 255, 255, 255}},
    {"cyan", "#00FFFFFF", {0, 255, 255, 255}},
};

bool operator==(const RgbaColor& a, const RgbaColor& b) {
    return a.uRed == b.uRed && a.uGreen == b.uGreen && a.uBlue == b.uBlue && a.uAlpha == b.uAlpha;
}

void vExpect(const ColorCase& test) {
    std::string strText = test.text;
    EXPECT_EQ(strFormatColor(strText), test.normalised) << test.text;
    EXPECT_EQ(strText, test.text);
    EXPECT_TRUE(rMapColor(strText) == test.color) << test.text;
}

TEST(Color, NormalisesAndMaps) {
    for (const ColorCase& test : colorCases)
        vExpect(test);
    for (const std::string& text :
         Split("#FFF|#|rgb(255, 0, 0)|rgb(256,0,0)|rgb(4294967296,0,0)|rgb(99999999999999999999,0,0)|"
               "rgb(-1,0,0)|rgb(1,2)|rgba(1,2,3)|rgb(1,2,3,4)|rgb)1,2,3(|rgb(1,2,3|rgb(1,2),3|rgb|"
               "RGB(1,2,3)|Red| red|"))
        vExpect({text.c_str(), "#FFFFFFFF", white});
}

TEST(Color, GivesSixDigitsTheirAlphaInPlace) {
    std::string strText = "#ff8000";
    EXPECT_EQ(strFormatColor(strText), "#ff8000FF");
    EXPECT_EQ(strText, "#ff8000FF");
    std::string strAgain = "#ff8000";
    EXPECT_TRUE(rMapColor(strAgain) == (RgbaColor{255, 128, 0, 255}));
    EXPECT_EQ(strAgain, "#ff8000FF");
}

TEST(Color, ReadsDigitsInARange) {
    struct {
        const char* text;
        int iFirst, iLast;
        bool fgDigits;
        int iValue;
    } const cases[] = {
        {"12a", 0, 2, false, 255},
        {"12a", 0, 1, true, 12},
        {"12a", 3, 2, true, 0},
        {"x045", 1, 3, true, 45},
        {"12", 0, 2, false, 255},
        {"12", -1, 1, false, 255},
        {"99999999999", 0, 10, true, INT_MAX},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.text);
        int iValue = -1;
        EXPECT_EQ(fgConvertStrToInt(test.text, test.iFirst, test.iLast, iValue), test.fgDigits);
        EXPECT_EQ(iValue, test.iValue);
    }
}

} // namespace
