// A place in a text that is read from left to right. Every Take moves on only when it finds what it looks
// for.
#ifndef XTTML_RUNTIME_TEXT_CURSOR_H
#define XTTML_RUNTIME_TEXT_CURSOR_H

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tessera {

class TextCursor {
public:
    /// `text` must outlive the cursor.
    explicit TextCursor(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return rest_.empty(); }
    bool AtDigit() const;
    /// The character `offset` places ahead; 0 beyond the end.
    char Peek(std::size_t offset = 0) const { return offset < rest_.size() ? rest_[offset] : '\0'; }

    bool Take(char c);
    /// Exactly `count` digits (9 at most).
    bool TakeDigits(std::size_t count, int& value);
    /// One digit.
    bool TakeDigit(int& digit);
    /// All the digits here, at least one; false also when the number does not fit.
    bool TakeNumber(std::uint64_t& value);
    /// The digits after a decimal point, at least one, as the first `width` places of the fraction; digits
    /// beyond them are dropped.
    bool TakeFraction(unsigned width, std::int64_t& value);

private:
    std::string_view rest_;
};

} // namespace tessera

#endif
