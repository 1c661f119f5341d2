// Reading what the user names.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_INPUT_FILE_H
#define XTTML_TOOLS_XTTML_DOCUMENT_INPUT_FILE_H

#include <cstddef>
#include <string>

namespace xttml {

/// The bytes of a local file. Throws UnusableFile when it cannot be read or has more than `most` bytes.
std::string ReadFile(const std::string& path, std::size_t most);

/// The bytes of standard input, which messages call "-". Throws UnusableFile likewise.
std::string ReadStandardInput(std::size_t most);

} // namespace xttml

#endif
