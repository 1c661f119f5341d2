// What is on screen, asked the way a player asks.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_SCREEN_H
#define XTTML_TOOLS_XTTML_DOCUMENT_SCREEN_H

#include "tools/xttml/document/display_sequence.h"

namespace xttml {

/// How a player asks.
enum class Query {
    ALL,  ///< for all that is on screen
    FIRST ///< by time: for the first item and those with the same times right after it
};

/// The answer for one time.
struct Screen {
    ItemList items; ///< what is on screen
    /// When nothing is on screen, the next to come; with Query::FIRST the item that the library announces.
    /// Null: none comes.
    const DisplayItem* next = nullptr;
};

Screen LookAt(const DisplaySequence& sequence, MediaTime time, Query query);

} // namespace xttml

#endif
