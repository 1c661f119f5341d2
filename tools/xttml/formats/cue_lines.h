// The text of a display item, line by line.
#ifndef XTTML_TOOLS_XTTML_FORMATS_CUE_LINES_H
#define XTTML_TOOLS_XTTML_FORMATS_CUE_LINES_H

#include "render/white_space.h"
#include "tools/xttml/formats/cue.h"

#include <vector>
#include <x_ttml_items.h>

namespace xttml {

Look LookOf(const x_ttml_styling& styling);

/// The lines that a viewer sees. Blank ones at the beginning and end are dropped; empty when all are blank.
/// @param look of blank lines
std::vector<Line> LinesOf(const DisplayItem& item, render::WhiteSpace whiteSpace, const Look& look);

} // namespace xttml

#endif
