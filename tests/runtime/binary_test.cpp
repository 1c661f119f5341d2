#include "runtime/binary.h"
#include "runtime/exceptions.h"

#include "tests/support/outcomes.h"

#include <gtest/gtest.h>

using namespace tessera;

namespace {

std::string Text(const std::vector<unsigned char>& bytes) {
    return std::string(bytes.begin(), bytes.end());
}

} // namespace

TEST(Base64, IsRead) {
    const struct {
        std::string text;
        std::string bytes;
    } cases[] = {
        {"", ""},
        {" \t\r\n", ""},
        {"TWFu", "Man"},
        {"TWE=", "Ma"},
        {"TW==", "M"},
        {"T W\tF\r\nu ", "Man"},
        {" T W = = ", "M"},
        {"TWFuTWFu\r\nTWFu", "ManManMan"},
        {"TQ==TWFu", "MMan"}, // padding ends a group, not the text
        {"TR==", "M"},        // what padding leaves over is dropped
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Text(ParseBase64(c.text)), c.bytes) << c.text;
    }
}

TEST(Base64, IsRejectedGroupByGroup) {
    const struct {
        std::string text;
        std::string value;
    } cases[] = {
        {"TW=", "TW="},
        {"TWFuT", "T"},
        {"TWFu T W F ", "T W F "},
        {"TWFu TW-u TWFu", "TW-u"},
        {"T W*F", "T W*F"},
        {"=WFu", "=WFu"},
        {"T===", "T==="},
        {"TW=u", "TW=u"},
        {"TW\x80\xff", "TW\x80\xff"},
        {std::string("TW\0u", 4), std::string("TW\0u", 4)},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ThrownMessage<StringParseException>([&] { ParseBase64(c.text); }),
                  "'" + c.value + "' could not be parsed as base64Binary");
    }
}

TEST(Hex, IsRead) {
    EXPECT_EQ(ParseHex("0a1B"), (std::vector<unsigned char>{0x0A, 0x1B}));
    EXPECT_EQ(ParseHex(" \r\nFfaA\t "), (std::vector<unsigned char>{0xFF, 0xAA}));
    EXPECT_TRUE(ParseHex("").empty());
    EXPECT_TRUE(ParseHex(" \n").empty());
    EXPECT_EQ(PrintHex({0x0A, 0x1B, 0xFF, 0x00}), "0A1BFF00");
}

TEST(Hex, IsRejected) {
    const struct {
        const char* text;
        const char* value;
    } cases[] = {
        {"abc", "c"}, {"0g", "0g"},  {"ab cd", "c"}, {"abz", "z"},   {"g0", "g"},
        {"a", "a"},   {"a b", "a "}, {"ab  -", "-"}, {"0x10", "0x"}, {"ab\xff", "\xff"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ThrownMessage<StringParseException>([&] { ParseHex(c.text); }),
                  "'" + std::string(c.value) + "' could not be parsed as hexBinary");
    }
}

TEST(Binary, BytesGoOutAndComeBack) {
    std::vector<unsigned char> bytes;
    for (unsigned i = 0; i < 800; ++i) { // each byte in each place of a group
        const std::string base64 = PrintBase64(bytes);
        ASSERT_EQ(base64.size(), (bytes.size() + 2) / 3 * 4);
        ASSERT_EQ(ParseBase64(base64), bytes);
        std::string spaced;
        for (const char character : base64) {
            spaced += {' ', character, '\r', '\n'};
        }
        ASSERT_EQ(ParseBase64(spaced), bytes) << spaced;
        ASSERT_EQ(ParseHex(PrintHex(bytes)), bytes);
        bytes.push_back(static_cast<unsigned char>(i * 167));
    }
}
