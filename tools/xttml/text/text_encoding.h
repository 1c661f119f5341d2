// From the library's strings to UTF-8, and from UTF-8 to what a terminal may be sent.
#ifndef XTTML_TOOLS_XTTML_TEXT_TEXT_ENCODING_H
#define XTTML_TOOLS_XTTML_TEXT_TEXT_ENCODING_H

#include <string>
#include <string_view>

namespace xttml {

/// UTF-16 as UTF-8. A surrogate without its partner becomes U+FFFD, so the result is always valid.
std::string Utf8FromUtf16(std::u16string_view text);

/// The same of a text's beginning: an ellipsis stands for the rest of a long one.
std::string Utf8Beginning(std::u16string_view text);

/// An 8-bit string of the library as UTF-8. Each of its bytes is the low byte of a UTF-16 code unit, which
/// makes it ISO 8859-1; every byte has a character, so the result is always valid.
std::string Utf8FromLatin1(std::string_view text);

/// What ControlAt() gives for any other character.
constexpr char32_t noControl = 0xFFFFFFFF;

/// The control character (U+0000 to U+001F, U+007F to U+009F) that begins at a position of a UTF-8 text.
char32_t ControlAt(std::string_view text, std::size_t position);

/// How many bytes a control character takes in UTF-8.
constexpr std::size_t BytesOfControl(char32_t control) {
    return control < 0x80 ? 1 : 2;
}

/// UTF-8 for one line of a terminal: U+000A as U+23CE (the return symbol), every other control character of
/// ASCII as its control picture (U+2400 and up), those of ISO 8859-1 as U+FFFD.
std::string OnOneLine(std::string_view text);

/// Adds the same to a line.
void AppendOnOneLine(std::string& line, std::string_view text);

/// The first code points of a valid UTF-8 text, and an ellipsis in place of the others.
std::string Shortened(std::string_view text, std::size_t codePoints);

/// The number of code points of a valid UTF-8 text.
std::size_t CodePoints(std::string_view text);

} // namespace xttml

#endif
