#include "tools/xttml/output/file_pattern.h"

namespace xttml {

namespace {

constexpr char place = '%';

/// Where the last part of a path begins.
std::size_t LastPart(std::string_view path) {
    return path.rfind('/') + 1; // 0 without a folder
}

} // namespace

bool NamesSeveral(std::string_view path) {
    return path.find(place, LastPart(path)) != std::string_view::npos;
}

std::string WithPart(std::string_view path, std::string_view replacement) {
    std::string result(path.substr(0, LastPart(path)));
    for (const char character : path.substr(result.size()))
        result += character == place ? std::string(replacement) : std::string(1, character);
    return result;
}

} // namespace xttml
