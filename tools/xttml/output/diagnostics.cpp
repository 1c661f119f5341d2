#include "tools/xttml/output/diagnostics.h"

#include "tools/xttml/output/progress.h"
#include "tools/xttml/text/text_encoding.h"

#include <cstdio>
#include <new>
#include <x_ttml_items.h>

namespace xttml {

namespace {

void WriteLine(const std::string& text) {
    EraseProgress();
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

void ShowLibraryLines(bool areShown) {
    if (areShown)
        x_ttml_set_line_function(ShowLibraryLine, nullptr);
    else
        x_ttml_drop_lines();
}

} // namespace xttml
