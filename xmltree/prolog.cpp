#include "xmltree/prolog.h"

#include <algorithm>

namespace {

bool StartsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

/// What follows the first occurrence of `end`; nothing without one.
std::string_view After(std::string_view text, std::string_view end) {
    const std::size_t place = text.find(end);
    return place == std::string_view::npos ? std::string_view() : text.substr(place + end.size());
}

/// Whether an XML declaration leaves the encoding at UTF-8.
bool KeepsUTF8(std::string_view declaration) {
    return declaration.find("encoding") == std::string_view::npos ||
           declaration.find("UTF-8") != std::string_view::npos ||
           declaration.find("utf-8") != std::string_view::npos;
}

bool StartsWithElement(std::string_view text) {
    const char first = text.size() > 1 && text[0] == '<' ? text[1] : '\0';
    return (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z');
}

} // namespace

bool HasPlainProlog(std::string_view bytes) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    std::string_view rest = StartsWith(bytes, byteOrderMark) ? bytes.substr(byteOrderMark.size()) : bytes;
    if (StartsWith(rest, "<?xml") && !KeepsUTF8(rest.substr(0, rest.find("?>")))) {
        return false;
    }
    while (StartsWith(rest, "<?") || StartsWith(rest, "<!--")) {
        rest = StartsWith(rest, "<?") ? After(rest, "?>") : After(rest.substr(4), "-->");
        rest.remove_prefix(std::min(rest.find_first_not_of(" \t\r\n"), rest.size()));
    }
    return StartsWithElement(rest);
}
