#include "tools/xttml/output/diagnostics.h"

#include "tools/xttml/text/text_encoding.h"

#include <cstdio>
#include <new>
#include <utility>
#include <x_ttml_items.h>

#include <unistd.h>

namespace xttml {

namespace {

bool isProgressShown = false;

void EndProgress() {
    if (std::exchange(isProgressShown, false))
        std::fputs("\r\x1B[K", stderr); // ECMA-48: erase to the end of the line
}

void WriteLine(const std::string& text) {
    EndProgress();
    std::fputs((OnOneLine(text) + '\n').c_str(), stderr);
}

// Called by the library, which no exception may reach.
void ShowLibraryLine(void*, const char* line, std::size_t length) {
    try {
        WriteLine(Utf8FromLatin1({line, length}));
    } catch (const std::bad_alloc&) { // one line less
    }
}

} // namespace

void Complain(std::string_view text) {
    WriteLine("xttml: " + std::string(text));
}

void ShowProgress(std::string_view text) {
    EndProgress();
    if (text.empty() || isatty(STDERR_FILENO) == 0 || isatty(STDOUT_FILENO) != 0)
        return;
    std::fputs(OnOneLine("xttml: " + std::string(text)).c_str(), stderr);
    isProgressShown = true;
}

void ShowLibraryLines(bool areShown) {
    if (areShown)
        x_ttml_set_line_function(ShowLibraryLine, nullptr);
    else
        x_ttml_drop_lines();
}

} // namespace xttml
