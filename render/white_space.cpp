#include "render/white_space.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

namespace xttml::render {

namespace {

bool IsWhiteSpace(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

/// Whether a text is words with one space between them and no control character. No character ends the loop,
/// so that compilers take many at once.
bool IsCollapsed(std::string_view text) {
    const auto at = [text](std::size_t position) { return static_cast<unsigned char>(text[position]); };
    if (text.empty() || at(0) <= ' ' || at(text.size() - 1) <= ' ')
        return false;
    unsigned char least = at(0);
    unsigned char leastOfPairs = at(0); // a pair counts as the greater of the two
    for (std::size_t i = 1; i < text.size(); ++i) {
        least = std::min(least, at(i));
        leastOfPairs = std::min(leastOfPairs, std::max(at(i - 1), at(i)));
    }
    return least >= ' ' && leastOfPairs > ' ';
}

/// Where words end that have one space between them.
std::string::const_iterator EndOfWords(std::string::const_iterator words, std::string::const_iterator end) {
    for (; words != end; ++words) {
        const auto next = words + 1;
        if (IsWhiteSpace(*words) && (*words != ' ' || next == end || IsWhiteSpace(*next)))
            break;
    }
    return words;
}

/// Copies the text of a line piece by piece. A space waits, in the piece where it was met, for something to
/// stand before; the line's beginning and end have nothing to offer.
class Collapser {
public:
    void Piece(TextPiece& piece) {
        if (IsCollapsed(piece.text)) {
            BeginWords();
            return;
        }
        const std::string text = std::exchange(piece.text, {});
        for (auto rest = text.begin(); rest != text.end();) {
            const auto word = std::find_if_not(rest, text.end(), IsWhiteSpace);
            if (word != rest && isInsideLine_ && !spaceOwner_)
                spaceOwner_ = &piece.text;
            rest = EndOfWords(word, text.end());
            if (word != rest)
                Words(piece.text, {&*word, static_cast<std::size_t>(rest - word)});
        }
    }
    void LineBreak() { *this = Collapser(); }

private:
    void Words(std::string& text, std::string_view words) {
        BeginWords();
        text += words;
    }
    void BeginWords() {
        if (std::string* const owner = std::exchange(spaceOwner_, nullptr))
            owner->push_back(' ');
        isInsideLine_ = true;
    }

    std::string* spaceOwner_ = nullptr; // of a space that waits
    bool isInsideLine_ = false;
};

std::string ReadText(const DisplayItem* item, std::uint32_t run) {
    char buffer[256]; // most texts are shorter
    const std::size_t size = x_ttml_run_get_text(item, run, buffer, sizeof buffer);
    if (size < sizeof buffer)
        return {buffer, size};
    std::string text(size, '\0');
    x_ttml_run_get_text(item, run, text.data(), size + 1);
    return text;
}

TextPiece ReadPiece(const DisplayItem* item, std::uint32_t run) {
    return {ReadText(item, run), x_ttml_run_is_line_break(item, run) != 0};
}

} // namespace

void HandleWhiteSpace(std::vector<TextPiece>& pieces, WhiteSpace whiteSpace) {
    if (whiteSpace == WhiteSpace::PRESERVED)
        return;
    Collapser collapser;
    for (TextPiece& piece : pieces) {
        if (piece.isLineBreak)
            collapser.LineBreak();
        else
            collapser.Piece(piece);
    }
}

std::vector<TextPiece> ReadPieces(const DisplayItem* item, WhiteSpace whiteSpace) {
    const std::uint32_t count = x_ttml_item_get_run_count(item);
    std::vector<TextPiece> pieces;
    pieces.reserve(count);
    for (std::uint32_t run = 0; run < count; ++run)
        pieces.push_back(ReadPiece(item, run));
    HandleWhiteSpace(pieces, whiteSpace);
    return pieces;
}

} // namespace xttml::render
