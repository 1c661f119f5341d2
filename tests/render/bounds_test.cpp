// Documents that ask for more than there is: a reason, and an end in time.
#include "tests/render/screenshot.h"
#include "tests/support/repeated.h"

#include <gtest/gtest.h>

namespace xttml::render {
namespace {

std::string WithExtent(const std::string& extent, std::string document) {
    const std::string usual = "320px 180px";
    return document.replace(document.find(usual), usual.size(), extent);
}

struct Extreme {
    const char* description;
    std::string document;
    const char* remark;
};

TEST(Bounds, WhatIsTooMuchHasARemark) {
    const std::string item = "<p begin='0s' end='9s' region='r'>x</p>";
    const std::string box = "<p begin='0s' end='9s' tts:origin='";
    const std::string huge = "4294967295px";
    const Extreme cases[] = {
        {"100,000 items", Document("", "<div>" + Repeated(item, 100000) + "</div>"),
         "more items than are drawn at one time"},
        {"a million letters", Paragraph("", Repeated("wide ", 200000)),
         "more text than is drawn at one time"},
        {"100,000 runs", Paragraph("", Repeated("<span/><br/>", 100000)),
         "more text than is drawn at one time"},
        {"10,000 letters in 1 px",
         Document("", "<div>" + box + "0px 0px' tts:extent='1px 180px'>" + Repeated("letters ", 1250) +
                          "</p></div>"),
         nullptr},
        {"5,000 marks on a letter", Paragraph("", "e" + Repeated("\u0301", 5000)), nullptr},
        {"font size 4294967295", Paragraph("", "<span tts:fontSize='" + huge + "'>AB</span>"), nullptr},
        {"line height 4294967295", Paragraph("tts:lineHeight='" + huge + "'", "A<br/>B"), nullptr},
        {"outside", Document("", "<div>" + box + "320px 0px'>x</p></div>"),
         "its area is empty or outside the root container"},
        {"far outside", Document("", "<div>" + box + huge + " " + huge + "'>x</p></div>"),
         "its area is empty or outside the root container"},
        {"endless area",
         Document("", "<div>" + box + "0px 0px' tts:extent='" + huge + " " + huge +
                          "' tts:textAlign='center'>x</p></div>"),
         nullptr},
        {"no root", WithExtent("0px 0px", Paragraph("", "x")), nullptr},
        {"endless root", WithExtent("20000000px 1px", Paragraph("", "x")),
         "its area is empty or outside the root container"},
        {"more than a number", WithExtent(huge + " " + huge, Paragraph("", "x")), nullptr},
    };
    for (const Extreme& each : cases) {
        SCOPED_TRACE(each.description);
        Renderer renderer = Showing(Player(each.document));
        Screenshot shot({320, 180});
        EXPECT_TRUE(renderer.Draw(shot.View()));
        const std::string remark = renderer.Remarks().empty() ? "" : renderer.Remarks().front().reason;
        EXPECT_EQ(remark, each.remark ? each.remark : "");
        EXPECT_LE(renderer.Remarks().size(), 1U);
    }
}

TEST(Bounds, WhatIsPaintedSharesARoomOf32Frames) {
    std::string regions;
    std::string items;
    for (int i = 0; i < 100; ++i) {
        const std::string id = "r" + std::to_string(i);
        regions +=
            "/><region xml:id='" + id + "' tts:backgroundColor='#0000" + std::to_string(10 + i % 90) + "08'";
        items += "<p begin='0s' end='9s' region='" + id + "'>x</p>";
    }
    const Renderer renderer = Showing(Player(Document(regions, "<div>" + items + "</div>")));
    ASSERT_FALSE(renderer.Remarks().empty());
    EXPECT_GE(renderer.Remarks().front().item, 20U);
    EXPECT_LE(renderer.Remarks().front().item, 32U);
    EXPECT_EQ(renderer.Remarks().front().reason,
              "larger pictures, backgrounds and letters than are drawn at one time");
}

} // namespace
} // namespace xttml::render
