// Which command a command line means.
#ifndef XTTML_TOOLS_XTTML_COMMAND_LINE_COMMAND_NAMES_H
#define XTTML_TOOLS_XTTML_COMMAND_LINE_COMMAND_NAMES_H

#include <string>
#include <vector>

namespace xttml {

using CommandNames = std::vector<std::string>;

/// Whether the words of a command line name a file and no command: "xttml film.ttml --json".
bool MeansList(const std::vector<std::string>& words, const CommandNames& commands);

/// What to say of words that name no command: which one may have been meant.
std::string WhatIsMissing(const std::vector<std::string>& words, const CommandNames& commands);

} // namespace xttml

#endif
