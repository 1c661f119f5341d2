// Documents that an attacker would send.
#ifndef XTTML_BENCH_HOSTILE_DOCUMENTS_H
#define XTTML_BENCH_HOSTILE_DOCUMENTS_H

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// The size up to which an untrusted document is parsed.
inline constexpr std::size_t untrustedBytes = XTTML_UNTRUSTED_MAX_BYTES;

struct HostileFamily {
    std::string name;
    std::function<std::string(std::size_t)> make; ///< a document of at most so many bytes
};

/// Each makes the most of the limits of untrusted documents.
std::vector<HostileFamily> HostileFamilies();

#endif
