#include "tools/xttml/command_line/command_names.h"

#include <algorithm>
#include <filesystem>
#include <fmt/ranges.h>
#include <numeric>

namespace xttml {

namespace {

bool IsOption(const std::string& word) {
    return word.size() > 1 && word.front() == '-';
}

bool LooksLikeFile(const std::string& word) {
    std::error_code ignored;
    return !IsOption(word) && (word == "-" || word.find_first_of("./") != std::string::npos ||
                               std::filesystem::exists(word, ignored));
}

/// How many letters have to be inserted, removed or replaced to make one word of the other (Levenshtein).
std::size_t Distance(const std::string& left, const std::string& right) {
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), 0U);
    for (const char letter : left) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t replaced = diagonal + (letter == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

std::string Closest(const std::string& word, const CommandNames& commands) {
    constexpr std::size_t farthest = 2;
    const auto isCloser = [&](const std::string& left, const std::string& right) {
        return Distance(word, left) < Distance(word, right);
    };
    const auto closest = std::min_element(commands.begin(), commands.end(), isCloser);
    return Distance(word, *closest) <= farthest ? *closest : "";
}

} // namespace

bool MeansList(const std::vector<std::string>& words, const CommandNames& commands) {
    if (words.empty() || words.front() == "--help" || words.front() == "-h" || words.front() == "--version")
        return false;
    const bool namesCommand =
        std::find_first_of(words.begin(), words.end(), commands.begin(), commands.end()) != words.end();
    if (IsOption(words.front()))
        return !namesCommand && std::any_of(words.begin(), words.end(), LooksLikeFile);
    return std::find(commands.begin(), commands.end(), words.front()) == commands.end() &&
           LooksLikeFile(words.front());
}

std::string WhatIsMissing(const std::vector<std::string>& words, const CommandNames& commands) {
    if (words.empty() || IsOption(words.front()))
        return fmt::format("a command or a file is required; the commands are {}", fmt::join(commands, ", "));
    const std::string closest = Closest(words.front(), commands);
    return fmt::format("'{}' is neither a command nor a file; {}", words.front(),
                       closest.empty() ? fmt::format("the commands are {}", fmt::join(commands, ", "))
                                       : fmt::format("did you mean '{}'?", closest));
}

} // namespace xttml
