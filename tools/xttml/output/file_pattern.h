// Names of several files from one.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_FILE_PATTERN_H
#define XTTML_TOOLS_XTTML_OUTPUT_FILE_PATTERN_H

#include <string>
#include <string_view>

namespace xttml {

/// Whether one path names several files: there is a % in its last part.
bool NamesSeveral(std::string_view path);

/// The path with every % of its last part replaced.
std::string WithPart(std::string_view path, std::string_view replacement);

} // namespace xttml

#endif
