// Charts as SVG files.
#ifndef XTTML_TOOLS_XTTML_TIMELINE_SVG_CHART_H
#define XTTML_TOOLS_XTTML_TIMELINE_SVG_CHART_H

#include "tools/xttml/timeline/chart.h"

#include <string>

namespace xttml {

/// The bytes of an SVG file (W3C SVG 1.1): a nested svg element for each shape, its class that of its mark.
std::string SvgOf(const Chart& chart);

} // namespace xttml

#endif
