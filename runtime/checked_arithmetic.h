// Sums and products that throw OutOfRangeException instead of overflowing.
#ifndef XTTML_RUNTIME_CHECKED_ARITHMETIC_H
#define XTTML_RUNTIME_CHECKED_ARITHMETIC_H

#include "runtime/exceptions.h"
#include "runtime/number.h"

#include <string>

namespace tessera {

/// Throws for `a` `operation` `b`, whose result does not fit in the type that the message names.
template <class Integer>
[[noreturn]] void ThrowOverflow(Integer a, const char* operation, Integer b, const char* target) {
    throw OutOfRangeException(TypeName<Integer>(), target, std::to_string(a) + operation + std::to_string(b));
}

template <class Integer>
Integer CheckedAdd(Integer a, Integer b, const char* target) {
    Integer sum{};
    if (__builtin_add_overflow(a, b, &sum)) {
        ThrowOverflow(a, " + ", b, target);
    }
    return sum;
}

template <class Integer>
Integer CheckedSubtract(Integer a, Integer b, const char* target) {
    Integer difference{};
    if (__builtin_sub_overflow(a, b, &difference)) {
        ThrowOverflow(a, " - ", b, target);
    }
    return difference;
}

template <class Integer>
Integer CheckedMultiply(Integer a, Integer b, const char* target) {
    Integer product{};
    if (__builtin_mul_overflow(a, b, &product)) {
        ThrowOverflow(a, " * ", b, target);
    }
    return product;
}

} // namespace tessera

#endif
