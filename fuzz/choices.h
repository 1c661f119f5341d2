// The bytes of a fuzzer's input as a row of choices. Used up, it chooses 0 and empty texts for ever.
#ifndef XTTML_FUZZ_CHOICES_H
#define XTTML_FUZZ_CHOICES_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

class Choices {
public:
    Choices(const std::uint8_t* bytes, std::size_t size) : bytes_(bytes), size_(size) {}

    bool IsUsedUp() const { return size_ == 0; }
    std::uint8_t Byte() {
        if (IsUsedUp())
            return 0;
        --size_;
        return *bytes_++;
    }
    /// 0 to `count` - 1; `count` is 1 to 256.
    unsigned OneOf(unsigned count) { return Byte() % count; }
    bool Once(unsigned inHowMany) { return OneOf(inHowMany) == 1; }
    std::uint32_t Number() {
        std::uint32_t number = 0;
        for (int i = 0; i < 4; ++i)
            number = number << 8 | Byte();
        return number;
    }
    std::int32_t SignedNumber() { return static_cast<std::int32_t>(Number()); }
    /// As many of the bytes as `longest` allows and a byte tells.
    std::string Text(std::size_t longest) {
        const std::size_t length = std::min({std::size_t{Byte()}, longest, size_});
        return Take(length);
    }
    std::string Rest() { return Take(size_); }
    template <class T, std::size_t count>
    const T& OneOf(const T (&row)[count]) {
        return row[OneOf(static_cast<unsigned>(count))];
    }

private:
    std::string Take(std::size_t length) {
        std::string taken(bytes_, bytes_ + length);
        bytes_ += length;
        size_ -= length;
        return taken;
    }

    const std::uint8_t* bytes_;
    std::size_t size_;
};

#endif
