// Byte strings in text: Base64 (RFC 4648, 4) and hexadecimal digits (XML Schema Part 2, 3.2.15 hexBinary).
#ifndef XTTML_RUNTIME_BINARY_H
#define XTTML_RUNTIME_BINARY_H

#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// Base64 with the standard alphabet, "=" up to a multiple of four characters, no line breaks.
std::string PrintBase64(const std::vector<unsigned char>& bytes);

/// Two upper-case digits a byte, the high nibble first.
std::string PrintHex(const std::vector<unsigned char>& bytes);

/// Reads groups of four Base64 characters; white space may stand anywhere, "=" may end any group.
/// Throws StringParseException of type "base64Binary" whose value starts at the first character of the bad
/// group and ends at its fourth, or at the end of the text when the group is cut short.
std::vector<unsigned char> ParseBase64(std::string_view text);

/// Reads pairs of hexadecimal digits of either case; white space may stand around them, not between.
/// Throws StringParseException of type "hexBinary" whose value is a lone last digit, a pair that is no pair
/// of digits, or the first character after the digits that is no white space.
std::vector<unsigned char> ParseHex(std::string_view text);

} // namespace tessera

#endif
