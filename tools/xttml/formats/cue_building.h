// From display items to subtitles.
#ifndef XTTML_TOOLS_XTTML_FORMATS_CUE_BUILDING_H
#define XTTML_TOOLS_XTTML_FORMATS_CUE_BUILDING_H

#include "tools/xttml/document/item_origins.h"
#include "tools/xttml/formats/cue.h"

namespace xttml {

/// Which items are taken.
enum class Selection { ALL, FORCED };

/// The text items with their visible text; those without any are no subtitles.
/// @param origins of the sequence; tell which items preserve their white space
Script BuildScript(const DisplaySequence& sequence, const ItemOrigins& origins, Selection selection);

} // namespace xttml

#endif
