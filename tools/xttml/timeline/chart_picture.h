// Charts as pictures.
#ifndef XTTML_TOOLS_XTTML_TIMELINE_CHART_PICTURE_H
#define XTTML_TOOLS_XTTML_TIMELINE_CHART_PICTURE_H

#include "tools/xttml/timeline/chart.h"

#include <string>

namespace xttml {

/// The bytes of a PNG file. Throws std::runtime_error for a chart larger than a picture can be, and where the
/// tool was built without what draws.
std::string PngOf(const Chart& chart);

} // namespace xttml

#endif
