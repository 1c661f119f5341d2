// White space and facet checks (XML Schema Part 2, 4.3) over the facet table of a document model. Nothing
// here throws.
#ifndef XTTML_RUNTIME_FACETS_H
#define XTTML_RUNTIME_FACETS_H

#include "runtime/export.h"
#include "runtime/info.h"

#include <cstddef>
#include <string>

namespace tessera {

/// Checks a value against one facet. The objects are constants and never deleted.
class XTTML_API FacetCheck {
public:
    /// What a check answers.
    enum Result : int {
        FAILS = 0,               ///< the value is not valid
        PASSES = 1,              ///< nothing against the value
        ENUMERATION_DIFFERS = 2, ///< an enumeration facet with another value
        ENUMERATION_MATCHES = 3  ///< an enumeration facet with this value
    };

    /// One of Result. `whitespace`: how the value's white space counts, resolved (never INHERITED).
    virtual int Check(const std::string& value, const FacetInfo& facet, WhitespaceType whitespace) const = 0;

protected:
    constexpr FacetCheck() = default;
    ~FacetCheck() = default;
};

/// Lengths and comparisons of values whose white space has not been treated yet.
class XTTML_API LengthFacetCheckHelper {
public:
    /// True for tab, line feed, carriage return and space.
    static bool IsWhitespace(char c);
    /// The length in bytes; for COLLAPSE the length that the collapsed value would have.
    static std::size_t ComputeLength(const std::string& value, WhitespaceType whitespace);
    /// Whether the value, its white space treated, equals `facetValue`, which is taken as it stands.
    static bool Equals(const std::string& value, const std::string& facetValue, WhitespaceType whitespace);
};

/// Treats white space and validates values.
class XTTML_API XsSchemaValidation {
public:
    /// Drops leading and trailing white space and replaces every inner run by one space.
    static std::string CollapseWhitespace(const std::string& value);
    /// Replaces every tab, line feed and carriage return by a space.
    static std::string ReplaceWhitespace(const std::string& value);
    /// The type's own kind, or the nearest base type's that sets one; PRESERVE when none does.
    static WhitespaceType ResolveWhitespace(const TypeInfo& type);
    /// True when the value passes the facets of the type and of all its base types. Of the enumeration
    /// facets of one type, one has to match; facets without a check count for nothing.
    static bool Validate(const std::string& value, const TypeInfo& type);
};

// The references FacetCheck_<type>_<facet>. Three lists say which there are: every type has the value facets;
// string, anySimpleType and the binary types have the length facets too.
// clang-format off
/// Applies DO(type) to every type.
#define XTTML_FACETED_TYPES(DO)                                                 \
    DO(string) DO(hexBinary) DO(base64Binary) DO(decimal) DO(boolean) DO(float) \
    DO(double) DO(duration) DO(dateTime) DO(time) DO(date) DO(gYear) DO(gMonth) \
    DO(gDay) DO(gYearMonth) DO(gMonthDay) DO(anySimpleType)
/// Applies DO(type, facet) to the facets that every type has.
#define XTTML_VALUE_FACETS(DO, type)                                                       \
    DO(type, pattern) DO(type, enumeration) DO(type, totalDigits) DO(type, fractionDigits) \
    DO(type, minInclusive) DO(type, maxInclusive) DO(type, minExclusive) DO(type, maxExclusive)
/// Applies DO(type, facet) to the length facets.
#define XTTML_LENGTH_FACETS(DO, type) DO(type, length) DO(type, minLength) DO(type, maxLength)
// clang-format on

/// Applies DO(type, facet) to every pair of which there is a reference. The user also defines
/// DO_OF_TYPE(type) as XTTML_VALUE_FACETS(DO, type).
#define XTTML_FACET_CHECKS(DO)                                                                               \
    XTTML_FACETED_TYPES(DO##_OF_TYPE)                                                                        \
    XTTML_LENGTH_FACETS(DO, string)                                                                          \
    XTTML_LENGTH_FACETS(DO, anySimpleType)                                                                   \
    XTTML_LENGTH_FACETS(DO, hexBinary)                                                                       \
    XTTML_LENGTH_FACETS(DO, base64Binary)

/// Declares the reference for one facet of one type. The lengths of hexBinary and base64Binary are null:
/// nothing checks them. The lengths and the enumeration of string and the enumerations of the binary types
/// are checked; every other check always passes.
#define XTTML_DECLARE_CHECK(type, facet) extern XTTML_API const FacetCheck* const FacetCheck_##type##_##facet;
/// Declares the references for the value facets of one type.
#define XTTML_DECLARE_CHECK_OF_TYPE(type) XTTML_VALUE_FACETS(XTTML_DECLARE_CHECK, type)
XTTML_FACET_CHECKS(XTTML_DECLARE_CHECK)
#undef XTTML_DECLARE_CHECK_OF_TYPE
#undef XTTML_DECLARE_CHECK

} // namespace tessera

#endif
