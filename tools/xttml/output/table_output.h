// Display items as a table for people.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_TABLE_OUTPUT_H
#define XTTML_TOOLS_XTTML_OUTPUT_TABLE_OUTPUT_H

#include "tools/xttml/document/item_origins.h"
#include "tools/xttml/output/standard_output.h"

namespace xttml {

/// Writes a head, a row an item and, below an item, a row for each run with styling of its own. A column that
/// has nothing to say is left out.
void WriteTable(StandardOutput& output, const DisplaySequence& sequence, const ItemOrigins& origins);

} // namespace xttml

#endif
