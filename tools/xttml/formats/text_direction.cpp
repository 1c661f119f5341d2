#include "tools/xttml/formats/text_direction.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace xttml {

namespace {

struct CodePoints {
    char32_t first, last;

    bool Hold(char32_t codePoint) const { return first <= codePoint && codePoint <= last; }
};

// By blocks: a character of a block that is read in one direction counts as a letter of it.
constexpr CodePoints rightToLeft[] = {
    {0x0590, 0x08FF}, {0x200F, 0x200F},   {0xFB1D, 0xFDFF},
    {0xFE70, 0xFEFE}, {0x10800, 0x10FFF}, {0x1E800, 0x1EFFF},
};
constexpr CodePoints noLetters[] = {
    {0x0000, 0x0040}, {0x005B, 0x0060}, {0x007B, 0x00A9},   {0x00AB, 0x00B4}, {0x00B6, 0x00B9},
    {0x00BB, 0x00BF}, {0x00D7, 0x00D7}, {0x00F7, 0x00F7},   {0x0300, 0x036F}, {0x2000, 0x200D},
    {0x2010, 0x2070}, {0x2190, 0x2BFF}, {0x2E00, 0x2E7F},   {0x3000, 0x3004}, {0x3008, 0x3020},
    {0xFE00, 0xFE6F}, {0xFEFF, 0xFF20}, {0x1F000, 0x1FAFF},
};

template <std::size_t count>
bool AnyHolds(const CodePoints (&ranges)[count], char32_t codePoint) {
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [=](const CodePoints& range) { return range.Hold(codePoint); });
}

/// The code point at the front of valid UTF-8, which moves on to the next.
char32_t TakeCodePoint(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t codePoint = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (const char byte : text.substr(1, length - 1))
        codePoint = codePoint << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    text.remove_prefix(std::min(length, text.size()));
    return codePoint;
}

} // namespace

bool IsRightToLeft(std::string_view text) {
    while (!text.empty()) {
        const char32_t codePoint = TakeCodePoint(text);
        if (AnyHolds(rightToLeft, codePoint))
            return true;
        if (!AnyHolds(noLetters, codePoint))
            return false;
    }
    return false;
}

} // namespace xttml
