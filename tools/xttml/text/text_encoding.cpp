#include "tools/xttml/text/text_encoding.h"

#include <algorithm>

namespace xttml {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;
constexpr char32_t returnSymbol = 0x23CE;
constexpr char32_t controlPictures = 0x2400;
constexpr char32_t pictureOfDelete = 0x2421;

bool IsHighSurrogate(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// The beginning of a text that needs no conversion: all of most texts. It has room for the rest.
template <class Unit>
std::string AsciiBeginning(std::basic_string_view<Unit> text) {
    const auto end = std::find_if(text.begin(), text.end(), [](Unit unit) { return (unit & ~0x7F) != 0; });
    std::string beginning(text.begin(), end);
    beginning.reserve(text.size());
    return beginning;
}

void AppendCodePoint(std::string& target, char32_t codePoint) {
    const auto append = [&target](char32_t byte) { target.push_back(static_cast<char>(byte)); };
    const auto appendTail = [&append, codePoint](int shift) {
        append(0x80U | ((codePoint >> shift) & 0x3FU));
    };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0U | (codePoint >> 6));
        appendTail(0);
    } else if (codePoint < 0x10000) {
        append(0xE0U | (codePoint >> 12));
        appendTail(6);
        appendTail(0);
    } else {
        append(0xF0U | (codePoint >> 18));
        appendTail(12);
        appendTail(6);
        appendTail(0);
    }
}

/// The code point at a position, which moves to the next one.
char32_t TakeCodePoint(std::u16string_view text, std::size_t& position) {
    const char16_t unit = text[position++];
    if (IsHighSurrogate(unit) && position < text.size() && IsLowSurrogate(text[position])) {
        const auto high = static_cast<char32_t>(unit - 0xD800);
        const auto low = static_cast<char32_t>(text[position++] - 0xDC00);
        return 0x10000 + (high << 10) + low;
    }
    return IsHighSurrogate(unit) || IsLowSurrogate(unit) ? replacementCharacter : unit;
}

/// Whether a control character may begin with a byte.
bool MayBeginControl(unsigned char byte) {
    return byte < 0x20 || byte == 0x7F || byte == 0xC2;
}

/// Whether any byte of a text may begin one. No byte ends the loop, so that compilers take many at once.
bool MayHoldControl(std::string_view text) {
    unsigned char mayHold = 0;
    for (const char character : text)
        mayHold = std::max<unsigned char>(mayHold, MayBeginControl(static_cast<unsigned char>(character)));
    return mayHold != 0;
}

/// The position of the first control character; the end of a text without one.
std::size_t FindControl(std::string_view text) {
    if (!MayHoldControl(text))
        return text.size();
    std::size_t position = 0;
    while (position < text.size() && (!MayBeginControl(static_cast<unsigned char>(text[position])) ||
                                      ControlAt(text, position) == noControl))
        ++position;
    return position;
}

char32_t PictureOf(char32_t control) {
    if (control == '\n')
        return returnSymbol;
    if (control == 0x7F)
        return pictureOfDelete;
    return control < 0x20 ? controlPictures + control : replacementCharacter;
}

bool BeginsCodePoint(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

} // namespace

std::string Utf8FromUtf16(std::u16string_view text) {
    std::string result = AsciiBeginning(text);
    for (std::size_t position = result.size(); position < text.size();)
        AppendCodePoint(result, TakeCodePoint(text, position));
    return result;
}

std::string Utf8Beginning(std::u16string_view text) {
    constexpr std::size_t longest = 40;
    if (text.size() <= longest)
        return Utf8FromUtf16(text);
    const std::size_t length = IsHighSurrogate(text[longest - 1]) ? longest - 1 : longest;
    return Utf8FromUtf16(text.substr(0, length)) + "\u2026";
}

std::string Utf8FromLatin1(std::string_view text) {
    std::string result = AsciiBeginning(text);
    for (const char character : text.substr(result.size()))
        AppendCodePoint(result, static_cast<unsigned char>(character));
    return result;
}

char32_t ControlAt(std::string_view text, std::size_t position) {
    const auto byte = static_cast<unsigned char>(text[position]);
    if (byte < 0x20 || byte == 0x7F)
        return byte;
    const auto next = position + 1 < text.size() ? static_cast<unsigned char>(text[position + 1]) : 0U;
    return byte == 0xC2 && next >= 0x80 && next <= 0x9F ? next : noControl;
}

void AppendOnOneLine(std::string& line, std::string_view text) {
    for (;;) {
        const std::size_t control = FindControl(text);
        line += text.substr(0, control);
        text.remove_prefix(control);
        if (text.empty())
            return;
        AppendCodePoint(line, PictureOf(ControlAt(text, 0)));
        text.remove_prefix(BytesOfControl(ControlAt(text, 0)));
    }
}

std::string OnOneLine(std::string_view text) {
    std::string line;
    AppendOnOneLine(line, text);
    return line;
}

std::string Shortened(std::string_view text, std::size_t codePoints) {
    const auto end = std::find_if(text.begin(), text.end(),
                                  [&codePoints](char c) { return BeginsCodePoint(c) && codePoints-- == 0; });
    std::string shortened(text.begin(), end);
    return end == text.end() ? shortened : shortened + "\u2026";
}

std::size_t CodePoints(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), BeginsCodePoint));
}

} // namespace xttml
