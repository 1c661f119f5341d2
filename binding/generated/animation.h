// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// Animation (TTML 1.0, 11.1).
// clang-format off
#ifndef XTTML_BINDING_GENERATED_ANIMATION_H
#define XTTML_BINDING_GENERATED_ANIMATION_H

#include "binding/generated/class_names.h"
#include "binding/member_accessors.h"
#include "binding/tables.h"
#include "binding/type_base.h"

#include <string>

namespace ttaf1_dfxp::tt {

/// The element tt:set.
class Cset_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cset_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cset_eltype(const Cset_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cset_eltype& operator=(const Cset_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to tt:set.eltype.
    void SetXsiType() { WriteXsiType(types[57]); }

    MemberAttribute<std::string, 249> id{*this};                   ///< xml:id
    MemberAttribute<std::string, 250, 0, 1> lang{*this};           ///< xml:lang
    MemberAttribute<std::string, 251, 0, 2> space{*this};          ///< xml:space
    MemberAttribute<std::string, 252> begin{*this};                ///< begin
    MemberAttribute<std::string, 253> dur{*this};                  ///< dur
    MemberAttribute<std::string, 254> end{*this};                  ///< end
    MemberAttribute<std::string, 255> backgroundColor{*this};      ///< tts:backgroundColor
    MemberAttribute<std::string, 256> color{*this};                ///< tts:color
    MemberAttribute<std::string, 257, 0, 2> direction{*this};      ///< tts:direction
    MemberAttribute<std::string, 258, 0, 2> display{*this};        ///< tts:display
    MemberAttribute<std::string, 259, 0, 3> displayAlign{*this};   ///< tts:displayAlign
    MemberAttribute<std::string, 260> dynamicFlow{*this};          ///< tts:dynamicFlow
    MemberAttribute<std::string, 261> extent{*this};               ///< tts:extent
    MemberAttribute<std::string, 262> fontFamily{*this};           ///< tts:fontFamily
    MemberAttribute<std::string, 263> fontSize{*this};             ///< tts:fontSize
    MemberAttribute<std::string, 264, 0, 4> fontStyle{*this};      ///< tts:fontStyle
    MemberAttribute<std::string, 265, 0, 2> fontWeight{*this};     ///< tts:fontWeight
    MemberAttribute<std::string, 266> lineHeight{*this};           ///< tts:lineHeight
    MemberAttribute<std::string, 267> opacity{*this};              ///< tts:opacity
    MemberAttribute<std::string, 268> origin{*this};               ///< tts:origin
    MemberAttribute<std::string, 269, 0, 3> overflow{*this};       ///< tts:overflow
    MemberAttribute<std::string, 270> padding{*this};              ///< tts:padding
    MemberAttribute<std::string, 271, 0, 2> showBackground{*this}; ///< tts:showBackground
    MemberAttribute<std::string, 272, 0, 5> textAlign{*this};      ///< tts:textAlign
    MemberAttribute<std::string, 273, 0, 7> textDecoration{*this}; ///< tts:textDecoration
    MemberAttribute<std::string, 274> textOutline{*this};          ///< tts:textOutline
    MemberAttribute<std::string, 275, 0, 3> unicodeBidi{*this};    ///< tts:unicodeBidi
    MemberAttribute<std::string, 276, 0, 2> visibility{*this};     ///< tts:visibility
    MemberAttribute<std::string, 277, 0, 2> wrapOption{*this};     ///< tts:wrapOption
    MemberAttribute<std::string, 278, 0, 7> writingMode{*this};    ///< tts:writingMode
    MemberAttribute<std::string, 279> zIndex{*this};               ///< tts:zIndex
    MemberAttribute<bool, 280> forcedDisplayMode{*this};           ///< cff:forcedDisplayMode
    MemberElement<ttm::Cagent_eltype, 281> agent{*this};           ///< ttm:agent, any number
    MemberElement<ttm::Ccopyright_eltype, 282> copyright{*this};   ///< ttm:copyright, any number
    MemberElement<ttm::Cdesc_eltype, 283> desc{*this};             ///< ttm:desc, any number
    MemberElement<ttm::Ctitle_eltype, 284> title{*this};           ///< ttm:title, any number
    MemberElement<Cmetadata_eltype, 285> metadata{*this};          ///< tt:metadata, any number
    MemberElement<CinformationType, 286> information{*this};       ///< smpte:information, any number
};

} // namespace ttaf1_dfxp::tt

#endif
