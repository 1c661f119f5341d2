// Where ink is and where it is not.
#include "tests/render/screenshot.h"

#include <gtest/gtest.h>

namespace xttml::render {
namespace {

constexpr double sideBearing = 4; // px that a font of 20 px may leave free beside a letter
constexpr char hebrew[] = "שלום";
constexpr char latin[] = "Shalom";

enum class Side { LEFT, CENTER, RIGHT };

struct TextAlign {
    const char* keyword;
    const char* text;
    Side expected;
};

TEST(TextAlign, StartAndEndFollowTheDirectionOfTheText) {
    const TextAlign cases[] = {
        {"left", latin, Side::LEFT},
        {"center", latin, Side::CENTER},
        {"right", latin, Side::RIGHT},
        {"start", latin, Side::LEFT},
        {"end", latin, Side::RIGHT},
        {"left", hebrew, Side::LEFT},
        {"start", hebrew, Side::RIGHT},
        {"center", hebrew, Side::CENTER},
        {"end", hebrew, Side::LEFT},
        // the second line begins with Latin letters; the first strong character of all is Hebrew
        {"start", "ש<br/>abcdef", Side::RIGHT},
        {"start", "12 - ש", Side::RIGHT},
    };
    for (const TextAlign& each : cases) {
        SCOPED_TRACE(std::string(each.keyword) + " " + each.text);
        const std::string attribute = std::string("tts:textAlign=\"") + each.keyword + "\"";
        const Box ink = ShootParagraph(attribute, each.text).Around(IsInk);
        ASSERT_FALSE(ink.IsEmpty());
        const double leftGap = ink.left - region.left;
        const double rightGap = region.right - ink.right;
        EXPECT_EQ(leftGap <= sideBearing, each.expected == Side::LEFT) << leftGap;
        EXPECT_EQ(rightGap <= sideBearing, each.expected == Side::RIGHT) << rightGap;
        EXPECT_EQ(std::abs(leftGap - rightGap) <= 2 * sideBearing, each.expected == Side::CENTER);
    }
}

TEST(DisplayAlign, PlacesTheLines) {
    const Box before = ShootParagraph("tts:displayAlign='before'", latin).Around(IsInk);
    const Box center = ShootParagraph("tts:displayAlign='center'", latin).Around(IsInk);
    const Box after = ShootParagraph("tts:displayAlign='after'", latin).Around(IsInk);
    EXPECT_LT(before.bottom, 60);
    EXPECT_GT(after.top, 120);
    EXPECT_NEAR(center.top - before.top, after.top - center.top, 1);
    EXPECT_NEAR(before.left, after.left, 0);
}

TEST(Lines, StayInsideTheRegion) {
    const char* const texts[] = {
        "Much more text than the region can ever hold, gjpqy gjpqy gjpqy gjpqy incomprehensibilities",
        "Donaudampfschifffahrtselektrizitätenhauptbetriebswerkbauunterbeamtengesellschaft",
        "字幕字幕字幕字幕字幕字幕字幕字幕字幕字幕字幕字幕字幕字幕字幕字幕字幕字幕字幕字幕",
    };
    for (const char* text : texts) {
        for (const char* align : {"before", "center", "after"}) {
            const std::string attribute = std::string("tts:displayAlign='") + align + "'";
            const Box ink = ShootParagraph(attribute, text).Around(IsInk);
            EXPECT_EQ(Intersection(ink, region), ink) << text;
            EXPECT_GT(ink.Height(), 40) << text;
        }
    }
}

TEST(Lines, LowOnesDoNotCutLettersAtTheEdges) {
    for (const std::string align : {"before", "after"}) {
        const std::string attributes = "tts:displayAlign='" + align + "' tts:lineHeight='";
        const Box whole = ShootParagraph(attributes + "0px'", "Égjpq").Around(IsInk);
        EXPECT_EQ(ShootParagraph(attributes + "5px'", "Égjpq").Around(IsInk).Height(), whole.Height());
    }
}

TEST(Lines, StandAsFarApartAsTheLineHeightSays) {
    for (const int height : {60, 5}) {
        const Screenshot shot =
            ShootParagraph("tts:lineHeight='" + std::to_string(height) + "px'", "--<br/>--");
        const int top = static_cast<int>(shot.Around(IsInk).top);
        for (int y = top; y < top + height; ++y) {
            for (int x = 40; x < 280; ++x)
                ASSERT_EQ(shot.At(x, y).alpha, shot.At(x, y + height).alpha) << x << ", " << y;
        }
    }
}

TEST(Items, OfOneRegionStandOneBelowTheOther) {
    const Player player(Document("tts:displayAlign='after'", R"(<div>
        <p region="r" begin="0s" end="9s" tts:color="red">first</p>
        <p region="r" begin="0s" end="9s" tts:color="blue" tts:textAlign="right">second</p></div>)"));
    const Screenshot shot = Shoot(player);
    const Box red = shot.Around(IsRed);
    const Box blue = shot.Around(IsBlue);
    EXPECT_LE(red.bottom, blue.top);
    EXPECT_GT(red.top, 100);
    EXPECT_LT(red.left, 60);
    EXPECT_GT(blue.right, 260);
}

TEST(Runs, StandInTheOrderOfTheirDirection) {
    const Screenshot latinShot =
        ShootParagraph("", "<span tts:color='red'>red</span> <span tts:color='blue'>blue</span>");
    EXPECT_LT(latinShot.Around(IsRed).right, latinShot.Around(IsBlue).left);
    const Screenshot hebrewShot =
        ShootParagraph("", "<span tts:color='red'>אדום</span> <span tts:color='blue'>כחול</span>");
    EXPECT_GT(hebrewShot.Around(IsRed).left, hebrewShot.Around(IsBlue).right);
    const Screenshot mixed = // Latin in Hebrew: its place is mirrored, its letters are not
        ShootParagraph("", "אב <span tts:color='red'>HELL</span><span tts:color='blue'>O</span> גד");
    EXPECT_LT(mixed.Around(IsRed).right, mixed.Around(IsBlue).right);
    EXPECT_LT(mixed.Around(IsRed).left, mixed.Around(IsBlue).left);
}

} // namespace
} // namespace xttml::render
