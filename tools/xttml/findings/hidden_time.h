// What a player does not see that asks for one item at a time.
#ifndef XTTML_TOOLS_XTTML_FINDINGS_HIDDEN_TIME_H
#define XTTML_TOOLS_XTTML_FINDINGS_HIDDEN_TIME_H

#include "tools/xttml/document/display_sequence.h"

#include <cstddef>
#include <vector>

namespace xttml {

/// How long an item is on screen without being among what the query by time answers: the first item on screen
/// and those right after it with the same times.
struct HiddenTime {
    MediaTime hidden = 0;   ///< ms
    MediaTime onScreen = 0; ///< ms, the hidden ones included
    std::size_t by = 0;     ///< which item is answered instead when it is hidden first
};

/// One an item, in their order. Asks the sequence once a change.
std::vector<HiddenTime> FindHiddenTimes(const DisplaySequence& sequence);

} // namespace xttml

#endif
