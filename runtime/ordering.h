// Comparison operators for values that are not always in order.
#ifndef XTTML_RUNTIME_ORDERING_H
#define XTTML_RUNTIME_ORDERING_H

namespace tessera {

/// Gives a class that has == and < the other four operators. The order may be partial: two values may be
/// neither equal nor less nor greater, so `<=` means less or equal and never "not greater".
template <class T>
struct PartialOrder {
    /// @{
    /// What == and < make of it.
    friend bool operator!=(const T& a, const T& b) { return !(a == b); }
    friend bool operator>(const T& a, const T& b) { return b < a; }
    friend bool operator<=(const T& a, const T& b) { return a == b || a < b; }
    friend bool operator>=(const T& a, const T& b) { return b <= a; }
    /// @}
};

} // namespace tessera

#endif
