// The records of the metadata tables that describe a bound document model: namespaces, types, members
// and facets. The tables themselves stand in binding/; everything that reads them looks down at this file.
//
// Every record of a table is constant data. The strings are zero-terminated and live as long as the
// library. Every table ends with one record whose fields are all zero.
#ifndef XTTML_RUNTIME_INFO_H
#define XTTML_RUNTIME_INFO_H

#include <cstdint>

namespace tessera {

class FacetCheck;
class XmlFormatter;
struct FacetInfo;
struct MemberInfo;
struct NamespaceInfo;
struct TypeInfo;

/// The four tables of one document model; every namespace, type and member record leads back here.
struct InfoBinder {
    const NamespaceInfo* namespaces; ///< ends with a record of zeros
    const TypeInfo* types;           ///< ends with a record of zeros
    const MemberInfo* members;       ///< ends with a record of zeros
    const FacetInfo* facets;         ///< each type's facets end with a record of zeros
};

/// A namespace and the range of types that it owns.
struct NamespaceInfo {
    const InfoBinder* binder; ///< the tables that the record belongs to
    const char* namespaceURI; ///< the name of the namespace
    const char* prefix;       ///< the preferred prefix
    std::uint32_t firstType;  ///< index into the type table
    std::uint32_t endType;    ///< one past the last type
};

/// What becomes of the white space in a value (XML Schema Part 2, 4.3.6 whiteSpace).
enum class WhitespaceType : std::uint32_t {
    INHERITED = 0, ///< not set here: the base type's
    PRESERVE = 1,
    REPLACE = 2,
    COLLAPSE = 3
};

/// A simple or complex type of the schema.
struct TypeInfo {
    const InfoBinder* binder;             ///< the tables that the record belongs to
    std::uint32_t namespaceIndex;         ///< index into the namespace table
    const char* localName;                ///< empty for an anonymous type
    std::int32_t baseType;                ///< index into the type table; -1 for none
    std::uint32_t firstMember;            ///< index into the member table
    std::uint32_t endMember;              ///< one past the last member; firstMember when there is none
    std::int32_t facetIndex;              ///< index of the first facet; -1 for none
    WhitespaceType whitespace;            ///< the type's own treatment of white space
    const XmlFormatter* const* formatter; ///< the slot that holds the formatter; null: no text content
};

/// Bits of MemberInfo::flags.
enum MemberFlags : std::uint32_t {
    MEMBER_ELEMENT = 0,  ///< a child element
    MEMBER_ATTRIBUTE = 2 ///< an attribute; also the text content, whose local name is empty
};

/// An attribute, a child element or the text content of a type.
struct MemberInfo {
    const InfoBinder* binder;     ///< the tables that the record belongs to
    const char* namespaceURI;     ///< empty for no namespace
    const char* localName;        ///< empty for the text content
    std::uint32_t containingType; ///< index of the type that owns the member
    std::uint32_t dataType;       ///< index of the type of its value
    std::uint32_t flags;          ///< MemberFlags
    std::uint32_t minOccurs;      ///< 0 for optional
    std::int32_t maxOccurs;       ///< -1 for unbounded
};

/// One facet of a simple type. A type's facets end at the first record without a name.
struct FacetInfo {
    const FacetCheck* check; ///< null: nothing is checked
    const char* facetName;   ///< the name in XML Schema, such as "enumeration"; null at the end of a list
    const char* value;       ///< the lexical value
    std::int32_t intValue;   ///< the value of a length facet as a number, else 0
};

} // namespace tessera

#endif
