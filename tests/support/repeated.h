// A text many times over.
#ifndef XTTML_TESTS_SUPPORT_REPEATED_H
#define XTTML_TESTS_SUPPORT_REPEATED_H

#include <string>

inline std::string Repeated(const std::string& text, std::size_t times) {
    std::string repeated;
    for (std::size_t i = 0; i < times; ++i)
        repeated += text;
    return repeated;
}

#endif
