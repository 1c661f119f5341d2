// Advanced SubStation Alpha, script type v4.00+.
#ifndef XTTML_TOOLS_XTTML_FORMATS_ADVANCED_SUBSTATION_H
#define XTTML_TOOLS_XTTML_FORMATS_ADVANCED_SUBSTATION_H

#include "tools/xttml/formats/cue.h"

namespace xttml {

/// A script as large as the root container, a style for each look, an event for each cue. Times are rounded
/// to hundredths of a second.
std::string WriteAdvancedSubstation(const Script& script);

} // namespace xttml

#endif
