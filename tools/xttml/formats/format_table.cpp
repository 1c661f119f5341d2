#include "tools/xttml/formats/format_table.h"

#include "tools/xttml/formats/advanced_substation.h"
#include "tools/xttml/formats/plain_text.h"
#include "tools/xttml/formats/subrip.h"
#include "tools/xttml/formats/webvtt.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

namespace xttml {

namespace {

constexpr Format formats[] = {
    {"srt", WriteSubRip},
    {"vtt", WriteWebVtt},
    {"ass", WriteAdvancedSubstation},
    {"txt", WritePlainText},
};

bool IsSameLetter(char left, char right) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c; };
    return lower(left) == lower(right);
}

} // namespace

const Format* FindFormat(std::string_view name) {
    const auto* const found = std::find_if(std::begin(formats), std::end(formats), [&](const Format& format) {
        const std::string_view own = format.name;
        return std::equal(own.begin(), own.end(), name.begin(), name.end(), IsSameLetter);
    });
    return found == std::end(formats) ? nullptr : found;
}

const Format* FormatOfFile(const std::string& path) {
    const std::string ending = std::filesystem::path(path).extension().string();
    return ending.empty() ? nullptr : FindFormat(ending.substr(1));
}

std::string FormatNames(const char* separator) {
    std::string names;
    for (const Format& format : formats)
        names += (names.empty() ? "" : separator) + std::string(format.name);
    return names;
}

} // namespace xttml
