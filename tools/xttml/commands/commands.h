// The commands. Each reads one document and writes what it finds. Each throws UnusableFile for a document
// that cannot be used.
#ifndef XTTML_TOOLS_XTTML_COMMANDS_COMMANDS_H
#define XTTML_TOOLS_XTTML_COMMANDS_COMMANDS_H

#include "tools/xttml/command_line/command_line.h"
#include "tools/xttml/output/standard_output.h"

namespace xttml {

/// Shows every item.
void RunCommand(const ListOptions& options, const Input& input, StandardOutput& output);

/// Shows what is on screen at each time.
void RunCommand(const AtOptions& options, const Input& input, StandardOutput& output);

/// Shows what changes on screen.
void RunCommand(const PlayOptions& options, const Input& input, StandardOutput& output);

/// Every finding of a check has been told, and there are some.
struct DocumentNotClean {};

/// Says what is not shown. Throws DocumentNotClean.
void RunCommand(const CheckOptions& options, const Input& input, StandardOutput& output);

/// Writes the PNG file of every image item.
void RunCommand(const ExtractOptions& options, const Input& input, StandardOutput& output);

/// Writes the text items in another format.
void RunCommand(const ConvertOptions& options, const Input& input, StandardOutput& output);

/// Writes a picture of the screen at each time.
void RunCommand(const RenderOptions& options, const Input& input, StandardOutput& output);

/// Writes pictures of all items.
void RunCommand(const SheetOptions& options, const Input& input, StandardOutput& output);

/// Writes a chart of when the items are on screen.
void RunCommand(const TimelineOptions& options, const Input& input, StandardOutput& output);

/// Writes the document anew.
void RunCommand(const SaveOptions& options, const Input& input, StandardOutput& output);

} // namespace xttml

#endif
