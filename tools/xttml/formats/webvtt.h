// WebVTT (W3C).
#ifndef XTTML_TOOLS_XTTML_FORMATS_WEBVTT_H
#define XTTML_TOOLS_XTTML_FORMATS_WEBVTT_H

#include "tools/xttml/formats/cue.h"

namespace xttml {

/// Cues with their places and with tags for bold, italic and underlined text; colours as classes with rules
/// of their own in a STYLE block.
std::string WriteWebVtt(const Script& script);

} // namespace xttml

#endif
