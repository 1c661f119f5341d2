// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// Layout and regions (TTML 1.0, 9.1).
// clang-format off
#ifndef XTTML_BINDING_GENERATED_LAYOUT_H
#define XTTML_BINDING_GENERATED_LAYOUT_H

#include "binding/generated/class_names.h"
#include "binding/member_accessors.h"
#include "binding/tables.h"
#include "binding/type_base.h"

#include <string>

namespace ttaf1_dfxp::tt {

/// The element tt:layout.
class Clayout_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Clayout_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Clayout_eltype(const Clayout_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Clayout_eltype& operator=(const Clayout_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to tt:layout.eltype.
    void SetXsiType() { WriteXsiType(types[53]); }

    MemberAttribute<std::string, 146> id{*this};                 ///< xml:id
    MemberAttribute<std::string, 147, 0, 1> lang{*this};         ///< xml:lang
    MemberAttribute<std::string, 148, 0, 2> space{*this};        ///< xml:space
    MemberElement<ttm::Cagent_eltype, 149> agent{*this};         ///< ttm:agent, any number
    MemberElement<ttm::Ccopyright_eltype, 150> copyright{*this}; ///< ttm:copyright, any number
    MemberElement<ttm::Cdesc_eltype, 151> desc{*this};           ///< ttm:desc, any number
    MemberElement<ttm::Ctitle_eltype, 152> title{*this};         ///< ttm:title, any number
    MemberElement<Cmetadata_eltype, 153> metadata{*this};        ///< tt:metadata, any number
    MemberElement<CinformationType, 154> information{*this};     ///< smpte:information, any number
    MemberElement<Cregion_eltype, 155> region{*this};            ///< tt:region, any number
};

/// The element tt:region.
class Cregion_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cregion_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cregion_eltype(const Cregion_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cregion_eltype& operator=(const Cregion_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to tt:region.eltype.
    void SetXsiType() { WriteXsiType(types[56]); }

    MemberAttribute<std::string, 207> id{*this};                   ///< xml:id
    MemberAttribute<std::string, 208, 0, 1> lang{*this};           ///< xml:lang
    MemberAttribute<std::string, 209, 0, 2> space{*this};          ///< xml:space
    MemberAttribute<std::string, 210> style{*this};                ///< style
    MemberAttribute<std::string, 211> backgroundColor{*this};      ///< tts:backgroundColor
    MemberAttribute<std::string, 212> color{*this};                ///< tts:color
    MemberAttribute<std::string, 213, 0, 2> direction{*this};      ///< tts:direction
    MemberAttribute<std::string, 214, 0, 2> display{*this};        ///< tts:display
    MemberAttribute<std::string, 215, 0, 3> displayAlign{*this};   ///< tts:displayAlign
    MemberAttribute<std::string, 216> dynamicFlow{*this};          ///< tts:dynamicFlow
    MemberAttribute<std::string, 217> extent{*this};               ///< tts:extent
    MemberAttribute<std::string, 218> fontFamily{*this};           ///< tts:fontFamily
    MemberAttribute<std::string, 219> fontSize{*this};             ///< tts:fontSize
    MemberAttribute<std::string, 220, 0, 4> fontStyle{*this};      ///< tts:fontStyle
    MemberAttribute<std::string, 221, 0, 2> fontWeight{*this};     ///< tts:fontWeight
    MemberAttribute<std::string, 222> lineHeight{*this};           ///< tts:lineHeight
    MemberAttribute<std::string, 223> opacity{*this};              ///< tts:opacity
    MemberAttribute<std::string, 224> origin{*this};               ///< tts:origin
    MemberAttribute<std::string, 225, 0, 3> overflow{*this};       ///< tts:overflow
    MemberAttribute<std::string, 226> padding{*this};              ///< tts:padding
    MemberAttribute<std::string, 227, 0, 2> showBackground{*this}; ///< tts:showBackground
    MemberAttribute<std::string, 228, 0, 5> textAlign{*this};      ///< tts:textAlign
    MemberAttribute<std::string, 229, 0, 7> textDecoration{*this}; ///< tts:textDecoration
    MemberAttribute<std::string, 230> textOutline{*this};          ///< tts:textOutline
    MemberAttribute<std::string, 231, 0, 3> unicodeBidi{*this};    ///< tts:unicodeBidi
    MemberAttribute<std::string, 232, 0, 2> visibility{*this};     ///< tts:visibility
    MemberAttribute<std::string, 233, 0, 2> wrapOption{*this};     ///< tts:wrapOption
    MemberAttribute<std::string, 234, 0, 7> writingMode{*this};    ///< tts:writingMode
    MemberAttribute<std::string, 235> zIndex{*this};               ///< tts:zIndex
    MemberAttribute<std::string, 236> begin{*this};                ///< begin
    MemberAttribute<std::string, 237> dur{*this};                  ///< dur
    MemberAttribute<std::string, 238> end{*this};                  ///< end
    MemberAttribute<std::string, 239, 0, 2> timeContainer{*this};  ///< timeContainer
    MemberAttribute<bool, 240> forcedDisplayMode{*this};           ///< cff:forcedDisplayMode
    MemberElement<ttm::Cagent_eltype, 241> agent{*this};           ///< ttm:agent, any number
    MemberElement<ttm::Ccopyright_eltype, 242> copyright{*this};   ///< ttm:copyright, any number
    MemberElement<ttm::Cdesc_eltype, 243> desc{*this};             ///< ttm:desc, any number
    MemberElement<ttm::Ctitle_eltype, 244> title{*this};           ///< ttm:title, any number
    MemberElement<Cmetadata_eltype, 245> metadata{*this};          ///< tt:metadata, any number
    MemberElement<CinformationType, 246> information{*this};       ///< smpte:information, any number
    MemberElement<Cset_eltype, 247> set{*this};                    ///< tt:set, any number
    MemberElement<Cstyle_eltype, 248> style2{*this};               ///< tt:style, any number
};

} // namespace ttaf1_dfxp::tt

#endif
