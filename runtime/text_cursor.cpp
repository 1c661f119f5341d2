#include "runtime/text_cursor.h"

#include "runtime/number.h"

#include <algorithm>
#include <string>

namespace tessera {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view LeadingDigits(std::string_view text) {
    const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

} // namespace

bool TextCursor::AtDigit() const {
    return IsDigit(Peek());
}

bool TextCursor::Take(char c) {
    if (rest_.empty() || rest_.front() != c) {
        return false;
    }
    rest_.remove_prefix(1);
    return true;
}

bool TextCursor::TakeDigits(std::size_t count, int& value) {
    const std::string_view digits = LeadingDigits(rest_.substr(0, count));
    if (digits.size() < count) {
        return false;
    }
    value = static_cast<int>(ParseInteger(digits).magnitude);
    rest_.remove_prefix(count);
    return true;
}

bool TextCursor::TakeDigit(int& digit) {
    return TakeDigits(1, digit);
}

bool TextCursor::TakeNumber(std::uint64_t& value) {
    const std::string_view digits = LeadingDigits(rest_);
    const ParsedInteger number = ParseInteger(digits);
    if (digits.empty() || number.overflow) {
        return false;
    }
    value = number.magnitude;
    rest_.remove_prefix(digits.size());
    return true;
}

bool TextCursor::TakeFraction(unsigned width, std::int64_t& value) {
    const std::string_view digits = LeadingDigits(rest_);
    if (digits.empty()) {
        return false;
    }
    std::string places(digits.substr(0, width));
    places.resize(width, '0');
    value = static_cast<std::int64_t>(ParseInteger(places).magnitude);
    rest_.remove_prefix(digits.size());
    return true;
}

} // namespace tessera
