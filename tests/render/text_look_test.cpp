// What text looks like: sizes, weights, decorations, colours, backgrounds and what is hidden.
#include "tests/render/screenshot.h"

#include <gtest/gtest.h>

namespace xttml::render {
namespace {

int InkOf(const std::string& attributes) {
    return ShootParagraph(attributes, "Hamburg").Count(IsInk);
}

TEST(Font, ASizeThatIsNotGivenIsAFifteenthOfTheRoot) {
    const auto shoot = [](const std::string& attributes) {
        return Shoot(
            Player(Document("", "<div><p begin='0s' end='9s' " + attributes + ">Hamburg</p></div>")));
    };
    EXPECT_EQ(shoot(""), shoot("tts:fontSize='12px'"));
    EXPECT_EQ(shoot(""), shoot("tts:fontSize='0px'"));
    EXPECT_FALSE(shoot("") == shoot("tts:fontSize='13px'"));
}

TEST(Font, LooksAsItsStylingSays) {
    const int plain = InkOf("");
    const Box plainBox = ShootParagraph("", "H").Around(IsInk);
    const Box doubleBox = ShootParagraph("", "<span tts:fontSize='200%'>H</span>").Around(IsInk);
    EXPECT_NEAR(doubleBox.Height(), 2 * plainBox.Height(), 2);
    EXPECT_GT(InkOf("tts:fontWeight='bold'"), plain * 11 / 10);
    EXPECT_FALSE(ShootParagraph("tts:fontStyle='italic'", "lll") == ShootParagraph("", "lll"));
    for (const char* decoration : {"underline", "lineThrough", "overline"})
        EXPECT_GT(InkOf(std::string("tts:textDecoration='") + decoration + "'"), plain) << decoration;
    EXPECT_EQ(InkOf("tts:textDecoration='noUnderline'"), plain);
}

TEST(Font, DecorationsLieWhereTheyBelong) {
    const Box letter = ShootParagraph("", "x").Around(IsInk);
    const auto box = [](const char* decoration) {
        return ShootParagraph(std::string("tts:textDecoration='") + decoration + "'", "x").Around(IsInk);
    };
    EXPECT_GT(box("underline").bottom, letter.bottom);
    EXPECT_EQ(box("underline").top, letter.top);
    EXPECT_LT(box("overline").top, letter.top);
    EXPECT_EQ(box("overline").bottom, letter.bottom);
    EXPECT_EQ(box("lineThrough").Height(), letter.Height());
}

TEST(Font, CombiningMarksStandOnTheirLetter) {
    const Box plain = ShootParagraph("", "xux").Around(IsInk);
    const Box marked = ShootParagraph("", "xu\u0308\u0301x").Around(IsInk);
    EXPECT_LT(marked.top, plain.top);
    EXPECT_EQ(marked.right, plain.right);
}

TEST(Color, OfTextKeepsItsShareAndItsAlpha) {
    const Screenshot opaque = ShootParagraph("tts:color='#FF0000'", "MMM");
    EXPECT_GT(opaque.Count(IsRed), 0);
    EXPECT_EQ(opaque.Count(IsRed), opaque.Count(IsInk));
    const Screenshot half = ShootParagraph("tts:color='rgba(255,0,0,128)'", "MMM");
    EXPECT_EQ(half.Count(IsRed), half.Count(IsInk));
    EXPECT_EQ(half.Count([](const Pixel& pixel) { return pixel.alpha > 128; }), 0);
    EXPECT_GT(half.Count([](const Pixel& pixel) { return pixel.alpha == 128; }), 0);
    EXPECT_EQ(ShootParagraph("tts:color='transparent'", "MMM").Count(IsInk), 0);
}

TEST(Visibility, HiddenTextKeepsItsRoom) {
    EXPECT_EQ(InkOf("tts:visibility='hidden' tts:backgroundColor='red'"), 0);
    const auto shoot = [](const std::string& attributes) {
        return ShootParagraph("", "<span tts:color='red' " + attributes +
                                      ">red</span><span tts:color='blue'>blue</span>");
    };
    const Screenshot hidden = shoot("tts:visibility='hidden' tts:backgroundColor='red'");
    EXPECT_EQ(hidden.Count(IsRed), 0);
    EXPECT_EQ(hidden.Around(IsBlue), shoot("").Around(IsBlue));
}

TEST(Background, OfARegionFillsItsBoxOnce) {
    // without letters in the way; the paragraph takes the region's colour over
    const Screenshot shot = ShootParagraph("tts:backgroundColor='rgba(255,0,0,128)'", "&#xA0;");
    EXPECT_EQ(shot.Around(IsRed), region);
    EXPECT_EQ(shot.Count([](const Pixel& pixel) { return pixel.alpha == 128; }), 240 * 140);
}

TEST(Background, OfTextStandsBehindItsLines) {
    const std::string text =
        "<span tts:backgroundColor='rgba(255,0,0,128)' tts:color='transparent'>"
        "one two three <span tts:fontStyle='italic'>four</span> five six seven eight</span>";
    const Screenshot shot = ShootParagraph("tts:textAlign='center'", text);
    const Box box = shot.Around(IsRed);
    EXPECT_EQ(Intersection(box, region), box);
    EXPECT_LT(box.bottom, 90);
    EXPECT_GT(box.left, region.left);
    const int middle = 160; // from line to line without a seam, and nowhere twice
    for (int y = static_cast<int>(box.top); y < static_cast<int>(box.bottom); ++y)
        EXPECT_EQ(shot.At(middle, y).alpha, 128U) << y;
    EXPECT_EQ(shot.Count(IsRed), shot.Count([](const Pixel& pixel) { return pixel.alpha == 128; }));
}

TEST(Background, WhatIsNoColourIsNotPainted) {
    EXPECT_EQ(ShootParagraph("tts:backgroundColor='Schwarz' tts:color='transparent'", "x").Count(IsInk), 0);
    EXPECT_GT(ShootParagraph("tts:backgroundColor='white' tts:color='transparent'", "x").Count(IsInk), 0);
}

} // namespace
} // namespace xttml::render
