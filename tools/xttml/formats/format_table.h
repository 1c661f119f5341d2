// The formats that subtitles are written in.
#ifndef XTTML_TOOLS_XTTML_FORMATS_FORMAT_TABLE_H
#define XTTML_TOOLS_XTTML_FORMATS_FORMAT_TABLE_H

#include "tools/xttml/formats/cue.h"

#include <string>
#include <string_view>

namespace xttml {

/// A format.
struct Format {
    const char* name;                    ///< what it is called in options, and how its files end
    std::string (*write)(const Script&); ///< a whole file, UTF-8
};

/// The format with that name, in any letter case; null when there is none.
const Format* FindFormat(std::string_view name);

/// The format that a file's name ends in; null when it is none.
const Format* FormatOfFile(const std::string& path);

/// All names, the separator between them.
std::string FormatNames(const char* separator);

} // namespace xttml

#endif
