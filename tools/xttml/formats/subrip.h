// SubRip, as far as its readers agree.
#ifndef XTTML_TOOLS_XTTML_FORMATS_SUBRIP_H
#define XTTML_TOOLS_XTTML_FORMATS_SUBRIP_H

#include "tools/xttml/formats/cue.h"

namespace xttml {

/// Cues with tags for bold, italic, underlined, struck through and coloured text. There are neither places
/// nor transparency. The format has no escapes: what would be taken for a tag is broken up by U+2060 (word
/// joiner), which is not seen.
std::string WriteSubRip(const Script& script);

} // namespace xttml

#endif
