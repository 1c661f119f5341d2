#include "tools/xttml/library_output.h"

#include <cstdio>
#include <fcntl.h>
#include <iostream>
#include <sys/mman.h>

namespace xttml {

namespace {

// Above 2, so that a caller's closed standard stream is not taken for one of ours.
int DuplicateAboveStandardStreams(int descriptor) {
    return ::fcntl(descriptor, F_DUPFD_CLOEXEC, 3);
}

int OpenSink(LibraryOutput::Lines lines) {
    const int standardError =
        lines == LibraryOutput::Lines::ON_STANDARD_ERROR ? DuplicateAboveStandardStreams(STDERR_FILENO) : -1;
    return standardError >= 0 ? standardError : ::open("/dev/null", O_WRONLY | O_CLOEXEC);
}

std::string ReadFromStart(int descriptor) {
    std::string content;
    char buffer[4096];
    ::lseek(descriptor, 0, SEEK_SET);
    for (ssize_t count = 0; (count = ::read(descriptor, buffer, sizeof buffer)) > 0;)
        content.append(buffer, static_cast<std::size_t>(count));
    return content;
}

} // namespace

LibraryOutput::LibraryOutput(Lines lines)
    : lines_(lines), tool_(DuplicateAboveStandardStreams(STDOUT_FILENO), "cannot write to standard output"),
      sink_(OpenSink(lines), "/dev/null") {
    DirectTo(sink_.Get());
}

LibraryOutput::~LibraryOutput() {
    DirectTo(tool_.Get());
}

void LibraryOutput::DirectTo(int descriptor) {
    std::cout.flush();
    std::fflush(stdout);
    ::dup2(descriptor, STDOUT_FILENO);
}

std::string LibraryOutput::Captured(const std::function<void()>& action) {
    const Descriptor capture(::memfd_create("xttml", MFD_CLOEXEC), "cannot capture the library's lines");
    DirectTo(capture.Get());
    try {
        action();
    } catch (...) {
        DirectTo(sink_.Get());
        throw;
    }
    DirectTo(sink_.Get());
    std::string written = ReadFromStart(capture.Get());
    if (lines_ == Lines::ON_STANDARD_ERROR)
        std::fwrite(written.data(), 1, written.size(), stderr);
    return written;
}

} // namespace xttml
