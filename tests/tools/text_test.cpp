#include "tools/xttml/document/image_block.h"
#include "tools/xttml/output/json_output.h"
#include "tools/xttml/text/media_time.h"
#include "tools/xttml/text/text_encoding.h"

#include "tests/support/outcomes.h"

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

TEST(JsonOutput, EscapesEveryControlCharacter) {
    const std::string text = "a\n\x7F\xC2\x80\xC2\x9F\xC2\xA0ä";
    EXPECT_EQ(ToText(text), "\"a\\n\\u007f\\u0080\\u009f\xC2\xA0ä\"");
    EXPECT_EQ(Quoted(text), ToText(text));
    EXPECT_EQ(Json::parse(Quoted("\"\\\t")), "\"\\\t");
}

std::string PngFile(std::string_view header, std::string_view size) {
    return "\x89PNG\r\n\x1A\n" + std::string("\0\0\0\x0D", 4) + std::string(header) + std::string(size);
}

TEST(ImageBlock, ReadsTheSizeFromTheHeaderAlone) {
    const std::string_view size("\0\0\1\2\x80\0\0\3", 8);
    const std::optional<PixelSize> found = PixelSizeOf(PngFile("IHDR", size));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->width, 258U);
    EXPECT_EQ(found->height, 0x80000003U);
    for (const std::string& no : {PngFile("IHDR", size.substr(0, 7)), PngFile("IDAT", size),
                                  PngFile("IHDR", size).substr(1), std::string()})
        EXPECT_FALSE(PixelSizeOf(no));
}

struct TimeCase {
    const char* text;
    MediaTime milliseconds;
};

const TimeCase timeCases[] = {
    {"0", 0},
    {"1500", 1500},
    {"1500ms", 1500},
    {"1.5s", 1500},
    {"0.1s", 100},
    {".5s", 500},
    {"1.2349999999999999s", 1234},
    {"2m", 120000},
    {"1.5h", 5400000},
    {"00:00:01.500", 1500},
    {"00:00:01", 1000},
    {"1:2:3.04", 3723040},
    {"100:59:59.9999", 363599999},
    {"2147483647", 2147483647},
    {"596:31:23.647", 2147483647},
};

TEST(MediaTime, ReadsTimes) {
    for (const TimeCase& c : timeCases) {
        const std::optional<WrittenTime> time = ParseTime(c.text);
        ASSERT_TRUE(time) << c.text;
        EXPECT_EQ(time->milliseconds, c.milliseconds) << c.text;
        EXPECT_FALSE(time->hasFrames);
    }
    for (const std::string& text :
         Split("2147483648|596:31:23.648|2147483.648s|99999999999999999999|99999999999999999999:00:00||-1|"
               "+1| 1|1 s|1.5|1.s|.5|.s|1e3|0x10|10f|s|01:30|00:60:00|00:00:60|00:00:01.|00:00:01.5s|"
               "00::01|00:00:01:|00:00:01:12.5|00:00:01.5:12|00:01:12:00:00"))
        EXPECT_FALSE(ParseTime(text)) << "'" << text << "'";
}

TEST(MediaTime, ReadsFrames) {
    const WrittenTime time = ParseTime("00:01:02:03").value();
    EXPECT_EQ(std::tie(time.milliseconds, time.frames, time.hasFrames), std::make_tuple(62000, 3, true));
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
    EXPECT_EQ(FormatTime(-1), "-00:00:00.001");
    EXPECT_EQ(FormatTime(std::int64_t{2147483647} * 2), "1193:02:47.294");
    EXPECT_EQ(FormatTime(std::nullopt), "-");
}

} // namespace
} // namespace xttml
