// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// The document, tt and head (TTML 1.0, 7.1).
// clang-format off
#ifndef XTTML_BINDING_GENERATED_DOCUMENT_H
#define XTTML_BINDING_GENERATED_DOCUMENT_H

#include "binding/generated/class_names.h"
#include "binding/member_accessors.h"
#include "binding/tables.h"
#include "binding/type_base.h"

#include <string>

namespace ttaf1_dfxp::tt {

/// The element tt:head.
class Chead_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Chead_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Chead_eltype(const Chead_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Chead_eltype& operator=(const Chead_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to tt:head.eltype.
    void SetXsiType() { WriteXsiType(types[52]); }

    MemberAttribute<std::string, 134> id{*this};                 ///< xml:id
    MemberAttribute<std::string, 135, 0, 1> lang{*this};         ///< xml:lang
    MemberAttribute<std::string, 136, 0, 2> space{*this};        ///< xml:space
    MemberElement<ttm::Cagent_eltype, 137> agent{*this};         ///< ttm:agent, any number
    MemberElement<ttm::Ccopyright_eltype, 138> copyright{*this}; ///< ttm:copyright, any number
    MemberElement<ttm::Cdesc_eltype, 139> desc{*this};           ///< ttm:desc, any number
    MemberElement<ttm::Ctitle_eltype, 140> title{*this};         ///< ttm:title, any number
    MemberElement<Cmetadata_eltype, 141> metadata{*this};        ///< tt:metadata, any number
    MemberElement<CinformationType, 142> information{*this};     ///< smpte:information, any number
    MemberElement<ttp::Cprofile_eltype, 143> profile{*this};     ///< ttp:profile, any number
    MemberElement<Cstyling_eltype, 144> styling{*this};          ///< tt:styling, at most one
    MemberElement<Clayout_eltype, 145> layout{*this};            ///< tt:layout, at most one
};

/// The element tt:tt.
class Ctt_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Ctt_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Ctt_eltype(const Ctt_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Ctt_eltype& operator=(const Ctt_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to tt:tt.eltype.
    void SetXsiType() { WriteXsiType(types[61]); }

    MemberAttribute<std::string, 379> id{*this};                  ///< xml:id
    MemberAttribute<std::string, 380, 0, 1> lang{*this};          ///< xml:lang, required
    MemberAttribute<std::string, 381, 0, 2> space{*this};         ///< xml:space
    MemberAttribute<std::string, 382> cellResolution{*this};      ///< ttp:cellResolution
    MemberAttribute<std::string, 383, 0, 3> clockMode{*this};     ///< ttp:clockMode
    MemberAttribute<std::string, 384, 0, 3> dropMode{*this};      ///< ttp:dropMode
    MemberAttribute<unsigned long long, 385> frameRate{*this};    ///< ttp:frameRate
    MemberAttribute<std::string, 386> frameRateMultiplier{*this}; ///< ttp:frameRateMultiplier
    MemberAttribute<std::string, 387, 0, 2> markerMode{*this};    ///< ttp:markerMode
    MemberAttribute<std::string, 388> profile{*this};             ///< ttp:profile
    MemberAttribute<std::string, 389> pixelAspectRatio{*this};    ///< ttp:pixelAspectRatio
    MemberAttribute<unsigned long long, 390> subFrameRate{*this}; ///< ttp:subFrameRate
    MemberAttribute<unsigned long long, 391> tickRate{*this};     ///< ttp:tickRate
    MemberAttribute<std::string, 392, 0, 3> timeBase{*this};      ///< ttp:timeBase
    MemberAttribute<std::string, 393> extent{*this};              ///< tts:extent
    MemberElement<Chead_eltype, 394> head{*this};                 ///< tt:head, at most one
    MemberElement<Cbody_eltype, 395> body{*this};                 ///< tt:body, at most one
};

/// What the schema says of the document: each element that may be its root.
class DocumentElements : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit DocumentElements(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    DocumentElements(const DocumentElements& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    DocumentElements& operator=(const DocumentElements& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to tt:ttaf1_dfxp.
    void SetXsiType() { WriteXsiType(types[62]); }

    MemberElement<CdataType, 396> data{*this};                     ///< smpte:data, at most one
    MemberElement<CimageType, 397> image{*this};                   ///< smpte:image, at most one
    MemberElement<CinformationType, 398> information{*this};       ///< smpte:information, at most one
    MemberElement<Cbody_eltype, 399> body{*this};                  ///< tt:body, at most one
    MemberElement<Cbr_eltype, 400> br{*this};                      ///< tt:br, at most one
    MemberElement<Cdiv_eltype, 401> div{*this};                    ///< tt:div, at most one
    MemberElement<Chead_eltype, 402> head{*this};                  ///< tt:head, at most one
    MemberElement<Clayout_eltype, 403> layout{*this};              ///< tt:layout, at most one
    MemberElement<Cmetadata_eltype, 404> metadata{*this};          ///< tt:metadata, at most one
    MemberElement<Cp_eltype, 405> p{*this};                        ///< tt:p, at most one
    MemberElement<Cregion_eltype, 406> region{*this};              ///< tt:region, at most one
    MemberElement<Cset_eltype, 407> set{*this};                    ///< tt:set, at most one
    MemberElement<Cspan_eltype, 408> span{*this};                  ///< tt:span, at most one
    MemberElement<Cstyle_eltype, 409> style{*this};                ///< tt:style, at most one
    MemberElement<Cstyling_eltype, 410> styling{*this};            ///< tt:styling, at most one
    MemberElement<Ctt_eltype, 411> tt{*this};                      ///< tt:tt, at most one
    MemberElement<ttm::Cactor_eltype, 412> actor{*this};           ///< ttm:actor, at most one
    MemberElement<ttm::Cagent_eltype, 413> agent{*this};           ///< ttm:agent, at most one
    MemberElement<ttm::Ccopyright_eltype, 414> copyright{*this};   ///< ttm:copyright, at most one
    MemberElement<ttm::Cdesc_eltype, 415> desc{*this};             ///< ttm:desc, at most one
    MemberElement<ttm::Cname_eltype, 416> name{*this};             ///< ttm:name, at most one
    MemberElement<ttm::Ctitle_eltype, 417> title{*this};           ///< ttm:title, at most one
    MemberElement<ttp::Cextension_eltype, 418> extension{*this};   ///< ttp:extension, at most one
    MemberElement<ttp::Cextensions_eltype, 419> extensions{*this}; ///< ttp:extensions, at most one
    MemberElement<ttp::Cfeature_eltype, 420> feature{*this};       ///< ttp:feature, at most one
    MemberElement<ttp::Cfeatures_eltype, 421> features{*this};     ///< ttp:features, at most one
    MemberElement<ttp::Cprofile_eltype, 422> profile{*this};       ///< ttp:profile, at most one
};

} // namespace ttaf1_dfxp::tt

#endif
