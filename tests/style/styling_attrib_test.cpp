#include "style/styling_attrib.h"

#include "style/keywords.h"
#include "tests/support/outcomes.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

TEST(StylingAttrib, StartsWithTheDefaults) {
    const StylingAttrib attrib;
    EXPECT_EQ(attrib.strBackgroundColor, "transparent");
    EXPECT_EQ(attrib.strColor, "#FFFFFFFF");
    EXPECT_EQ(attrib.strReserved1, "1.0");
    EXPECT_EQ(attrib.strReserved2 + attrib.strReserved3 + attrib.strReserved4 + attrib.strReserved5, "");
    EXPECT_EQ(attrib.uExtentWidth | attrib.uExtentHeight | attrib.uOriginX | attrib.uOriginY, 0U);
    EXPECT_EQ(attrib.uFontSize | attrib.uLineHeight | attrib.uReserved4 | attrib.uReserved6, 0U);
    for (const ReservedPair& pair : attrib.aReservedPairs)
        EXPECT_EQ(pair.uFirst | pair.uSecond, 0U);
    EXPECT_EQ(attrib.iReserved1 | attrib.iReserved2 | attrib.iReserved3 | attrib.iReserved5, 0);
    EXPECT_EQ(attrib.iFontStyle | attrib.iFontWeight | attrib.iVisibility, 0);
    EXPECT_EQ(int(attrib.eDisplayAlign) + int(attrib.eTextAlign) + int(attrib.eTextDecoration), 0);
    for (const bool flag :
         {attrib.fgColorSet, attrib.fgFontSizeSet, attrib.fgFontWeightSet, attrib.fgFontStyleSet,
          attrib.fgLineHeightSet, attrib.fgReserved1, attrib.fgTextAlignSet, attrib.fgReserved2,
          attrib.fgTextDecorationSet, attrib.fgVisibilitySet, attrib.fgDisplayAlignSet})
        EXPECT_FALSE(flag);
}

TEST(StylingAttrib, AMoveIsACopy) {
    StylingAttribGroup source;
    source.strId = "an identifier that is long enough for the heap";
    source.attrib.strColor = "a colour that is long enough for the heap";
    const StylingAttribGroup same = source;
    StylingAttribGroup moved = std::move(source);
    moved = std::move(source);
    moved = static_cast<const StylingAttribGroup&>(moved);
    for (const StylingAttribGroup& group : {source, moved}) {
        EXPECT_EQ(group.strId, same.strId);
        EXPECT_EQ(group.attrib.strColor, same.attrib.strColor);
    }
}

TEST(StylingAttrib, ConvertsKeywords) {
    struct Case {
        std::string text;
        int iDisplayAlign, iTextAlign, iTextDecoration, iFontStyle, iFontWeight, iVisibility;
    };
    std::vector<Case> cases = {
        {"center", 1, 1, 0, 0, 0, 0},        {"after", 2, 3, 0, 0, 0, 0},
        {"left", 0, 0, 0, 0, 0, 0},          {"right", 0, 2, 0, 0, 0, 0},
        {"end", 0, 4, 0, 0, 0, 0},           {"underline", 0, 3, 1, 0, 0, 0},
        {"noUnderline", 0, 3, 2, 0, 0, 0},   {"lineThrough", 0, 3, 3, 0, 0, 0},
        {"noLineThrough", 0, 3, 4, 0, 0, 0}, {"overline", 0, 3, 5, 0, 0, 0},
        {"noOverline", 0, 3, 6, 0, 0, 0},    {"italic", 0, 3, 0, 1, 0, 0},
        {"bold", 0, 3, 0, 0, 1, 0},          {"hidden", 0, 3, 0, 0, 0, 1},
    };
    for (const std::string& text : Split("before|CENTER|start|underline overline|oblique|700|visible||bold "))
        cases.push_back({text, 0, 3, 0, 0, 0, 0});
    for (const Case& test : cases) {
        SCOPED_TRACE(test.text);
        EXPECT_EQ(eDisplayAlignFromKeyword(test.text), test.iDisplayAlign);
        EXPECT_EQ(eTextAlignFromKeyword(test.text), test.iTextAlign);
        EXPECT_EQ(eTextDecorationFromKeyword(test.text), test.iTextDecoration);
        EXPECT_EQ(iFontStyleFromKeyword(test.text), test.iFontStyle);
        EXPECT_EQ(iFontWeightFromKeyword(test.text), test.iFontWeight);
        EXPECT_EQ(iVisibilityFromKeyword(test.text), test.iVisibility);
    }
}

} // namespace
