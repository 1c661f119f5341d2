// An integer as it is read from a text, before it is known which type can hold it.
#ifndef XTTML_RUNTIME_PARSED_INTEGER_H
#define XTTML_RUNTIME_PARSED_INTEGER_H

#include <cstdint>

namespace tessera {

/// Sign and magnitude.
struct ParsedInteger {
    std::uint64_t magnitude; ///< modulo 2^64 when `overflow` is set
    bool positive;           ///< also set for minus zero
    bool overflow;           ///< the magnitude does not fit in 64 bits
};

} // namespace tessera

#endif
