// A file descriptor that closes itself.
#ifndef XTTML_TOOLS_XTTML_DESCRIPTOR_H
#define XTTML_TOOLS_XTTML_DESCRIPTOR_H

#include <cerrno>
#include <system_error>
#include <unistd.h>

namespace xttml {

/// Owns a file descriptor.
class Descriptor {
public:
    /// Takes the result of a system call. Throws std::system_error when that is -1.
    Descriptor(int descriptor, const char* action) : descriptor_(descriptor) {
        if (descriptor_ < 0)
            throw std::system_error(errno, std::generic_category(), action);
    }
    ~Descriptor() { ::close(descriptor_); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Get() const { return descriptor_; }

private:
    int descriptor_;
};

} // namespace xttml

#endif
