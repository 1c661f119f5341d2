// The commands. Each runs on a loaded document and writes what it finds.
#ifndef XTTML_TOOLS_XTTML_COMMANDS_H
#define XTTML_TOOLS_XTTML_COMMANDS_H

#include "tools/xttml/command_line.h"
#include "tools/xttml/document.h"
#include "tools/xttml/tool_output.h"

namespace xttml {

/// Shows every item; reads the display sequence behind the handle.
void RunCommand(const ListOptions& options, Document& document, ToolOutput& output);

/// Shows what is on screen at each time; uses the C functions only.
void RunCommand(const AtOptions& options, Document& document, ToolOutput& output);

/// Shows what changes on screen; uses the C functions only.
void RunCommand(const PlayOptions& options, Document& document, ToolOutput& output);

/// Writes the PNG file of every image item; reads the display sequence behind the handle.
void RunCommand(const ExtractOptions& options, Document& document, ToolOutput& output);

/// Writes the document anew through the root of the document model behind the handle.
void RunCommand(const SaveOptions& options, Document& document, ToolOutput& output);

} // namespace xttml

#endif
