// White space as a reader sees it.
#include "tests/render/screenshot.h"

#include <gtest/gtest.h>

namespace xttml::render {
namespace {

/// Pieces between bars; "/" is a line break.
std::string Handled(const std::string& text, WhiteSpace whiteSpace) {
    std::vector<TextPiece> pieces(1);
    for (const char character : text) {
        if (character == '|')
            pieces.emplace_back();
        else if (character == '/')
            pieces.insert(pieces.end(), {{"\n", true}, {}});
        else
            pieces.back().text += character;
    }
    HandleWhiteSpace(pieces, whiteSpace);
    std::string handled;
    for (const TextPiece& piece : pieces)
        handled += (piece.isLineBreak ? "/" : piece.text) + "|";
    handled.pop_back();
    return handled;
}

TEST(WhiteSpace, IsCollapsed) {
    const std::pair<const char*, const char*> cases[] = {
        {"plain text", "plain text"},
        {"two  spaces", "two spaces"},
        {"a\ttab", "a tab"},
        {"space | before", "space |before"},
        {"\n   indented\n   twice\t\r\n ", "indented twice"},
        {"first \n / \t second ", "first|/|second"},
        {"one | two|three ", "one |two|three"}, // the space is the first piece's
        {"one|\n  |two", "one| |two"},
        {" one | | ", "one||"},
        {" | / |x", "||/||x"},
        {"", ""},
        {"no\xC2\xA0"
         "break \xE3\x80\x80wide",
         "no\xC2\xA0"
         "break \xE3\x80\x80wide"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(Handled(text, WhiteSpace::COLLAPSED), expected) << text;
    EXPECT_EQ(Handled("\n a | b/ c ", WhiteSpace::PRESERVED), "\n a | b|/| c ");
}

TEST(WhiteSpace, OfAnItemIsReadRunByRun) {
    const Player player(
        Paragraph("", "\n  one <span tts:visibility='hidden'> two</span>\n <br/>\n x\U0001F600 "));
    const std::vector<TextPiece> pieces = ReadPieces(player.ItemsAt(1000).front(), WhiteSpace::COLLAPSED);
    std::string text;
    for (const TextPiece& piece : pieces)
        text += "[" + piece.text + "]";
    EXPECT_EQ(text, "[one ][two][][\n][x\U0001F600]");
    EXPECT_TRUE(pieces[3].isLineBreak);
    EXPECT_TRUE(ReadPieces(nullptr, WhiteSpace::COLLAPSED).empty());
}

TEST(WhiteSpace, OfARunOfAnyLengthIsRead) {
    for (const std::size_t length : {255U, 256U, 1000U}) {
        const std::string word(length, 'x');
        const Player player(Paragraph("", word));
        EXPECT_EQ(ReadPieces(player.ItemsAt(1000).front(), WhiteSpace::COLLAPSED).front().text, word);
    }
}

TEST(WhiteSpace, OfTheSourceIsNotDrawn) {
    EXPECT_EQ(ShootParagraph("", "\n    one\n    two\n  "), ShootParagraph("", "one two"));
}

} // namespace
} // namespace xttml::render
