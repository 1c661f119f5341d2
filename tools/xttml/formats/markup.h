// What formats of text with tags in it have in common.
#ifndef XTTML_TOOLS_XTTML_FORMATS_MARKUP_H
#define XTTML_TOOLS_XTTML_FORMATS_MARKUP_H

#include "tools/xttml/formats/cue.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace xttml {

/// What means something to a format, and what stands for it in text.
struct Escape {
    std::string_view meaning;
    std::string_view replacement;
};

/// A text with every occurrence replaced; where several begin, by the first escape.
std::string Escaped(std::string_view text, std::initializer_list<Escape> escapes);

/// "<NAME>TEXT</NAME>", or the text alone where it has not that property.
std::string Tagged(std::string text, const char* name, bool hasProperty);

/// "rrggbb".
std::string HexColor(Rgba color);

/// The lines of a cue, span by span.
/// @param writeSpan gives the text of a span
template <class WriteSpan>
std::string JoinLines(const Cue& cue, const char* separator, WriteSpan&& writeSpan) {
    std::string text;
    for (const Line& line : cue.lines) {
        text += text.empty() ? "" : separator;
        for (const Span& span : line)
            text += writeSpan(span);
    }
    return text;
}

} // namespace xttml

#endif
