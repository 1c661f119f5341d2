// The renderer itself: the way from root to target, what counts as a change, frames.
#include "tests/render/screenshot.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace xttml::render {
namespace {

const std::string redRegion = Paragraph("tts:backgroundColor='red'", "&#xA0;");

struct Letterbox {
    Size target;
    Box root;
    Box region;
};

TEST(Root, IsScaledIntoTheTarget) {
    const Letterbox cases[] = {
        {{320, 180}, {0, 0, 320, 180}, {40, 20, 280, 160}},
        {{640, 360}, {0, 0, 640, 360}, {80, 40, 560, 320}},
        {{320, 320}, {0, 70, 320, 250}, {40, 90, 280, 230}},
        {{400, 90}, {120, 0, 280, 90}, {140, 10, 260, 80}},
    };
    const Player player(redRegion);
    for (const Letterbox& each : cases) {
        EXPECT_EQ(Renderer(each.target, player.Root()).RootArea(), each.root);
        EXPECT_EQ(Shoot(player, each.target).Around(IsRed), each.region);
    }
    EXPECT_EQ(Renderer({320, 180}).RootArea(), (Box{0, 0, 320, 180}));
}

TEST(Show, TellsWhetherThePictureChanges) {
    const Player player(Document("", R"(<div><p region="r" begin="0s" end="1s">same</p>
        <p region="r" begin="2s" end="3s">same</p><p region="r" begin="4s" end="5s">other</p>
        <p region="r" begin="6s" end="7s" tts:color="red">other</p></div>)"));
    Renderer renderer({320, 180}, player.Root());
    std::string changes;
    for (const int time : {500, 700, 2500, 3500, 3600, 4500, 6500}) {
        const std::vector<DisplayItem*> items = player.ItemsAt(time);
        changes += renderer.Show(items.data(), items.size()) ? "+" : "-";
        EXPECT_EQ(renderer.Bounds().IsEmpty(), items.empty());
    }
    EXPECT_EQ(changes, "+--+-++");
}

TEST(Draw, ClearsTheGroundOrKeepsIt) {
    const Player player(redRegion);
    Renderer renderer({320, 180}, player.Root());
    std::vector<DisplayItem*> items = player.ItemsAt(1000);
    items.push_back(nullptr);
    renderer.Show(items.data(), items.size());
    Screenshot shot({320, 180});
    std::fill(shot.Numbers().begin(), shot.Numbers().end(), 0xFF0000FFU);
    ASSERT_TRUE(renderer.Draw(shot.View(), Ground::KEPT));
    EXPECT_EQ(shot.Count(IsRed), 240 * 140);
    EXPECT_EQ(shot.Count(IsBlue), 320 * 180 - 240 * 140);
    ASSERT_TRUE(renderer.Draw(shot.View()));
    EXPECT_EQ(shot.Count(IsInk), 240 * 140);
}

TEST(Draw, RefusesOtherFrames) {
    Renderer renderer({320, 180});
    Screenshot shot({320, 180});
    const Frame good = shot.View();
    const Frame refused[] = {
        {nullptr, 320, 180, 1280},     {good.pixels, 319, 180, 1280}, {good.pixels, 320, 179, 1280},
        {good.pixels, 320, 180, 1276}, {good.pixels, 320, 180, 1283}, {good.pixels, 320, 180, -1280},
    };
    for (const Frame& frame : refused)
        EXPECT_FALSE(renderer.Draw(frame));
    EXPECT_TRUE(renderer.Draw(good));
    for (const Size size : {Size{0, 180}, Size{320, -1}, Size{16385, 1}, Size{INT32_MAX, INT32_MAX}})
        EXPECT_THROW(Renderer{size}, std::invalid_argument);
}

} // namespace
} // namespace xttml::render
