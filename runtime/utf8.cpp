#include "runtime/utf8.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr char32_t REPLACEMENT_CHARACTER = 0xFFFD;

struct EncodedCharacter {
    char bytes[4];
    std::size_t size;
};

bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Takes the first character off a text that is not empty.
char32_t TakeCharacter(std::u16string_view& text) {
    const char32_t unit = text.front();
    text.remove_prefix(1);
    if (!IsHighSurrogate(unit) && !IsLowSurrogate(unit)) {
        return unit;
    }
    if (IsLowSurrogate(unit) || text.empty() || !IsLowSurrogate(text.front())) {
        return REPLACEMENT_CHARACTER;
    }
    const char32_t low = text.front();
    text.remove_prefix(1);
    return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
}

char TrailingByte(char32_t bits) {
    return static_cast<char>(0x80 | (bits & 0x3F));
}

EncodedCharacter Encode(char32_t c) {
    if (c < 0x80) {
        return {{static_cast<char>(c)}, 1};
    }
    if (c < 0x800) {
        return {{static_cast<char>(0xC0 | c >> 6), TrailingByte(c)}, 2};
    }
    if (c < 0x10000) {
        return {{static_cast<char>(0xE0 | c >> 12), TrailingByte(c >> 6), TrailingByte(c)}, 3};
    }
    return {{static_cast<char>(0xF0 | c >> 18), TrailingByte(c >> 12), TrailingByte(c >> 6), TrailingByte(c)},
            4};
}

} // namespace

std::string Utf8FromUtf16(std::u16string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const EncodedCharacter c = Encode(TakeCharacter(text));
        result.append(c.bytes, c.size);
    }
    return result;
}

void Utf8Writer::Append(std::u16string_view text) {
    while (!text.empty()) {
        const auto end = std::find_if(text.begin(), text.end(), [](char16_t unit) { return unit >= 0x80; });
        const auto ascii = static_cast<std::size_t>(end - text.begin());
        AppendAscii(text.substr(0, ascii));
        text.remove_prefix(ascii);
        if (!text.empty()) {
            const EncodedCharacter c = Encode(TakeCharacter(text));
            AppendCharacter({c.bytes, c.size});
        }
    }
}

void Utf8Writer::AppendAscii(std::u16string_view text) {
    const bool fits = written_ == length_ && written_ < room_;
    const std::size_t count = fits ? std::min(text.size(), room_ - written_ - 1) : 0;
    std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(count), buffer_ + written_,
                   [](char16_t unit) { return static_cast<char>(unit); });
    written_ += count;
    length_ += text.size();
}

void Utf8Writer::AppendCharacter(std::string_view bytes) {
    if (written_ == length_ && written_ + bytes.size() < room_) {
        written_ += bytes.copy(buffer_ + written_, bytes.size());
    }
    length_ += bytes.size();
}

std::size_t Utf8Writer::Finish() {
    if (room_ > 0) {
        buffer_[written_] = '\0';
    }
    return length_;
}

} // namespace tessera
