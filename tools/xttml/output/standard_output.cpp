#include "tools/xttml/output/standard_output.h"

#include "tools/xttml/output/progress.h"

#include <cerrno>
#include <system_error>
#include <unistd.h>

namespace xttml {

namespace {

constexpr std::size_t pieceSize = 1U << 16U;

} // namespace

void StandardOutput::Write(std::string_view text) {
    pending_.append(text);
    if (pending_.size() >= pieceSize)
        Flush();
}

void StandardOutput::Flush() {
    std::string_view rest = pending_;
    if (!rest.empty())
        EraseProgress();
    while (!rest.empty()) {
        const ssize_t count = ::write(STDOUT_FILENO, rest.data(), rest.size());
        if (count >= 0)
            rest.remove_prefix(static_cast<std::size_t>(count));
        else if (errno == EPIPE)
            throw ReaderGone();
        else if (errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "cannot write to standard output");
    }
    pending_.clear();
}

} // namespace xttml
