// White space as XML knows it: tab, line feed, carriage return and space (XML 1.0, production S), and the
// whiteSpace facet's ways of treating it (XML Schema Part 2, 4.3.6). Never depends on the process's locale.
#ifndef XTTML_RUNTIME_WHITESPACE_H
#define XTTML_RUNTIME_WHITESPACE_H

#include <string>
#include <string_view>

namespace tessera {

/// True for tab, line feed, carriage return and space.
constexpr bool IsWhitespace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// The text without leading white space; a view into the argument.
std::string_view TrimLeadingWhitespace(std::string_view text);

/// The text without leading and trailing white space; a view into the argument.
std::string_view TrimWhitespace(std::string_view text);

/// Every tab, line feed and carriage return becomes a space.
std::string ReplaceWhitespace(std::string_view text);

/// Leading and trailing white space dropped, every inner run replaced by one space.
std::string CollapseWhitespace(std::string_view text);

} // namespace tessera

#endif
