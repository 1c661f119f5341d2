// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// Styling and styles (TTML 1.0, 8.1).
// clang-format off
#ifndef XTTML_BINDING_GENERATED_STYLING_H
#define XTTML_BINDING_GENERATED_STYLING_H

#include "binding/generated/class_names.h"
#include "binding/member_accessors.h"
#include "binding/tables.h"
#include "binding/type_base.h"

#include <string>

namespace ttaf1_dfxp::tt {

/// The element tt:style.
class Cstyle_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cstyle_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cstyle_eltype(const Cstyle_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cstyle_eltype& operator=(const Cstyle_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to tt:style.eltype.
    void SetXsiType() { WriteXsiType(types[59]); }

    MemberAttribute<std::string, 334> id{*this};                   ///< xml:id
    MemberAttribute<std::string, 335, 0, 1> lang{*this};           ///< xml:lang
    MemberAttribute<std::string, 336, 0, 2> space{*this};          ///< xml:space
    MemberAttribute<std::string, 337> style{*this};                ///< style
    MemberAttribute<std::string, 338> backgroundColor{*this};      ///< tts:backgroundColor
    MemberAttribute<std::string, 339> color{*this};                ///< tts:color
    MemberAttribute<std::string, 340, 0, 2> direction{*this};      ///< tts:direction
    MemberAttribute<std::string, 341, 0, 2> display{*this};        ///< tts:display
    MemberAttribute<std::string, 342, 0, 3> displayAlign{*this};   ///< tts:displayAlign
    MemberAttribute<std::string, 343> dynamicFlow{*this};          ///< tts:dynamicFlow
    MemberAttribute<std::string, 344> extent{*this};               ///< tts:extent
    MemberAttribute<std::string, 345> fontFamily{*this};           ///< tts:fontFamily
    MemberAttribute<std::string, 346> fontSize{*this};             ///< tts:fontSize
    MemberAttribute<std::string, 347, 0, 4> fontStyle{*this};      ///< tts:fontStyle
    MemberAttribute<std::string, 348, 0, 2> fontWeight{*this};     ///< tts:fontWeight
    MemberAttribute<std::string, 349> lineHeight{*this};           ///< tts:lineHeight
    MemberAttribute<std::string, 350> opacity{*this};              ///< tts:opacity
    MemberAttribute<std::string, 351> origin{*this};               ///< tts:origin
    MemberAttribute<std::string, 352, 0, 3> overflow{*this};       ///< tts:overflow
    MemberAttribute<std::string, 353> padding{*this};              ///< tts:padding
    MemberAttribute<std::string, 354, 0, 2> showBackground{*this}; ///< tts:showBackground
    MemberAttribute<std::string, 355, 0, 5> textAlign{*this};      ///< tts:textAlign
    MemberAttribute<std::string, 356, 0, 7> textDecoration{*this}; ///< tts:textDecoration
    MemberAttribute<std::string, 357> textOutline{*this};          ///< tts:textOutline
    MemberAttribute<std::string, 358, 0, 3> unicodeBidi{*this};    ///< tts:unicodeBidi
    MemberAttribute<std::string, 359, 0, 2> visibility{*this};     ///< tts:visibility
    MemberAttribute<std::string, 360, 0, 2> wrapOption{*this};     ///< tts:wrapOption
    MemberAttribute<std::string, 361, 0, 7> writingMode{*this};    ///< tts:writingMode
    MemberAttribute<std::string, 362> zIndex{*this};               ///< tts:zIndex
    MemberElement<ttm::Cagent_eltype, 363> agent{*this};           ///< ttm:agent, any number
    MemberElement<ttm::Ccopyright_eltype, 364> copyright{*this};   ///< ttm:copyright, any number
    MemberElement<ttm::Cdesc_eltype, 365> desc{*this};             ///< ttm:desc, any number
    MemberElement<ttm::Ctitle_eltype, 366> title{*this};           ///< ttm:title, any number
    MemberElement<Cmetadata_eltype, 367> metadata{*this};          ///< tt:metadata, any number
    MemberElement<CinformationType, 368> information{*this};       ///< smpte:information, any number
};

/// The element tt:styling.
class Cstyling_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cstyling_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cstyling_eltype(const Cstyling_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cstyling_eltype& operator=(const Cstyling_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to tt:styling.eltype.
    void SetXsiType() { WriteXsiType(types[60]); }

    MemberAttribute<std::string, 369> id{*this};                 ///< xml:id
    MemberAttribute<std::string, 370, 0, 1> lang{*this};         ///< xml:lang
    MemberAttribute<std::string, 371, 0, 2> space{*this};        ///< xml:space
    MemberElement<ttm::Cagent_eltype, 372> agent{*this};         ///< ttm:agent, any number
    MemberElement<ttm::Ccopyright_eltype, 373> copyright{*this}; ///< ttm:copyright, any number
    MemberElement<ttm::Cdesc_eltype, 374> desc{*this};           ///< ttm:desc, any number
    MemberElement<ttm::Ctitle_eltype, 375> title{*this};         ///< ttm:title, any number
    MemberElement<Cmetadata_eltype, 376> metadata{*this};        ///< tt:metadata, any number
    MemberElement<CinformationType, 377> information{*this};     ///< smpte:information, any number
    MemberElement<Cstyle_eltype, 378> style{*this};              ///< tt:style, any number
};

} // namespace ttaf1_dfxp::tt

#endif
