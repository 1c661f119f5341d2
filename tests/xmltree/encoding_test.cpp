#include "xmltree/tree_operations.h"

#include <gtest/gtest.h>

namespace {

using Tree = XercesTreeOperations;
using Bytes = std::vector<unsigned char>;

TEST(Encoding, IsReadFromTheFirstBytes) {
    const struct {
        Bytes bytes;
        int reading;
    } cases[] = {{{0xFE, 0xFF}, 0x232},
                 {{0xFF, 0xFE, 0x00, 0x00}, 0x212},
                 {{0x00, 0x3C}, 0x22},
                 {{0x3C, 0x00}, 0x02},
                 {{0xEF, 0xBB, 0xBF}, 0x311},
                 {{0xEF, 0xBB}, 0},
                 {{0xEF, 0xBB, 0x3C}, 0},
                 {{0x3C, 0x3F, 0x78, 0x6D}, 0},
                 {{0xFE}, 0},
                 {{}, 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(Tree::GetEncodingAndByteOrderFromXml(c.bytes), c.reading)
            << testing::PrintToString(c.bytes);
    }
    const unsigned char mark[] = {0xFE, 0xFF};
    EXPECT_EQ(Tree::GetEncodingAndByteOrderFromXml(mark, 2), 0x232);
    EXPECT_EQ(Tree::GetEncodingAndByteOrderFromXml(mark, -1), 0);
    EXPECT_EQ(Tree::GetEncodingAndByteOrderFromXml(nullptr, 2), 0);
}

TEST(Encoding, UnitSizeIsTakenFromAnyPartOfTheName) {
    const struct {
        const char* name;
        int size;
    } cases[] = {{"UTF-8", 1},       {"X-utf-8", 1}, {"utf-16le", 2}, {"ISO-10646-ucs-2", 2},
                 {"ucs-2 utf-8", 1}, {"UTF-32", 0},  {"UTF8", 0},     {"", 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(Tree::GetUnicodeSizeFromEncodingName(c.name), c.size) << c.name;
    }
    EXPECT_EQ(Tree::Uppercase("utf-16Be\xE9"), "UTF-16BE\xE9");
}

TEST(Encoding, ByteOrderAndMarkAreCorrected) {
    const struct {
        const char* encoding;
        bool bigEndian;
        bool withBOM;
        Bytes before;
        Bytes after;
    } cases[] = {
        // one-byte units have no byte order: only the mark comes and goes
        {"UTF-8", true, true, {0x3C, 0x61, 0x2F, 0x3E}, {0xEF, 0xBB, 0xBF, 0x3C, 0x61, 0x2F, 0x3E}},
        {"UTF-8", false, false, {0xEF, 0xBB, 0xBF, 0x3C, 0x61}, {0x3C, 0x61}},
        {"UTF-8", true, true, {0xEF, 0xBB, 0xBF, 0x3C}, {0xEF, 0xBB, 0xBF, 0x3C}},
        // two-byte units without a mark
        {"UTF-16", true, true, {0x3C, 0x00, 0x61, 0x00}, {0xFE, 0xFF, 0x00, 0x3C, 0x00, 0x61}},
        {"UTF-16", false, true, {0x3C, 0x00, 0x61, 0x00}, {0xFF, 0xFE, 0x3C, 0x00, 0x61, 0x00}},
        {"UTF-16", true, false, {0x3C, 0x00, 0x61, 0x00}, {0x00, 0x3C, 0x00, 0x61}},
        {"UTF-16", false, false, {0x3C, 0x00, 0x61, 0x00}, {0x3C, 0x00, 0x61, 0x00}},
        // two-byte units with a mark
        {"UTF-16", false, false, {0xFE, 0xFF, 0x00, 0x3C}, {0x3C, 0x00}},
        {"UTF-16", true, false, {0xFE, 0xFF, 0x00, 0x3C}, {0x00, 0x3C}},
        {"ucs-2", true, true, {0xFF, 0xFE, 0x3C, 0x00}, {0xFE, 0xFF, 0x00, 0x3C}},
        // an odd byte at the end stays
        {"UTF-16", true, false, {0x3C, 0x00, 0x61}, {0x00, 0x3C, 0x61}},
        {"UTF-16", true, false, {0x3C}, {0x3C}},
        // nothing to correct
        {"ISO-8859-1", true, true, {0x3C, 0x61}, {0x3C, 0x61}},
        {"", true, true, {0x3C, 0x61}, {0x3C, 0x61}},
        {"UTF-8", false, true, {}, {}},
    };
    for (const auto& c : cases) {
        Bytes data = c.before;
        Tree::CorrectByteOrderAndBOM(data, c.encoding, c.bigEndian, c.withBOM);
        EXPECT_EQ(data, c.after) << c.encoding << c.bigEndian << c.withBOM
                                 << testing::PrintToString(c.before);
    }
}

} // namespace
