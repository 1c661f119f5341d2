#include "runtime/facets.h"

#include "runtime/whitespace.h"

#include <string_view>

namespace tessera {

namespace {

class AlwaysPass final : public FacetCheck {
public:
    constexpr AlwaysPass() = default;
    int Check(const std::string&, const FacetInfo&, WhitespaceType) const override { return PASSES; }
};

// Whether a length satisfies the length that a facet gives.
using LengthRule = bool (*)(long long length, long long facetLength);

constexpr bool IsExactly(long long length, long long facetLength) {
    return length == facetLength;
}

constexpr bool IsAtLeast(long long length, long long facetLength) {
    return length >= facetLength;
}

constexpr bool IsAtMost(long long length, long long facetLength) {
    return length <= facetLength;
}

template <LengthRule rule>
class StringLength final : public FacetCheck {
public:
    constexpr StringLength() = default;
    int Check(const std::string& value, const FacetInfo& facet, WhitespaceType whitespace) const override {
        const std::size_t length = LengthFacetCheckHelper::ComputeLength(value, whitespace);
        return rule(static_cast<long long>(length), facet.intValue) ? PASSES : FAILS;
    }
};

class StringEnumeration final : public FacetCheck {
public:
    constexpr StringEnumeration() = default;
    int Check(const std::string& value, const FacetInfo& facet, WhitespaceType whitespace) const override {
        return LengthFacetCheckHelper::Equals(value, facet.value, whitespace) ? ENUMERATION_MATCHES
                                                                              : ENUMERATION_DIFFERS;
    }
};

constexpr AlwaysPass ALWAYS_PASS;
constexpr StringLength<IsExactly> STRING_LENGTH;
constexpr StringLength<IsAtLeast> STRING_MIN_LENGTH;
constexpr StringLength<IsAtMost> STRING_MAX_LENGTH;
constexpr StringEnumeration STRING_ENUMERATION;

// The check behind FacetCheck_<type>_<facet>.
constexpr const FacetCheck* CheckFor(std::string_view type, std::string_view facet) {
    const bool isString = type == "string";
    const bool isBinary = type == "hexBinary" || type == "base64Binary";
    if (facet == "enumeration" && (isString || isBinary)) {
        return &STRING_ENUMERATION;
    }
    if (isBinary && (facet == "length" || facet == "minLength" || facet == "maxLength")) {
        return nullptr;
    }
    if (isString && facet == "length") {
        return &STRING_LENGTH;
    }
    if (isString && facet == "minLength") {
        return &STRING_MIN_LENGTH;
    }
    if (isString && facet == "maxLength") {
        return &STRING_MAX_LENGTH;
    }
    return &ALWAYS_PASS;
}

const TypeInfo* BaseOf(const TypeInfo& type) {
    return type.baseType < 0 ? nullptr : &type.binder->types[type.baseType];
}

// Whether a value passes the facets that stand at one type itself.
bool PassesOwnFacets(const std::string& value, const TypeInfo& type, WhitespaceType whitespace) {
    if (type.facetIndex < 0) {
        return true;
    }
    bool isEnumerated = false;
    bool isMatched = false;
    for (const FacetInfo* facet = &type.binder->facets[type.facetIndex]; facet->facetName != nullptr;
         ++facet) {
        const int result =
            facet->check == nullptr ? FacetCheck::PASSES : facet->check->Check(value, *facet, whitespace);
        if (result == FacetCheck::FAILS) {
            return false;
        }
        isEnumerated = isEnumerated || result == FacetCheck::ENUMERATION_DIFFERS;
        isMatched = isMatched || result == FacetCheck::ENUMERATION_MATCHES;
    }
    return isMatched || !isEnumerated;
}

} // namespace

#define XTTML_DEFINE_CHECK(type, facet)                                                                      \
    constexpr const FacetCheck* const FacetCheck_##type##_##facet = CheckFor(#type, #facet);
#define XTTML_DEFINE_CHECK_OF_TYPE(type) XTTML_VALUE_FACETS(XTTML_DEFINE_CHECK, type)
XTTML_FACET_CHECKS(XTTML_DEFINE_CHECK)

bool LengthFacetCheckHelper::IsWhitespace(char c) {
    return tessera::IsWhitespace(c);
}

std::size_t LengthFacetCheckHelper::ComputeLength(const std::string& value, WhitespaceType whitespace) {
    return whitespace == WhitespaceType::COLLAPSE ? CollapseWhitespace(value).size() : value.size();
}

bool LengthFacetCheckHelper::Equals(const std::string& value, const std::string& facetValue,
                                    WhitespaceType whitespace) {
    switch (whitespace) {
    case WhitespaceType::COLLAPSE:
        return CollapseWhitespace(value) == facetValue;
    case WhitespaceType::REPLACE:
        return ReplaceWhitespace(value) == facetValue;
    default:
        return value == facetValue;
    }
}

std::string XsSchemaValidation::CollapseWhitespace(const std::string& value) {
    return tessera::CollapseWhitespace(value);
}

std::string XsSchemaValidation::ReplaceWhitespace(const std::string& value) {
    return tessera::ReplaceWhitespace(value);
}

WhitespaceType XsSchemaValidation::ResolveWhitespace(const TypeInfo& type) {
    const TypeInfo* current = &type;
    while (current != nullptr && current->whitespace == WhitespaceType::INHERITED) {
        current = BaseOf(*current);
    }
    return current == nullptr ? WhitespaceType::PRESERVE : current->whitespace;
}

bool XsSchemaValidation::Validate(const std::string& value, const TypeInfo& type) {
    const WhitespaceType whitespace = ResolveWhitespace(type);
    for (const TypeInfo* current = &type; current != nullptr; current = BaseOf(*current)) {
        if (!PassesOwnFacets(value, *current, whitespace)) {
            return false;
        }
    }
    return true;
}

} // namespace tessera
