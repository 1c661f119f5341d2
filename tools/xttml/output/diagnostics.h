// What goes to standard error.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_DIAGNOSTICS_H
#define XTTML_TOOLS_XTTML_OUTPUT_DIAGNOSTICS_H

#include <string_view>

namespace xttml {

/// Writes "xttml: TEXT" as one line, without control characters.
void Complain(std::string_view text);

/// Where the library's own lines go: to standard error, without control characters, or nowhere.
void ShowLibraryLines(bool areShown);

} // namespace xttml

#endif
