// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// The built-in types of XML Schema.
// The class of a simple type holds a node and nothing else.
// clang-format off
#ifndef XTTML_BINDING_GENERATED_XML_SCHEMA_H
#define XTTML_BINDING_GENERATED_XML_SCHEMA_H

#include "binding/generated/class_names.h"
#include "binding/member_accessors.h"
#include "binding/tables.h"
#include "binding/type_base.h"

#include <string>

namespace ttaf1_dfxp::xs {

struct CENTITIES : TypeBase { using TypeBase::TypeBase; };
struct CENTITY : TypeBase { using TypeBase::TypeBase; };
struct CID : TypeBase { using TypeBase::TypeBase; };
struct CIDREF : TypeBase { using TypeBase::TypeBase; };
struct CIDREFS : TypeBase { using TypeBase::TypeBase; };
struct CNCName : TypeBase { using TypeBase::TypeBase; };
struct CNMTOKEN : TypeBase { using TypeBase::TypeBase; };
struct CNMTOKENS : TypeBase { using TypeBase::TypeBase; };
struct CNOTATION : TypeBase { using TypeBase::TypeBase; };
struct CName : TypeBase { using TypeBase::TypeBase; };
struct CQName : TypeBase { using TypeBase::TypeBase; };
struct CanySimpleType : TypeBase { using TypeBase::TypeBase; };
struct CanyURI : TypeBase { using TypeBase::TypeBase; };
struct Cbase64Binary : TypeBase { using TypeBase::TypeBase; };
struct Cboolean : TypeBase { using TypeBase::TypeBase; };
struct Cbyte : TypeBase { using TypeBase::TypeBase; };
struct Cdate : TypeBase { using TypeBase::TypeBase; };
struct CdateTime : TypeBase { using TypeBase::TypeBase; };
struct Cdecimal : TypeBase { using TypeBase::TypeBase; };
struct Cdouble : TypeBase { using TypeBase::TypeBase; };
struct Cduration : TypeBase { using TypeBase::TypeBase; };
struct Cfloat : TypeBase { using TypeBase::TypeBase; };
struct CgDay : TypeBase { using TypeBase::TypeBase; };
struct CgMonth : TypeBase { using TypeBase::TypeBase; };
struct CgMonthDay : TypeBase { using TypeBase::TypeBase; };
struct CgYear : TypeBase { using TypeBase::TypeBase; };
struct CgYearMonth : TypeBase { using TypeBase::TypeBase; };
struct ChexBinary : TypeBase { using TypeBase::TypeBase; };
struct Cint : TypeBase { using TypeBase::TypeBase; };
struct Cinteger : TypeBase { using TypeBase::TypeBase; };
struct Clanguage : TypeBase { using TypeBase::TypeBase; };
struct Clong : TypeBase { using TypeBase::TypeBase; };
struct CnegativeInteger : TypeBase { using TypeBase::TypeBase; };
struct CnonNegativeInteger : TypeBase { using TypeBase::TypeBase; };
struct CnonPositiveInteger : TypeBase { using TypeBase::TypeBase; };
struct CnormalizedString : TypeBase { using TypeBase::TypeBase; };
struct CpositiveInteger : TypeBase { using TypeBase::TypeBase; };
struct Cshort : TypeBase { using TypeBase::TypeBase; };
struct Cstring : TypeBase { using TypeBase::TypeBase; };
struct Ctime : TypeBase { using TypeBase::TypeBase; };
struct Ctoken : TypeBase { using TypeBase::TypeBase; };
struct CunsignedByte : TypeBase { using TypeBase::TypeBase; };
struct CunsignedInt : TypeBase { using TypeBase::TypeBase; };
struct CunsignedLong : TypeBase { using TypeBase::TypeBase; };
struct CunsignedShort : TypeBase { using TypeBase::TypeBase; };

/// The type xs:anyType.
class CanyType : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit CanyType(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    CanyType(const CanyType& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    CanyType& operator=(const CanyType& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// The text inside the element.
    operator std::string() const { return GetText(members[0]); }
    /// Replaces everything inside the element by a text.
    CanyType& operator=(const std::string& text) {
        SetText(members[0], text);
        return *this;
    }

    /// Sets xsi:type to xs:anyType.
    void SetXsiType() { WriteXsiType(types[14]); }
};

/// An element whose content is one xs:string.
class CstringType : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit CstringType(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    CstringType(const CstringType& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    CstringType& operator=(const CstringType& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// The text inside the element.
    operator std::string() const { return GetText(members[1]); }
    /// Replaces everything inside the element by a text.
    CstringType& operator=(const std::string& text) {
        SetText(members[1], text);
        return *this;
    }

    /// Sets xsi:type to xs:string.
    void SetXsiType() { WriteXsiType(types[41]); }
};

} // namespace ttaf1_dfxp::xs

#endif
