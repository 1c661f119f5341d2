// What an untrusted document may have, and how its refusal begins and ends around the number. The build sets
// the numbers (cmake/untrusted_limits.cmake).
#ifndef XTTML_XMLTREE_UNTRUSTED_LIMITS_H
#define XTTML_XMLTREE_UNTRUSTED_LIMITS_H

#include <cstdint>

namespace untrusted {

struct Limit {
    std::uint64_t most;
    const char* before;
    const char* after;
};

// The XML library walks a chain for each name, namespace and prefix that it meets, and chains can be made to
// hold all of a kind: what one node costs is bounded by the numbers of them and their lengths, what a
// document costs by that and the number of nodes.
inline constexpr Limit BYTES = {XTTML_UNTRUSTED_MAX_BYTES, "The document is larger than ", " bytes."};
inline constexpr Limit DEPTH = {XTTML_UNTRUSTED_MAX_DEPTH, "Elements are nested more than ", " deep."};
inline constexpr Limit NODES = {XTTML_UNTRUSTED_MAX_NODES, "The document has more than ", " nodes."};
inline constexpr Limit ATTRIBUTES = {XTTML_UNTRUSTED_MAX_ATTRIBUTES, "An element has more than ",
                                     " attributes."};
inline constexpr Limit VALUE = {XTTML_UNTRUSTED_MAX_VALUE, "An attribute value is longer than ",
                                " characters."};
inline constexpr Limit STYLING_VALUE = {XTTML_UNTRUSTED_MAX_STYLING_VALUE, "A styling value is longer than ",
                                        " characters."}; // every run holds copies
inline constexpr Limit NAMES = {XTTML_UNTRUSTED_MAX_NAMES, "The document has more than ",
                                " different names."};
inline constexpr Limit NAME = {XTTML_UNTRUSTED_MAX_NAME, "A name is longer than ", " characters."};
inline constexpr Limit NAMESPACES = {XTTML_UNTRUSTED_MAX_NAMESPACES, "The document has more than ",
                                     " namespaces."};
inline constexpr Limit NAMESPACE = {XTTML_UNTRUSTED_MAX_NAMESPACE, "A namespace is longer than ",
                                    " characters."};
inline constexpr Limit DECLARATIONS = {XTTML_UNTRUSTED_MAX_DECLARATIONS, "More than ",
                                       " namespace declarations are in scope."};

} // namespace untrusted

#endif
