#include "binding/tables.h"

#include "binding/formatter_slots.h"

namespace ttaf1_dfxp {

using tessera::FacetInfo;
using tessera::InfoBinder;
using tessera::MemberInfo;
using tessera::NamespaceInfo;
using tessera::TypeInfo;
using tessera::WhitespaceType;

namespace {

// The words of the generated rows.
constexpr auto INHERITED = WhitespaceType::INHERITED;
constexpr auto PRESERVE = WhitespaceType::PRESERVE;
constexpr auto REPLACE = WhitespaceType::REPLACE;
constexpr auto COLLAPSE = WhitespaceType::COLLAPSE;
constexpr auto ATTRIBUTE = tessera::MEMBER_ATTRIBUTE;
constexpr auto ELEMENT = tessera::MEMBER_ELEMENT;

} // namespace

constexpr NamespaceInfo namespaces[] = {
#include "binding/generated/namespace_rows.inc"
    {},
};

constexpr TypeInfo types[] = {
#include "binding/generated/type_rows.inc"
    {},
};

namespace {

constexpr const char* uri(std::uint32_t namespaceIndex) {
    return namespaces[namespaceIndex].namespaceURI;
}

} // namespace

constexpr MemberInfo members[] = {
#include "binding/generated/member_rows.inc"
    {},
};

constexpr FacetInfo facets[] = {
#include "binding/generated/facet_rows.inc"
};

constexpr InfoBinder binder = {namespaces, types, members, facets};

// The sizes are checked by the declarations; here follows how the tables fit together.

namespace {

/// The namespaces' ranges cover the types in order, and each type names the namespace whose range it is in.
constexpr bool TypeRangesTile() {
    std::uint32_t next = 0;
    for (std::uint32_t i = 0; i < NAMESPACE_COUNT; ++i) {
        if (namespaces[i].firstType != next) {
            return false;
        }
        for (; next < namespaces[i].endType; ++next) {
            if (types[next].namespaceIndex != i) {
                return false;
            }
        }
    }
    return next == TYPE_COUNT;
}
static_assert(TypeRangesTile());

/// The types' ranges cover the members in order, and each member names the type whose range it is in.
constexpr bool MemberRangesTile() {
    std::uint32_t next = 0;
    for (std::uint32_t i = 0; i < TYPE_COUNT; ++i) {
        if (types[i].firstMember != next) {
            return false;
        }
        for (; next < types[i].endMember; ++next) {
            if (members[next].containingType != i || members[next].dataType >= TYPE_COUNT) {
                return false;
            }
        }
    }
    return next == MEMBER_COUNT;
}
static_assert(MemberRangesTile());

/// Text content before attributes before elements.
constexpr int RankInType(const MemberInfo& member) {
    if (member.flags == tessera::MEMBER_ELEMENT) {
        return 2;
    }
    return *member.localName ? 1 : 0;
}

constexpr bool MembersAreOrdered() {
    for (std::uint32_t i = 1; i < MEMBER_COUNT; ++i) {
        if (members[i].containingType == members[i - 1].containingType &&
            (RankInType(members[i]) < RankInType(members[i - 1]) || RankInType(members[i]) == 0)) {
            return false;
        }
    }
    return true;
}
static_assert(MembersAreOrdered());

constexpr std::uint32_t EndOfFacetList(std::uint32_t first) {
    while (facets[first].facetName) {
        ++first;
    }
    return first + 1;
}

/// The types' facet lists cover the facets in order; none is empty.
constexpr bool FacetListsTile() {
    std::uint32_t next = 0;
    for (std::uint32_t i = 0; i < TYPE_COUNT; ++i) {
        if (types[i].facetIndex == -1) {
            continue;
        }
        if (static_cast<std::uint32_t>(types[i].facetIndex) != next || !facets[next].facetName) {
            return false;
        }
        next = EndOfFacetList(next);
    }
    return next == FACET_COUNT;
}
static_assert(FacetListsTile());

constexpr bool BaseChainEnds(const TypeInfo& type) {
    std::int32_t base = type.baseType;
    for (std::uint32_t steps = 0; base != -1 && steps < TYPE_COUNT; ++steps) {
        base = types[base].baseType;
    }
    return base == -1;
}

constexpr bool BaseChainsEnd() {
    for (std::uint32_t i = 0; i < TYPE_COUNT; ++i) {
        if (!BaseChainEnds(types[i])) {
            return false;
        }
    }
    return true;
}
static_assert(BaseChainsEnd());

} // namespace

} // namespace ttaf1_dfxp
