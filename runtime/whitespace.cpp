#include "runtime/whitespace.h"

#include <algorithm>

namespace tessera {

std::string_view TrimLeadingWhitespace(std::string_view text) {
    while (!text.empty() && IsWhitespace(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

std::string_view TrimWhitespace(std::string_view text) {
    text = TrimLeadingWhitespace(text);
    while (!text.empty() && IsWhitespace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::string ReplaceWhitespace(std::string_view text) {
    std::string replaced(text);
    std::replace_if(replaced.begin(), replaced.end(), IsWhitespace, ' ');
    return replaced;
}

std::string CollapseWhitespace(std::string_view text) {
    std::string collapsed = ReplaceWhitespace(TrimWhitespace(text));
    const auto bothSpaces = [](char a, char b) { return a == ' ' && b == ' '; };
    collapsed.erase(std::unique(collapsed.begin(), collapsed.end(), bothSpaces), collapsed.end());
    return collapsed;
}

} // namespace tessera
