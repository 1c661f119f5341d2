// From UTF-16, as the XML library delivers it, to UTF-8 (Unicode 15, D92).
#ifndef XTTML_RUNTIME_UTF8_H
#define XTTML_RUNTIME_UTF8_H

#include <cstddef>
#include <string>
#include <string_view>

namespace tessera {

/// UTF-16 as UTF-8. A surrogate without its partner becomes U+FFFD, so that the result is always valid.
std::string Utf8FromUtf16(std::u16string_view text);

/// Writes UTF-8 into a buffer of limited room as snprintf does: as many whole characters as fit, the length
/// of the whole text in the end. Allocates nothing.
class Utf8Writer {
public:
    /// `buffer`: null counts as a room of 0. `room`: its bytes, the terminating zero included.
    Utf8Writer(char* buffer, std::size_t room) : buffer_(buffer), room_(buffer ? room : 0) {}

    /// Adds a UTF-16 text, lone surrogates as U+FFFD.
    void Append(std::u16string_view text);
    /// Terminates what has been written; the length of the whole text in bytes, its zero not counted.
    std::size_t Finish();

private:
    void AppendAscii(std::u16string_view text); // in one piece: most texts hold little else
    void AppendCharacter(std::string_view bytes);

    char* buffer_;
    std::size_t room_;
    std::size_t written_ = 0; // whole characters only
    std::size_t length_ = 0;  // of the whole text; equal to written_ while all of it fits
};

} // namespace tessera

#endif
