// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// SMPTE-TT: background images, data, images and information, with their attributes' types.
// The class of a simple type holds a node and nothing else.
// clang-format off
#ifndef XTTML_BINDING_GENERATED_SMPTE_H
#define XTTML_BINDING_GENERATED_SMPTE_H

#include "binding/generated/class_names.h"
#include "binding/generated/xml_schema.h"
#include "binding/member_accessors.h"
#include "binding/tables.h"
#include "binding/type_base.h"

#include <string>

namespace ttaf1_dfxp::smpte {

struct CbackgoundImageAlign : TypeBase { using TypeBase::TypeBase; };
struct CbackgoundImageType : TypeBase { using TypeBase::TypeBase; };

} // namespace ttaf1_dfxp::smpte

namespace ttaf1_dfxp::tt {

struct CencodingType : TypeBase { using TypeBase::TypeBase; };
struct CimagetypeType : TypeBase { using TypeBase::TypeBase; };
struct CencodingType2 : TypeBase { using TypeBase::TypeBase; };
struct CmodeType : TypeBase { using TypeBase::TypeBase; };
struct CencodingType3 : TypeBase { using TypeBase::TypeBase; };
struct CchannelType : TypeBase { using TypeBase::TypeBase; };
struct CfieldStartType : TypeBase { using TypeBase::TypeBase; };
struct CprogramNameType : TypeBase { using TypeBase::TypeBase; };
struct CprogramTypeType : TypeBase { using TypeBase::TypeBase; };
struct CcontentAdvisoryType : TypeBase { using TypeBase::TypeBase; };
struct CcaptionServiceType : TypeBase { using TypeBase::TypeBase; };
struct CcopyAndRedistributionControlType : TypeBase { using TypeBase::TypeBase; };
struct CcaptionLanguageType : TypeBase { using TypeBase::TypeBase; };

/// The element smpte:data.
class CdataType : public xs::CstringType {
public:
    /// Views a node, which may be null.
    explicit CdataType(xercesc::DOMNode* wrapped) : xs::CstringType(wrapped) {}
    /// Views the same node.
    CdataType(const CdataType& other) : xs::CstringType(other) {}
    /// Views the other's node from now on.
    CdataType& operator=(const CdataType& other) {
        xs::CstringType::operator=(other);
        return *this;
    }

    using xs::CstringType::operator=;

    /// Sets xsi:type to xs:string.
    void SetXsiType() { WriteXsiType(types[41]); }

    MemberAttribute<std::string, 424> id{*this};             ///< id
    MemberAttribute<std::string, 425, 0, 1> encoding{*this}; ///< encoding, required
    MemberAttribute<std::string, 426> datatype{*this};       ///< datatype, required
};

/// The element smpte:image.
class CimageType : public xs::CstringType {
public:
    /// Views a node, which may be null.
    explicit CimageType(xercesc::DOMNode* wrapped) : xs::CstringType(wrapped) {}
    /// Views the same node.
    CimageType(const CimageType& other) : xs::CstringType(other) {}
    /// Views the other's node from now on.
    CimageType& operator=(const CimageType& other) {
        xs::CstringType::operator=(other);
        return *this;
    }

    using xs::CstringType::operator=;

    /// Sets xsi:type to xs:string.
    void SetXsiType() { WriteXsiType(types[41]); }

    MemberAttribute<std::string, 428> id{*this};              ///< id
    MemberAttribute<std::string, 429, 0, 1> imagetype{*this}; ///< imagetype, required
    MemberAttribute<std::string, 430, 0, 1> encoding{*this};  ///< encoding, required
};

/// The element smpte:information.
class CinformationType : public xs::CstringType {
public:
    /// Views a node, which may be null.
    explicit CinformationType(xercesc::DOMNode* wrapped) : xs::CstringType(wrapped) {}
    /// Views the same node.
    CinformationType(const CinformationType& other) : xs::CstringType(other) {}
    /// Views the other's node from now on.
    CinformationType& operator=(const CinformationType& other) {
        xs::CstringType::operator=(other);
        return *this;
    }

    using xs::CstringType::operator=;

    /// Sets xsi:type to xs:string.
    void SetXsiType() { WriteXsiType(types[41]); }

    MemberAttribute<std::string, 432> id{*this};                           ///< id
    MemberAttribute<std::string, 433> origin{*this};                       ///< origin
    MemberAttribute<double, 434> threshold{*this};                         ///< threshold
    MemberAttribute<std::string, 435, 0, 2> mode{*this};                   ///< mode
    MemberAttribute<std::string, 436, 0, 1> encoding{*this};               ///< encoding
    MemberAttribute<std::string, 437, 0, 8> channel{*this};                ///< m608:channel
    MemberAttribute<std::string, 438, 0, 2> fieldStart{*this};             ///< m608:fieldStart
    MemberAttribute<std::string, 439> programName{*this};                  ///< m608:programName
    MemberAttribute<std::string, 440> programType{*this};                  ///< m608:programType
    MemberAttribute<std::string, 441> contentAdvisory{*this};              ///< m608:contentAdvisory
    MemberAttribute<std::string, 442, 0, 8> captionService{*this};         ///< m608:captionService
    MemberAttribute<std::string, 443> copyAndRedistributionControl{*this}; ///< m608:copyAndRedistributionControl
    MemberAttribute<std::string, 444> captionLanguage{*this};              ///< m608:captionLanguage
};

} // namespace ttaf1_dfxp::tt

#endif
