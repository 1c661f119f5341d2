// Files that the tool writes.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_OUTPUT_FILE_H
#define XTTML_TOOLS_XTTML_OUTPUT_OUTPUT_FILE_H

#include "tools/xttml/output/standard_output.h"

#include <string>
#include <string_view>

namespace xttml {

/// What becomes of a file that is there already. Devices and pipes are written to in any case.
enum class ExistingFile { KEPT, REPLACED };

/// The path that stands for standard output.
constexpr const char* standardOutputPath = "-";

/// Throws UnusableFile when there is a file and it is to be kept.
void RequireRoomFor(const std::string& path, ExistingFile existing);

/// Writes a file that appears whole or not at all. Throws std::system_error, which names it, when it cannot
/// be written, and as RequireRoomFor() does.
void WriteFile(const std::string& path, std::string_view bytes, ExistingFile existing);

/// Likewise, where "-" is standard output.
void WriteTo(const std::string& path, std::string_view bytes, ExistingFile existing, StandardOutput& output);

} // namespace xttml

#endif
