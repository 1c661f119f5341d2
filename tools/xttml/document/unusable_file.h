// What goes wrong with a file that the user names.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_UNUSABLE_FILE_H
#define XTTML_TOOLS_XTTML_DOCUMENT_UNUSABLE_FILE_H

#include <cstdint>
#include <stdexcept>
#include <string>

namespace xttml {

/// Why a file cannot be used; what() is UTF-8 and begins with its name.
class UnusableFile : public std::runtime_error {
public:
    /// "FILE: REASON"
    UnusableFile(const std::string& file, const std::string& reason)
        : std::runtime_error(file + ": " + reason) {}
    /// "FILE:LINE:COLUMN: REASON", as editors jump to it; as above when the line is 0.
    UnusableFile(const std::string& file, std::uint64_t line, std::uint64_t column, const std::string& reason)
        : UnusableFile(line == 0 ? file : file + ':' + std::to_string(line) + ':' + std::to_string(column),
                       reason) {}
};

} // namespace xttml

#endif
