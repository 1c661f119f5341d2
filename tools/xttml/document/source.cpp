#include "tools/xttml/document/source.h"

#include "tools/xttml/document/input_file.h"

#include <cstdint>
#include <filesystem>
#include <limits>
#include <utility>

namespace xttml {

namespace {

constexpr std::size_t largestDocument = std::numeric_limits<std::uint32_t>::max();

// The XML library would take "http://..." for an address; a path that begins with / or ./ never is one.
std::string LocalPath(const std::string& name) {
    return name.front() == '/' ? name : "./" + name;
}

} // namespace

Source::Source(std::string name, bool isTrusted) : name_(std::move(name)), isTrusted_(isTrusted) {
    if (name_ == "-")
        bytes_ = ReadStandardInput(largestDocument);
    else if (isTrusted_ && std::filesystem::is_regular_file(name_))
        path_ = LocalPath(name_);
    else
        bytes_ = ReadFile(name_, largestDocument);
}

} // namespace xttml
