// The text of display items with the white space that a reader sees. The library hands out text as it stands
// in the document, indentation and line ends of the source included.
#ifndef XTTML_RENDER_WHITE_SPACE_H
#define XTTML_RENDER_WHITE_SPACE_H

#include <string>
#include <vector>
#include <x_ttml_items.h>

namespace xttml::render {

/// What becomes of white space (TTML 1.0, 7.2.3 xml:space). Items do not tell which of the two their
/// paragraph asks for.
enum class WhiteSpace {
    COLLAPSED, ///< "default": a run of white space is one space, none stands at the beginning or end of a
               ///< line
    PRESERVED  ///< "preserve": all of it stays
};

/// The text of one run.
struct TextPiece {
    std::string text;         ///< UTF-8; of a line break a line feed
    bool isLineBreak = false; ///< it is a br element
};

/// Handles the white space of a paragraph: space, tab, line feed and carriage return, as XML has it. Lines
/// begin and end at the paragraph's ends and at its line breaks; white space that spans several pieces
/// becomes one space in the first of them. The count of the pieces stays.
void HandleWhiteSpace(std::vector<TextPiece>& pieces, WhiteSpace whiteSpace);

/// The runs of an item, hidden ones included, with their white space handled: piece n is the text of run n.
/// Null and an image have none.
std::vector<TextPiece> ReadPieces(const DisplayItem* item, WhiteSpace whiteSpace);

} // namespace xttml::render

#endif
