// The progress and failure lines of the library: the one place that writes them. A line looks the same
// whatever state the program's std::cout is in, and its failure to appear is no failure of the call that
// writes it: nothing is thrown for it, so that a destructor may write as well.
#ifndef XTTML_RUNTIME_PROGRESS_LINES_H
#define XTTML_RUNTIME_PROGRESS_LINES_H

#include <cstddef>
#include <string_view>

namespace tessera {

/// Receives a line of `length` bytes, without its line end and not terminated.
using LineFunction = void (*)(void* context, const char* line, std::size_t length);

/// Sends every line of the process to a function instead of standard output; null: standard output again.
/// No other thread may be inside the library.
void SetLineFunction(LineFunction function, void* context);

/// Writes a line to std::cout and flushes it. The line end is added.
void WriteLine(std::string_view line);

/// Writes a line to std::cout that is left to the next flush. The line end is added.
void WriteLineUnflushed(std::string_view line);

/// Writes a line of the loading layer to C's standard output. The line end is added.
void WriteLoadingLine(const char* line);

} // namespace tessera

#endif
