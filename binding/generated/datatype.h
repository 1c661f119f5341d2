// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// The simple types of TTML attributes.
// The class of a simple type holds a node and nothing else.
// clang-format off
#ifndef XTTML_BINDING_GENERATED_DATATYPE_H
#define XTTML_BINDING_GENERATED_DATATYPE_H

#include "binding/generated/class_names.h"
#include "binding/member_accessors.h"
#include "binding/tables.h"
#include "binding/type_base.h"

#include <string>

namespace ttaf1_dfxp::ttd {

struct Cagent : TypeBase { using TypeBase::TypeBase; };
struct Calpha : TypeBase { using TypeBase::TypeBase; };
struct CcellResolution : TypeBase { using TypeBase::TypeBase; };
struct CclockMode : TypeBase { using TypeBase::TypeBase; };
struct Ccolor : TypeBase { using TypeBase::TypeBase; };
struct Cdirection : TypeBase { using TypeBase::TypeBase; };
struct Cdisplay : TypeBase { using TypeBase::TypeBase; };
struct CdisplayAlign : TypeBase { using TypeBase::TypeBase; };
struct CdropMode : TypeBase { using TypeBase::TypeBase; };
struct CdynamicFlow : TypeBase { using TypeBase::TypeBase; };
struct CextensionDesignator : TypeBase { using TypeBase::TypeBase; };
struct CextensionValue : TypeBase { using TypeBase::TypeBase; };
struct Cextent : TypeBase { using TypeBase::TypeBase; };
struct CfeatureDesignator : TypeBase { using TypeBase::TypeBase; };
struct CfeatureValue : TypeBase { using TypeBase::TypeBase; };
struct CfontFamily : TypeBase { using TypeBase::TypeBase; };
struct CfontSize : TypeBase { using TypeBase::TypeBase; };
struct CfontStyle : TypeBase { using TypeBase::TypeBase; };
struct CfontWeight : TypeBase { using TypeBase::TypeBase; };
struct CframeRate : TypeBase { using TypeBase::TypeBase; };
struct CframeRateMultiplier : TypeBase { using TypeBase::TypeBase; };
struct ClineHeight : TypeBase { using TypeBase::TypeBase; };
struct CmarkerMode : TypeBase { using TypeBase::TypeBase; };
struct CmetadataAgentType : TypeBase { using TypeBase::TypeBase; };
struct CmetadataNameType : TypeBase { using TypeBase::TypeBase; };
struct CmetadataRoleBaseType : TypeBase { using TypeBase::TypeBase; };
struct Copacity : TypeBase { using TypeBase::TypeBase; };
struct Corigin : TypeBase { using TypeBase::TypeBase; };
struct Coverflow : TypeBase { using TypeBase::TypeBase; };
struct Cpadding : TypeBase { using TypeBase::TypeBase; };
struct CpixelAspectRatio : TypeBase { using TypeBase::TypeBase; };
struct Cprofile : TypeBase { using TypeBase::TypeBase; };
struct Crole : TypeBase { using TypeBase::TypeBase; };
struct CshowBackground : TypeBase { using TypeBase::TypeBase; };
struct CsubFrameRate : TypeBase { using TypeBase::TypeBase; };
struct CtextAlign : TypeBase { using TypeBase::TypeBase; };
struct CtextDecoration : TypeBase { using TypeBase::TypeBase; };
struct CtextOutline : TypeBase { using TypeBase::TypeBase; };
struct CtickRate : TypeBase { using TypeBase::TypeBase; };
struct CtimeBase : TypeBase { using TypeBase::TypeBase; };
struct CtimeContainer : TypeBase { using TypeBase::TypeBase; };
struct CtimeCoordinate : TypeBase { using TypeBase::TypeBase; };
struct CtimeDuration : TypeBase { using TypeBase::TypeBase; };
struct CunicodeBidi : TypeBase { using TypeBase::TypeBase; };
struct Cvisibility : TypeBase { using TypeBase::TypeBase; };
struct CwrapOption : TypeBase { using TypeBase::TypeBase; };
struct CwritingMode : TypeBase { using TypeBase::TypeBase; };
struct CzIndex : TypeBase { using TypeBase::TypeBase; };

/// An element whose content is one ttd:extensionDesignator.
class CextensionDesignatorType : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit CextensionDesignatorType(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    CextensionDesignatorType(const CextensionDesignatorType& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    CextensionDesignatorType& operator=(const CextensionDesignatorType& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// The text inside the element.
    operator std::string() const { return GetText(members[445]); }
    /// Replaces everything inside the element by a text.
    CextensionDesignatorType& operator=(const std::string& text) {
        SetText(members[445], text);
        return *this;
    }

    /// Sets xsi:type to ttd:extensionDesignator.
    void SetXsiType() { WriteXsiType(types[93]); }
};

/// An element whose content is one ttd:featureDesignator.
class CfeatureDesignatorType : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit CfeatureDesignatorType(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    CfeatureDesignatorType(const CfeatureDesignatorType& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    CfeatureDesignatorType& operator=(const CfeatureDesignatorType& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// The text inside the element.
    operator std::string() const { return GetText(members[446]); }
    /// Replaces everything inside the element by a text.
    CfeatureDesignatorType& operator=(const std::string& text) {
        SetText(members[446], text);
        return *this;
    }

    /// Sets xsi:type to ttd:featureDesignator.
    void SetXsiType() { WriteXsiType(types[96]); }
};

} // namespace ttaf1_dfxp::ttd

#endif
