// Display items as a table for people.
#ifndef XTTML_TOOLS_XTTML_TABLE_OUTPUT_H
#define XTTML_TOOLS_XTTML_TABLE_OUTPUT_H

#include "parser/display_item.h"
#include "tools/xttml/image_block.h"
#include "tools/xttml/tool_output.h"

#include <vector>

namespace xttml {

/// Writes a head, a row an item and, below an item, a row for each run with styling of its own.
void WriteTable(ToolOutput& output, const std::vector<DisplayItem*>& items, const ImageBlock& images);

} // namespace xttml

#endif
