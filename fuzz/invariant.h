// What a fuzzer holds to be true of every answer.
#ifndef XTTML_FUZZ_INVARIANT_H
#define XTTML_FUZZ_INVARIANT_H

#include <cstdio>
#include <cstdlib>

/// Names what does not hold and ends the process, which every runner takes for a find.
inline void Require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

#endif
