// The commands that draw.
#ifndef XTTML_TOOLS_XTTML_COMMAND_LINE_PICTURE_OPTIONS_H
#define XTTML_TOOLS_XTTML_COMMAND_LINE_PICTURE_OPTIONS_H

#include "tools/xttml/command_line/command_options.h"

namespace xttml {

/// Adds xttml render.
Command AddRender(CLI::App& app, Arguments& arguments);

/// Adds xttml timeline.
Command AddTimeline(CLI::App& app, Arguments& arguments);

} // namespace xttml

#endif
