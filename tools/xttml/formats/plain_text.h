// Text alone.
#ifndef XTTML_TOOLS_XTTML_FORMATS_PLAIN_TEXT_H
#define XTTML_TOOLS_XTTML_FORMATS_PLAIN_TEXT_H

#include "tools/xttml/formats/cue.h"

namespace xttml {

/// The lines of each cue, and an empty line between two cues.
std::string WritePlainText(const Script& script);

} // namespace xttml

#endif
