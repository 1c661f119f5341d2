// The text of display items, for people and for merging.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_ITEM_TEXT_H
#define XTTML_TOOLS_XTTML_OUTPUT_ITEM_TEXT_H

#include "render/white_space.h"
#include "tools/xttml/document/display_sequence.h"

#include <string>
#include <vector>

namespace xttml {

/// The styled runs of an item in document order, owned by it; empty for an item that is no text.
const std::vector<Sentence*>& Runs(const DisplayItem& item);

/// The styling that a run is shown with: its own, else the item's.
const StylingAttrib& StylingOf(const Sentence& run, const DisplayItem& item);

/// The text of all runs as the item has it, a line break as U+000A.
std::u16string WholeText(const DisplayItem& item);

/// The runs with the text that a viewer sees: that of a hidden one is empty. Piece n is run n.
std::vector<render::TextPiece> VisiblePieces(const DisplayItem& item, render::WhiteSpace whiteSpace);

/// Pieces one after the other.
std::string TextOf(const std::vector<render::TextPiece>& pieces);

/// What a viewer sees, a line break as U+000A; empty when that is line breaks at most.
std::string VisibleText(const DisplayItem& item, render::WhiteSpace whiteSpace);

/// Whether there is anything of an item that a viewer sees.
bool IsSeen(const DisplayItem& item);

/// Where an area is: "WIDTHxHEIGHT+LEFT+TOP", in px.
std::string BoxText(const StylingAttrib& styling);

/// "00:00:01.000 to 00:00:02.000"
std::string SpanText(const TimeSpan& span);

/// What a viewer sees of an item as one line for a terminal, marked when its display is forced or nothing
/// of it is visible.
std::string ScreenLine(const DisplayItem& item, const ImageBlock& images);

} // namespace xttml

#endif
