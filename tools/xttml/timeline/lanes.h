// Which items are on screen together.
#ifndef XTTML_TOOLS_XTTML_TIMELINE_LANES_H
#define XTTML_TOOLS_XTTML_TIMELINE_LANES_H

#include "tools/xttml/document/display_sequence.h"

#include <cstddef>
#include <vector>

namespace xttml {

/// The lanes that there are at most; in the last one bars may overlap.
inline constexpr std::size_t mostLanes = 16;

/// When an item is on screen.
struct Stay {
    std::size_t item; ///< its number, counted from 0
    MediaTime begin;  ///< its first millisecond
    MediaTime end;    ///< the one after its last
    std::size_t lane; ///< counted from 0
};

/// The stays of a document's items.
struct Stays {
    std::vector<Stay> onScreen;     ///< in the order of their begins
    std::vector<std::size_t> never; ///< the numbers of the items that never come on screen
};

/// Finds the lowest free lane for each item.
/// @param origin where the document's time line begins, and with it an item without a begin
Stays StaysOf(const DisplaySequence& sequence, MediaTime origin);

} // namespace xttml

#endif
