// When items are on screen, as a chart.
#ifndef XTTML_TOOLS_XTTML_TIMELINE_TIMELINE_H
#define XTTML_TOOLS_XTTML_TIMELINE_TIMELINE_H

#include "tools/xttml/document/display_sequence.h"
#include "tools/xttml/text/media_time.h"
#include "tools/xttml/timeline/chart.h"

namespace xttml {

/// Rows of time, one below the other, with a bar for each item. Items that are on screen together stand in
/// lanes below each other; what finds no lane shares the lowest one, where a bar ends with its row. Items
/// that are never on screen are counted below. The size of the chart is that of a possible picture whatever
/// the items are.
/// @param origin where the document's time line begins, and with it an item without a begin
Chart TimelineOf(const DisplaySequence& sequence, MediaTime origin);

} // namespace xttml

#endif
