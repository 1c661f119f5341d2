#include "runtime/utf8.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

using tessera::Utf8FromUtf16;
using tessera::Utf8Writer;

TEST(Utf8, FromUtf16) {
    const struct {
        std::u16string_view text;
        const char* expected;
    } cases[] = {
        {u"", ""},
        {u"a\u007f", "a\x7F"},
        {u"\u0080\u07ff", "\xC2\x80\xDF\xBF"},
        {u"\u0800\ud7ff\ue000\uffff", "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"},
        {u"\U00010000\U0010ffff", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
        {{u"\xd800", 1}, "\xEF\xBF\xBD"},
        {{u"\xdc00\xd800", 2}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
        {{u"\xdc00\xdc00", 2}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
        {{u"\xd800\xd800\xdc00", 3}, "\xEF\xBF\xBD\xF0\x90\x80\x80"},
        {{u"\xdbffx", 2}, "\xEF\xBF\xBDx"},
    };
    for (const auto& test : cases)
        EXPECT_EQ(Utf8FromUtf16(test.text), test.expected);
}

// A character that does not fit ends the text, even when a shorter one after it would fit.
TEST(Utf8, WriterStopsAtTheFirstCharacterThatDoesNotFit) {
    char buffer[] = "xxxxxxxx";
    Utf8Writer writer(buffer, 4);
    writer.Append(u"a\u20ac");
    writer.Append(u"b");
    EXPECT_EQ(writer.Finish(), 5U);
    EXPECT_EQ(std::memcmp(buffer, "a\0xxxxxx", sizeof buffer - 1), 0);
}

} // namespace
