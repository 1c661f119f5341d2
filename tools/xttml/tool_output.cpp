#include "tools/xttml/tool_output.h"

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <unistd.h>

namespace xttml {

namespace {

constexpr std::size_t pieceSize = 1U << 16U;

} // namespace

void ToolOutput::Write(std::string_view text) {
    pending_.append(text);
    if (pending_.size() >= pieceSize)
        Flush();
}

void ToolOutput::Flush() {
    std::string_view rest = pending_;
    while (!rest.empty()) {
        const ssize_t count = ::write(descriptor_, rest.data(), rest.size());
        if (count >= 0)
            rest.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "cannot write to standard output");
    }
    pending_.clear();
}

void WriteFile(const std::string& path, std::string_view bytes, ExistingFile existing) {
    std::FILE* const file = std::fopen(path.c_str(), existing == ExistingFile::KEPT ? "wbx" : "wb");
    if (!file)
        throw std::system_error(errno, std::generic_category(), path);
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if (std::fclose(file) != 0 || !written)
        throw std::system_error(errno, std::generic_category(), path);
}

} // namespace xttml
