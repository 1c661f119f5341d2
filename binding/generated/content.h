// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// Content: body, div, p, span and br (TTML 1.0, 7.1).
// clang-format off
#ifndef XTTML_BINDING_GENERATED_CONTENT_H
#define XTTML_BINDING_GENERATED_CONTENT_H

#include "binding/generated/class_names.h"
#include "binding/member_accessors.h"
#include "binding/tables.h"
#include "binding/type_base.h"

#include <string>

namespace ttaf1_dfxp::tt {

/// The element tt:body.
class Cbody_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cbody_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cbody_eltype(const Cbody_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cbody_eltype& operator=(const Cbody_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to tt:body.eltype.
    void SetXsiType() { WriteXsiType(types[49]); }

    MemberAttribute<std::string, 2> id{*this};                    ///< xml:id
    MemberAttribute<std::string, 3, 0, 1> lang{*this};            ///< xml:lang
    MemberAttribute<std::string, 4, 0, 2> space{*this};           ///< xml:space
    MemberAttribute<std::string, 5> begin{*this};                 ///< begin
    MemberAttribute<std::string, 6> dur{*this};                   ///< dur
    MemberAttribute<std::string, 7> end{*this};                   ///< end
    MemberAttribute<std::string, 8, 0, 2> timeContainer{*this};   ///< timeContainer
    MemberAttribute<std::string, 9> region{*this};                ///< region
    MemberAttribute<std::string, 10> style{*this};                ///< style
    MemberAttribute<std::string, 11> backgroundColor{*this};      ///< tts:backgroundColor
    MemberAttribute<std::string, 12> color{*this};                ///< tts:color
    MemberAttribute<std::string, 13, 0, 2> direction{*this};      ///< tts:direction
    MemberAttribute<std::string, 14, 0, 2> display{*this};        ///< tts:display
    MemberAttribute<std::string, 15, 0, 3> displayAlign{*this};   ///< tts:displayAlign
    MemberAttribute<std::string, 16> dynamicFlow{*this};          ///< tts:dynamicFlow
    MemberAttribute<std::string, 17> extent{*this};               ///< tts:extent
    MemberAttribute<std::string, 18> fontFamily{*this};           ///< tts:fontFamily
    MemberAttribute<std::string, 19> fontSize{*this};             ///< tts:fontSize
    MemberAttribute<std::string, 20, 0, 4> fontStyle{*this};      ///< tts:fontStyle
    MemberAttribute<std::string, 21, 0, 2> fontWeight{*this};     ///< tts:fontWeight
    MemberAttribute<std::string, 22> lineHeight{*this};           ///< tts:lineHeight
    MemberAttribute<std::string, 23> opacity{*this};              ///< tts:opacity
    MemberAttribute<std::string, 24> origin{*this};               ///< tts:origin
    MemberAttribute<std::string, 25, 0, 3> overflow{*this};       ///< tts:overflow
    MemberAttribute<std::string, 26> padding{*this};              ///< tts:padding
    MemberAttribute<std::string, 27, 0, 2> showBackground{*this}; ///< tts:showBackground
    MemberAttribute<std::string, 28, 0, 5> textAlign{*this};      ///< tts:textAlign
    MemberAttribute<std::string, 29, 0, 7> textDecoration{*this}; ///< tts:textDecoration
    MemberAttribute<std::string, 30> textOutline{*this};          ///< tts:textOutline
    MemberAttribute<std::string, 31, 0, 3> unicodeBidi{*this};    ///< tts:unicodeBidi
    MemberAttribute<std::string, 32, 0, 2> visibility{*this};     ///< tts:visibility
    MemberAttribute<std::string, 33, 0, 2> wrapOption{*this};     ///< tts:wrapOption
    MemberAttribute<std::string, 34, 0, 7> writingMode{*this};    ///< tts:writingMode
    MemberAttribute<std::string, 35> zIndex{*this};               ///< tts:zIndex
    MemberAttribute<std::string, 36> agent{*this};                ///< ttm:agent
    MemberAttribute<std::string, 37> role{*this};                 ///< ttm:role
    MemberAttribute<bool, 38> forcedDisplayMode{*this};           ///< cff:forcedDisplayMode
    MemberElement<ttm::Cagent_eltype, 39> agent2{*this};          ///< ttm:agent, any number
    MemberElement<ttm::Ccopyright_eltype, 40> copyright{*this};   ///< ttm:copyright, any number
    MemberElement<ttm::Cdesc_eltype, 41> desc{*this};             ///< ttm:desc, any number
    MemberElement<ttm::Ctitle_eltype, 42> title{*this};           ///< ttm:title, any number
    MemberElement<Cmetadata_eltype, 43> metadata{*this};          ///< tt:metadata, any number
    MemberElement<CinformationType, 44> information{*this};       ///< smpte:information, any number
    MemberElement<Cset_eltype, 45> set{*this};                    ///< tt:set, any number
    MemberElement<Cdiv_eltype, 46> div{*this};                    ///< tt:div, any number
};

/// The element tt:br.
class Cbr_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cbr_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cbr_eltype(const Cbr_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cbr_eltype& operator=(const Cbr_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to tt:br.eltype.
    void SetXsiType() { WriteXsiType(types[50]); }

    MemberAttribute<std::string, 47> id{*this};                   ///< xml:id
    MemberAttribute<std::string, 48, 0, 1> lang{*this};           ///< xml:lang
    MemberAttribute<std::string, 49, 0, 2> space{*this};          ///< xml:space
    MemberAttribute<std::string, 50> style{*this};                ///< style
    MemberAttribute<std::string, 51> backgroundColor{*this};      ///< tts:backgroundColor
    MemberAttribute<std::string, 52> color{*this};                ///< tts:color
    MemberAttribute<std::string, 53, 0, 2> direction{*this};      ///< tts:direction
    MemberAttribute<std::string, 54, 0, 2> display{*this};        ///< tts:display
    MemberAttribute<std::string, 55, 0, 3> displayAlign{*this};   ///< tts:displayAlign
    MemberAttribute<std::string, 56> dynamicFlow{*this};          ///< tts:dynamicFlow
    MemberAttribute<std::string, 57> extent{*this};               ///< tts:extent
    MemberAttribute<std::string, 58> fontFamily{*this};           ///< tts:fontFamily
    MemberAttribute<std::string, 59> fontSize{*this};             ///< tts:fontSize
    MemberAttribute<std::string, 60, 0, 4> fontStyle{*this};      ///< tts:fontStyle
    MemberAttribute<std::string, 61, 0, 2> fontWeight{*this};     ///< tts:fontWeight
    MemberAttribute<std::string, 62> lineHeight{*this};           ///< tts:lineHeight
    MemberAttribute<std::string, 63> opacity{*this};              ///< tts:opacity
    MemberAttribute<std::string, 64> origin{*this};               ///< tts:origin
    MemberAttribute<std::string, 65, 0, 3> overflow{*this};       ///< tts:overflow
    MemberAttribute<std::string, 66> padding{*this};              ///< tts:padding
    MemberAttribute<std::string, 67, 0, 2> showBackground{*this}; ///< tts:showBackground
    MemberAttribute<std::string, 68, 0, 5> textAlign{*this};      ///< tts:textAlign
    MemberAttribute<std::string, 69, 0, 7> textDecoration{*this}; ///< tts:textDecoration
    MemberAttribute<std::string, 70> textOutline{*this};          ///< tts:textOutline
    MemberAttribute<std::string, 71, 0, 3> unicodeBidi{*this};    ///< tts:unicodeBidi
    MemberAttribute<std::string, 72, 0, 2> visibility{*this};     ///< tts:visibility
    MemberAttribute<std::string, 73, 0, 2> wrapOption{*this};     ///< tts:wrapOption
    MemberAttribute<std::string, 74, 0, 7> writingMode{*this};    ///< tts:writingMode
    MemberAttribute<std::string, 75> zIndex{*this};               ///< tts:zIndex
    MemberAttribute<std::string, 76> agent{*this};                ///< ttm:agent
    MemberAttribute<std::string, 77> role{*this};                 ///< ttm:role
    MemberElement<ttm::Cagent_eltype, 78> agent2{*this};          ///< ttm:agent, any number
    MemberElement<ttm::Ccopyright_eltype, 79> copyright{*this};   ///< ttm:copyright, any number
    MemberElement<ttm::Cdesc_eltype, 80> desc{*this};             ///< ttm:desc, any number
    MemberElement<ttm::Ctitle_eltype, 81> title{*this};           ///< ttm:title, any number
    MemberElement<Cmetadata_eltype, 82> metadata{*this};          ///< tt:metadata, any number
    MemberElement<CinformationType, 83> information{*this};       ///< smpte:information, any number
    MemberElement<Cset_eltype, 84> set{*this};                    ///< tt:set, any number
};

/// The element tt:div.
class Cdiv_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cdiv_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cdiv_eltype(const Cdiv_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cdiv_eltype& operator=(const Cdiv_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to tt:div.eltype.
    void SetXsiType() { WriteXsiType(types[51]); }

    MemberAttribute<std::string, 85> id{*this};                               ///< xml:id
    MemberAttribute<std::string, 86, 0, 1> lang{*this};                       ///< xml:lang
    MemberAttribute<std::string, 87, 0, 2> space{*this};                      ///< xml:space
    MemberAttribute<std::string, 88> begin{*this};                            ///< begin
    MemberAttribute<std::string, 89> dur{*this};                              ///< dur
    MemberAttribute<std::string, 90> end{*this};                              ///< end
    MemberAttribute<std::string, 91, 0, 2> timeContainer{*this};              ///< timeContainer
    MemberAttribute<std::string, 92> region{*this};                           ///< region
    MemberAttribute<std::string, 93> style{*this};                            ///< style
    MemberAttribute<std::string, 94> backgroundColor{*this};                  ///< tts:backgroundColor
    MemberAttribute<std::string, 95> color{*this};                            ///< tts:color
    MemberAttribute<std::string, 96, 0, 2> direction{*this};                  ///< tts:direction
    MemberAttribute<std::string, 97, 0, 2> display{*this};                    ///< tts:display
    MemberAttribute<std::string, 98, 0, 3> displayAlign{*this};               ///< tts:displayAlign
    MemberAttribute<std::string, 99> dynamicFlow{*this};                      ///< tts:dynamicFlow
    MemberAttribute<std::string, 100> extent{*this};                          ///< tts:extent
    MemberAttribute<std::string, 101> fontFamily{*this};                      ///< tts:fontFamily
    MemberAttribute<std::string, 102> fontSize{*this};                        ///< tts:fontSize
    MemberAttribute<std::string, 103, 0, 4> fontStyle{*this};                 ///< tts:fontStyle
    MemberAttribute<std::string, 104, 0, 2> fontWeight{*this};                ///< tts:fontWeight
    MemberAttribute<std::string, 105> lineHeight{*this};                      ///< tts:lineHeight
    MemberAttribute<std::string, 106> opacity{*this};                         ///< tts:opacity
    MemberAttribute<std::string, 107> origin{*this};                          ///< tts:origin
    MemberAttribute<std::string, 108, 0, 3> overflow{*this};                  ///< tts:overflow
    MemberAttribute<std::string, 109> padding{*this};                         ///< tts:padding
    MemberAttribute<std::string, 110, 0, 2> showBackground{*this};            ///< tts:showBackground
    MemberAttribute<std::string, 111, 0, 5> textAlign{*this};                 ///< tts:textAlign
    MemberAttribute<std::string, 112, 0, 7> textDecoration{*this};            ///< tts:textDecoration
    MemberAttribute<std::string, 113> textOutline{*this};                     ///< tts:textOutline
    MemberAttribute<std::string, 114, 0, 3> unicodeBidi{*this};               ///< tts:unicodeBidi
    MemberAttribute<std::string, 115, 0, 2> visibility{*this};                ///< tts:visibility
    MemberAttribute<std::string, 116, 0, 2> wrapOption{*this};                ///< tts:wrapOption
    MemberAttribute<std::string, 117, 0, 7> writingMode{*this};               ///< tts:writingMode
    MemberAttribute<std::string, 118> zIndex{*this};                          ///< tts:zIndex
    MemberAttribute<std::string, 119> agent{*this};                           ///< ttm:agent
    MemberAttribute<std::string, 120> role{*this};                            ///< ttm:role
    MemberAttribute<bool, 121> forcedDisplayMode{*this};                      ///< cff:forcedDisplayMode
    MemberAttribute<std::string, 122> backgroundImage{*this};                 ///< smpte:backgroundImage
    MemberAttribute<std::string, 123, 0, 6> backgroundImageHorizontal{*this}; ///< smpte:backgroundImageHorizontal
    MemberAttribute<std::string, 124, 0, 6> backgroundImageVertical{*this};   ///< smpte:backgroundImageVertical
    MemberElement<ttm::Cagent_eltype, 125> agent2{*this};                     ///< ttm:agent, any number
    MemberElement<ttm::Ccopyright_eltype, 126> copyright{*this};              ///< ttm:copyright, any number
    MemberElement<ttm::Cdesc_eltype, 127> desc{*this};                        ///< ttm:desc, any number
    MemberElement<ttm::Ctitle_eltype, 128> title{*this};                      ///< ttm:title, any number
    MemberElement<Cmetadata_eltype, 129> metadata{*this};                     ///< tt:metadata, any number
    MemberElement<CinformationType, 130> information{*this};                  ///< smpte:information, any number
    MemberElement<Cset_eltype, 131> set{*this};                               ///< tt:set, any number
    MemberElement<Cp_eltype, 132> p{*this};                                   ///< tt:p, any number
    MemberElement<Cdiv_eltype, 133> div{*this};                               ///< tt:div, any number
};

/// The element tt:p.
class Cp_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cp_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cp_eltype(const Cp_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cp_eltype& operator=(const Cp_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// The text inside the element.
    operator std::string() const { return GetText(members[160]); }
    /// Replaces everything inside the element by a text.
    Cp_eltype& operator=(const std::string& text) {
        SetText(members[160], text);
        return *this;
    }

    /// Sets xsi:type to tt:p.eltype.
    void SetXsiType() { WriteXsiType(types[55]); }

    MemberAttribute<std::string, 161> id{*this};                   ///< xml:id
    MemberAttribute<std::string, 162, 0, 1> lang{*this};           ///< xml:lang
    MemberAttribute<std::string, 163, 0, 2> space{*this};          ///< xml:space
    MemberAttribute<std::string, 164> begin{*this};                ///< begin
    MemberAttribute<std::string, 165> dur{*this};                  ///< dur
    MemberAttribute<std::string, 166> end{*this};                  ///< end
    MemberAttribute<std::string, 167, 0, 2> timeContainer{*this};  ///< timeContainer
    MemberAttribute<std::string, 168> region{*this};               ///< region
    MemberAttribute<std::string, 169> style{*this};                ///< style
    MemberAttribute<std::string, 170> backgroundColor{*this};      ///< tts:backgroundColor
    MemberAttribute<std::string, 171> color{*this};                ///< tts:color
    MemberAttribute<std::string, 172, 0, 2> direction{*this};      ///< tts:direction
    MemberAttribute<std::string, 173, 0, 2> display{*this};        ///< tts:display
    MemberAttribute<std::string, 174, 0, 3> displayAlign{*this};   ///< tts:displayAlign
    MemberAttribute<std::string, 175> dynamicFlow{*this};          ///< tts:dynamicFlow
    MemberAttribute<std::string, 176> extent{*this};               ///< tts:extent
    MemberAttribute<std::string, 177> fontFamily{*this};           ///< tts:fontFamily
    MemberAttribute<std::string, 178> fontSize{*this};             ///< tts:fontSize
    MemberAttribute<std::string, 179, 0, 4> fontStyle{*this};      ///< tts:fontStyle
    MemberAttribute<std::string, 180, 0, 2> fontWeight{*this};     ///< tts:fontWeight
    MemberAttribute<std::string, 181> lineHeight{*this};           ///< tts:lineHeight
    MemberAttribute<std::string, 182> opacity{*this};              ///< tts:opacity
    MemberAttribute<std::string, 183> origin{*this};               ///< tts:origin
    MemberAttribute<std::string, 184, 0, 3> overflow{*this};       ///< tts:overflow
    MemberAttribute<std::string, 185> padding{*this};              ///< tts:padding
    MemberAttribute<std::string, 186, 0, 2> showBackground{*this}; ///< tts:showBackground
    MemberAttribute<std::string, 187, 0, 5> textAlign{*this};      ///< tts:textAlign
    MemberAttribute<std::string, 188, 0, 7> textDecoration{*this}; ///< tts:textDecoration
    MemberAttribute<std::string, 189> textOutline{*this};          ///< tts:textOutline
    MemberAttribute<std::string, 190, 0, 3> unicodeBidi{*this};    ///< tts:unicodeBidi
    MemberAttribute<std::string, 191, 0, 2> visibility{*this};     ///< tts:visibility
    MemberAttribute<std::string, 192, 0, 2> wrapOption{*this};     ///< tts:wrapOption
    MemberAttribute<std::string, 193, 0, 7> writingMode{*this};    ///< tts:writingMode
    MemberAttribute<std::string, 194> zIndex{*this};               ///< tts:zIndex
    MemberAttribute<std::string, 195> agent{*this};                ///< ttm:agent
    MemberAttribute<std::string, 196> role{*this};                 ///< ttm:role
    MemberAttribute<bool, 197> forcedDisplayMode{*this};           ///< cff:forcedDisplayMode
    MemberElement<ttm::Cagent_eltype, 198> agent2{*this};          ///< ttm:agent, any number
    MemberElement<ttm::Ccopyright_eltype, 199> copyright{*this};   ///< ttm:copyright, any number
    MemberElement<ttm::Cdesc_eltype, 200> desc{*this};             ///< ttm:desc, any number
    MemberElement<ttm::Ctitle_eltype, 201> title{*this};           ///< ttm:title, any number
    MemberElement<Cmetadata_eltype, 202> metadata{*this};          ///< tt:metadata, any number
    MemberElement<CinformationType, 203> information{*this};       ///< smpte:information, any number
    MemberElement<Cset_eltype, 204> set{*this};                    ///< tt:set, any number
    MemberElement<Cbr_eltype, 205> br{*this};                      ///< tt:br, any number
    MemberElement<Cspan_eltype, 206> span{*this};                  ///< tt:span, any number
};

/// The element tt:span.
class Cspan_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cspan_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cspan_eltype(const Cspan_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cspan_eltype& operator=(const Cspan_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// The text inside the element.
    operator std::string() const { return GetText(members[287]); }
    /// Replaces everything inside the element by a text.
    Cspan_eltype& operator=(const std::string& text) {
        SetText(members[287], text);
        return *this;
    }

    /// Sets xsi:type to tt:span.eltype.
    void SetXsiType() { WriteXsiType(types[58]); }

    MemberAttribute<std::string, 288> id{*this};                   ///< xml:id
    MemberAttribute<std::string, 289, 0, 1> lang{*this};           ///< xml:lang
    MemberAttribute<std::string, 290, 0, 2> space{*this};          ///< xml:space
    MemberAttribute<std::string, 291> begin{*this};                ///< begin
    MemberAttribute<std::string, 292> dur{*this};                  ///< dur
    MemberAttribute<std::string, 293> end{*this};                  ///< end
    MemberAttribute<std::string, 294, 0, 2> timeContainer{*this};  ///< timeContainer
    MemberAttribute<std::string, 295> region{*this};               ///< region
    MemberAttribute<std::string, 296> style{*this};                ///< style
    MemberAttribute<std::string, 297> backgroundColor{*this};      ///< tts:backgroundColor
    MemberAttribute<std::string, 298> color{*this};                ///< tts:color
    MemberAttribute<std::string, 299, 0, 2> direction{*this};      ///< tts:direction
    MemberAttribute<std::string, 300, 0, 2> display{*this};        ///< tts:display
    MemberAttribute<std::string, 301, 0, 3> displayAlign{*this};   ///< tts:displayAlign
    MemberAttribute<std::string, 302> dynamicFlow{*this};          ///< tts:dynamicFlow
    MemberAttribute<std::string, 303> extent{*this};               ///< tts:extent
    MemberAttribute<std::string, 304> fontFamily{*this};           ///< tts:fontFamily
    MemberAttribute<std::string, 305> fontSize{*this};             ///< tts:fontSize
    MemberAttribute<std::string, 306, 0, 4> fontStyle{*this};      ///< tts:fontStyle
    MemberAttribute<std::string, 307, 0, 2> fontWeight{*this};     ///< tts:fontWeight
    MemberAttribute<std::string, 308> lineHeight{*this};           ///< tts:lineHeight
    MemberAttribute<std::string, 309> opacity{*this};              ///< tts:opacity
    MemberAttribute<std::string, 310> origin{*this};               ///< tts:origin
    MemberAttribute<std::string, 311, 0, 3> overflow{*this};       ///< tts:overflow
    MemberAttribute<std::string, 312> padding{*this};              ///< tts:padding
    MemberAttribute<std::string, 313, 0, 2> showBackground{*this}; ///< tts:showBackground
    MemberAttribute<std::string, 314, 0, 5> textAlign{*this};      ///< tts:textAlign
    MemberAttribute<std::string, 315, 0, 7> textDecoration{*this}; ///< tts:textDecoration
    MemberAttribute<std::string, 316> textOutline{*this};          ///< tts:textOutline
    MemberAttribute<std::string, 317, 0, 3> unicodeBidi{*this};    ///< tts:unicodeBidi
    MemberAttribute<std::string, 318, 0, 2> visibility{*this};     ///< tts:visibility
    MemberAttribute<std::string, 319, 0, 2> wrapOption{*this};     ///< tts:wrapOption
    MemberAttribute<std::string, 320, 0, 7> writingMode{*this};    ///< tts:writingMode
    MemberAttribute<std::string, 321> zIndex{*this};               ///< tts:zIndex
    MemberAttribute<std::string, 322> agent{*this};                ///< ttm:agent
    MemberAttribute<std::string, 323> role{*this};                 ///< ttm:role
    MemberAttribute<bool, 324> forcedDisplayMode{*this};           ///< cff:forcedDisplayMode
    MemberElement<ttm::Cagent_eltype, 325> agent2{*this};          ///< ttm:agent, any number
    MemberElement<ttm::Ccopyright_eltype, 326> copyright{*this};   ///< ttm:copyright, any number
    MemberElement<ttm::Cdesc_eltype, 327> desc{*this};             ///< ttm:desc, any number
    MemberElement<ttm::Ctitle_eltype, 328> title{*this};           ///< ttm:title, any number
    MemberElement<Cmetadata_eltype, 329> metadata{*this};          ///< tt:metadata, any number
    MemberElement<CinformationType, 330> information{*this};       ///< smpte:information, any number
    MemberElement<Cset_eltype, 331> set{*this};                    ///< tt:set, any number
    MemberElement<Cbr_eltype, 332> br{*this};                      ///< tt:br, any number
    MemberElement<Cspan_eltype, 333> span{*this};                  ///< tt:span, any number
};

} // namespace ttaf1_dfxp::tt

#endif
