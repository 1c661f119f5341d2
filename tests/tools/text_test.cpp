#include "tools/xttml/json_output.h"
#include "tools/xttml/media_time.h"
#include "tools/xttml/text_encoding.h"

#include <gtest/gtest.h>

namespace xttml {
namespace {

struct Utf16Case {
    std::u16string utf16;
    std::string utf8;
};

std::u16string Units(std::initializer_list<char16_t> units) {
    return units;
}

const Utf16Case utf16Cases[] = {
    {u"", ""},
    {u"A\u007F", "A\x7F"},
    {u"\u0080\u07FF", "\xC2\x80\xDF\xBF"},
    {u"\u0800\uFFFF", "\xE0\xA0\x80\xEF\xBF\xBF"},
    {u"\U00010000\U0010FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
    {Units({0xD800}), "\xEF\xBF\xBD"},
    {Units({0xDC00, 'a'}), "\xEF\xBF\xBD"
                           "a"},
    {Units({0xD83D, 'a'}), "\xEF\xBF\xBD"
                           "a"},
    {Units({0xDE00, 0xD83D}), "\xEF\xBF\xBD\xEF\xBF\xBD"},
    {Units({0xD83D, 0xD83D, 0xDE00}), "\xEF\xBF\xBD\xF0\x9F\x98\x80"},
    {Units({'a', 0, 'b'}), std::string("a\0b", 3)},
};

TEST(TextEncoding, MakesValidUtf8OfAnyUtf16) {
    for (const Utf16Case& c : utf16Cases)
        EXPECT_EQ(Utf8FromUtf16(c.utf16), c.utf8);
}

TEST(TextEncoding, ReadsEightBitStringsAsLatin1) {
    EXPECT_EQ(Utf8FromLatin1("a\x80\xE4\xFF"), "a\xC2\x80\xC3\xA4\xC3\xBF");
}

TEST(TextEncoding, SendsNoControlCharacterToATerminal) {
    EXPECT_EQ(OnOneLine("a\nb\tc\x1B[2J\x7F"), "a⏎b␉c␛[2J␡");
    EXPECT_EQ(OnOneLine(std::string("\0", 1)), "␀");
    EXPECT_EQ(OnOneLine("\xC2\x9B"
                        "1m\xC2\xA0ä\xC2"),
              "\xEF\xBF\xBD"
              "1m\xC2\xA0ä\xC2");
}

TEST(TextEncoding, CountsCodePoints) {
    EXPECT_EQ(CodePoints("aä⏎😀"), 4U);
}

TEST(JsonOutput, HoldsValidTextForLoneSurrogates) {
    TextItem item;
    item.styling.strColor = "\xFF\x01";
    item.vecSentence.push_back(new Sentence);
    item.vecSentence[0]->vecText = {0xD800, u'x'};
    item.vecSentence.push_back(new Sentence);
    item.vecSentence[1]->vecText = {0xDC00};
    item.vecContent = {0xDFFF};
    const Json json = Json::parse(ItemToJson(item, ImageBlock(std::vector<std::string>())).dump());
    EXPECT_EQ(json.at("text"), "\xEF\xBF\xBDx\xEF\xBF\xBD");
    EXPECT_EQ(json.at("runs").at(0).at("text"), "\xEF\xBF\xBDx");
    EXPECT_EQ(json.at("content"), "\xEF\xBF\xBD");
    EXPECT_EQ(json.at("styling").at("color").at("text"), "\xC3\xBF\x01");
}

struct TimeCase {
    const char* text;
    std::optional<std::int32_t> milliseconds;
};

const TimeCase timeCases[] = {
    {"0", 0},
    {"1500", 1500},
    {"1500ms", 1500},
    {"1.5s", 1500},
    {"0.1s", 100},
    {"1.2349999999999999s", 1234},
    {"2m", 120000},
    {"1.5h", 5400000},
    {"00:00:01.500", 1500},
    {"00:00:01", 1000},
    {"1:2:3.04", 3723040},
    {"100:59:59.9999", 363599999},
    {"2147483647", 2147483647},
    {"596:31:23.647", 2147483647},
    {"2147483648", std::nullopt},
    {"596:31:23.648", std::nullopt},
    {"2147483.648s", std::nullopt},
    {"99999999999999999999", std::nullopt},
    {"99999999999999999999:00:00", std::nullopt},
    {"", std::nullopt},
    {"-1", std::nullopt},
    {"+1", std::nullopt},
    {" 1", std::nullopt},
    {"1 s", std::nullopt},
    {"1.5", std::nullopt},
    {"1.s", std::nullopt},
    {".5s", std::nullopt},
    {"1e3", std::nullopt},
    {"0x10", std::nullopt},
    {"10f", std::nullopt},
    {"s", std::nullopt},
    {"01:30", std::nullopt},
    {"00:60:00", std::nullopt},
    {"00:00:60", std::nullopt},
    {"00:00:01.", std::nullopt},
    {"00:00:01.5s", std::nullopt},
    {"00::01", std::nullopt},
    {"00:00:01:12", std::nullopt},
};

TEST(MediaTime, ReadsTimes) {
    for (const TimeCase& c : timeCases)
        EXPECT_EQ(ParseTime(c.text), c.milliseconds) << "'" << c.text << "'";
}

TEST(MediaTime, ReadsSignedIntegersOf32Bits) {
    EXPECT_EQ(ParseInteger("-2147483648"), -2147483647 - 1);
    EXPECT_EQ(ParseInteger("010"), 10);
    for (const char* const text : {"", "2147483648", "1.0", "1x", " 1", "+1", "--1"})
        EXPECT_EQ(ParseInteger(text), std::nullopt) << "'" << text << "'";
}

TEST(MediaTime, WritesTimes) {
    EXPECT_EQ(FormatTime(0), "00:00:00.000");
    EXPECT_EQ(FormatTime(3723040), "01:02:03.040");
    EXPECT_EQ(FormatTime(2147483647), "596:31:23.647");
    EXPECT_EQ(FormatTime(-500), "-00:00:00.500");
    EXPECT_EQ(FormatTime(-2147483647 - 1), "-596:31:23.648");
    EXPECT_EQ(FormatTime(-1), "-");
}

} // namespace
} // namespace xttml
