#include "runtime/binary.h"

#include "runtime/exceptions.h"
#include "runtime/whitespace.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace tessera {

namespace {

constexpr std::string_view BASE64_ALPHABET =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::string_view HEX_DIGITS = "0123456789ABCDEF";

constexpr std::uint8_t NO_DIGIT = 0xFF;
using DigitTable = std::array<std::uint8_t, 256>;

constexpr DigitTable DigitsOf(std::string_view alphabet) {
    DigitTable table{};
    for (std::uint8_t& digit : table) {
        digit = NO_DIGIT;
    }
    for (std::size_t i = 0; i < alphabet.size(); ++i) {
        table[static_cast<unsigned char>(alphabet[i])] = static_cast<std::uint8_t>(i);
    }
    return table;
}

constexpr DigitTable HexTable() {
    DigitTable table = DigitsOf(HEX_DIGITS);
    for (std::size_t i = 0; i < 6; ++i) {
        table['a' + i] = static_cast<std::uint8_t>(10 + i);
    }
    return table;
}

/// Both digits of every byte: one store instead of two.
constexpr std::array<std::array<char, 2>, 256> HexPairs() {
    std::array<std::array<char, 2>, 256> pairs{};
    for (std::size_t byte = 0; byte < pairs.size(); ++byte) {
        pairs[byte] = {HEX_DIGITS[byte >> 4], HEX_DIGITS[byte & 0xF]};
    }
    return pairs;
}

constexpr DigitTable BASE64_DIGITS = DigitsOf(BASE64_ALPHABET);
constexpr DigitTable HEX_VALUES = HexTable();
constexpr std::array<std::array<char, 2>, 256> HEX_PAIRS = HexPairs();

std::uint8_t Digit(const DigitTable& table, char c) {
    return table[static_cast<unsigned char>(c)];
}

std::size_t SkipWhitespace(std::string_view text, std::size_t position) {
    while (position < text.size() && IsWhitespace(text[position])) {
        ++position;
    }
    return position;
}

constexpr unsigned char Byte(unsigned value) {
    return static_cast<unsigned char>(value & 0xFF);
}

// Decodes groups as long as they are four plain digits in a row; returns where it stopped.
std::size_t DecodePlainGroups(std::string_view text, std::size_t position, unsigned char*& output) {
    for (; text.size() - position >= 4; position += 4) {
        const unsigned a = Digit(BASE64_DIGITS, text[position]);
        const unsigned b = Digit(BASE64_DIGITS, text[position + 1]);
        const unsigned c = Digit(BASE64_DIGITS, text[position + 2]);
        const unsigned d = Digit(BASE64_DIGITS, text[position + 3]);
        if ((a | b | c | d) == NO_DIGIT) {
            break;
        }
        *output++ = Byte(a << 2 | b >> 4);
        *output++ = Byte(b << 4 | c >> 2);
        *output++ = Byte(c << 6 | d);
    }
    return position;
}

// Decodes one group that may hold white space and padding; returns the position after it.
std::size_t DecodeGroup(std::string_view text, std::size_t start, unsigned char*& output) {
    std::array<std::uint8_t, 4> digits{};
    std::size_t position = start;
    bool isPadded = false;
    bool isValid = true;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        position = SkipWhitespace(text, position);
        if (position == text.size()) {
            throw StringParseException("base64Binary", std::string(text.substr(start)));
        }
        const char c = text[position++];
        const bool isPadding = c == '=' && i >= 2;
        isValid = isValid && (isPadding || (!isPadded && Digit(BASE64_DIGITS, c) != NO_DIGIT));
        isPadded = isPadded || isPadding;
        digits[i] = isPadding ? NO_DIGIT : Digit(BASE64_DIGITS, c);
    }
    if (!isValid) {
        throw StringParseException("base64Binary", std::string(text.substr(start, position - start)));
    }
    *output++ = Byte(unsigned(digits[0]) << 2 | digits[1] >> 4);
    if (digits[2] != NO_DIGIT) {
        *output++ = Byte(unsigned(digits[1]) << 4 | digits[2] >> 2);
    }
    if (digits[3] != NO_DIGIT) {
        *output++ = Byte(unsigned(digits[2]) << 6 | digits[3]);
    }
    return position;
}

void EncodeGroup(unsigned a, unsigned b, unsigned c, char* output) {
    output[0] = BASE64_ALPHABET[a >> 2];
    output[1] = BASE64_ALPHABET[(a << 4 | b >> 4) & 0x3F];
    output[2] = BASE64_ALPHABET[(b << 2 | c >> 6) & 0x3F];
    output[3] = BASE64_ALPHABET[c & 0x3F];
}

[[noreturn]] void RejectHex(std::string_view value) {
    throw StringParseException("hexBinary", std::string(value));
}

} // namespace

std::string PrintBase64(const std::vector<unsigned char>& bytes) {
    std::string text((bytes.size() + 2) / 3 * 4, '=');
    char* output = text.data();
    std::size_t i = 0;
    for (; bytes.size() - i >= 3; i += 3, output += 4) {
        EncodeGroup(bytes[i], bytes[i + 1], bytes[i + 2], output);
    }
    const std::size_t rest = bytes.size() - i;
    if (rest > 0) {
        EncodeGroup(bytes[i], rest == 2 ? bytes[i + 1] : 0, 0, output);
        std::fill(output + rest + 1, output + 4, '=');
    }
    return text;
}

std::string PrintHex(const std::vector<unsigned char>& bytes) {
    std::string text(bytes.size() * 2, '0');
    char* output = text.data();
    for (const unsigned char byte : bytes) {
        std::memcpy(output, HEX_PAIRS[byte].data(), 2);
        output += 2;
    }
    return text;
}

std::vector<unsigned char> ParseBase64(std::string_view text) {
    std::vector<unsigned char> bytes(text.size() / 4 * 3);
    unsigned char* output = bytes.data();
    std::size_t position = 0;
    while ((position = SkipWhitespace(text, position)) < text.size()) {
        const std::size_t stop = DecodePlainGroups(text, position, output);
        position = stop > position ? stop : DecodeGroup(text, position, output);
    }
    bytes.resize(static_cast<std::size_t>(output - bytes.data()));
    return bytes;
}

std::vector<unsigned char> ParseHex(std::string_view text) {
    std::size_t position = SkipWhitespace(text, 0);
    std::vector<unsigned char> bytes;
    bytes.reserve((text.size() - position) / 2);
    for (; position < text.size(); position += 2) {
        const unsigned high = Digit(HEX_VALUES, text[position]);
        if (high == NO_DIGIT) {
            break;
        }
        const std::string_view pair = text.substr(position, 2);
        const unsigned low = pair.size() == 2 ? Digit(HEX_VALUES, pair[1]) : NO_DIGIT;
        if (low == NO_DIGIT) {
            RejectHex(pair);
        }
        bytes.push_back(Byte(high << 4 | low));
    }
    position = SkipWhitespace(text, position);
    if (position < text.size()) {
        RejectHex(text.substr(position, 1));
    }
    return bytes;
}

} // namespace tessera
