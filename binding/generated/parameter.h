// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// Profiles and their features and extensions (TTML 1.0, 6.1).
// clang-format off
#ifndef XTTML_BINDING_GENERATED_PARAMETER_H
#define XTTML_BINDING_GENERATED_PARAMETER_H

#include "binding/generated/class_names.h"
#include "binding/generated/datatype.h"
#include "binding/member_accessors.h"
#include "binding/tables.h"
#include "binding/type_base.h"

#include <string>

namespace ttaf1_dfxp::ttp {

/// The element ttp:extension.
class Cextension_eltype : public ttd::CextensionDesignatorType {
public:
    /// Views a node, which may be null.
    explicit Cextension_eltype(xercesc::DOMNode* wrapped) : ttd::CextensionDesignatorType(wrapped) {}
    /// Views the same node.
    Cextension_eltype(const Cextension_eltype& other) : ttd::CextensionDesignatorType(other) {}
    /// Views the other's node from now on.
    Cextension_eltype& operator=(const Cextension_eltype& other) {
        ttd::CextensionDesignatorType::operator=(other);
        return *this;
    }

    using ttd::CextensionDesignatorType::operator=;

    /// Sets xsi:type to ttp:extension.eltype.
    void SetXsiType() { WriteXsiType(types[139]); }

    MemberAttribute<std::string, 475> id{*this};          ///< xml:id
    MemberAttribute<std::string, 476, 0, 3> value{*this}; ///< value
};

/// The element ttp:extensions.
class Cextensions_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cextensions_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cextensions_eltype(const Cextensions_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cextensions_eltype& operator=(const Cextensions_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to ttp:extensions.eltype.
    void SetXsiType() { WriteXsiType(types[140]); }

    MemberAttribute<std::string, 477> id{*this};            ///< xml:id
    MemberAttribute<std::string, 478> base{*this};          ///< xml:base
    MemberElement<Cextension_eltype, 479> extension{*this}; ///< ttp:extension, any number
};

/// The element ttp:feature.
class Cfeature_eltype : public ttd::CfeatureDesignatorType {
public:
    /// Views a node, which may be null.
    explicit Cfeature_eltype(xercesc::DOMNode* wrapped) : ttd::CfeatureDesignatorType(wrapped) {}
    /// Views the same node.
    Cfeature_eltype(const Cfeature_eltype& other) : ttd::CfeatureDesignatorType(other) {}
    /// Views the other's node from now on.
    Cfeature_eltype& operator=(const Cfeature_eltype& other) {
        ttd::CfeatureDesignatorType::operator=(other);
        return *this;
    }

    using ttd::CfeatureDesignatorType::operator=;

    /// Sets xsi:type to ttp:feature.eltype.
    void SetXsiType() { WriteXsiType(types[141]); }

    MemberAttribute<std::string, 481> id{*this};          ///< xml:id
    MemberAttribute<std::string, 482, 0, 3> value{*this}; ///< value
};

/// The element ttp:features.
class Cfeatures_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cfeatures_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cfeatures_eltype(const Cfeatures_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cfeatures_eltype& operator=(const Cfeatures_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to ttp:features.eltype.
    void SetXsiType() { WriteXsiType(types[142]); }

    MemberAttribute<std::string, 483> id{*this};        ///< xml:id
    MemberAttribute<std::string, 484> base{*this};      ///< xml:base
    MemberElement<Cfeature_eltype, 485> feature{*this}; ///< ttp:feature, any number
};

/// The element ttp:profile.
class Cprofile_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cprofile_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cprofile_eltype(const Cprofile_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cprofile_eltype& operator=(const Cprofile_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to ttp:profile.eltype.
    void SetXsiType() { WriteXsiType(types[143]); }

    MemberAttribute<std::string, 486> id{*this};              ///< xml:id
    MemberAttribute<std::string, 487> use{*this};             ///< use
    MemberElement<Cfeatures_eltype, 488> features{*this};     ///< ttp:features, any number
    MemberElement<Cextensions_eltype, 489> extensions{*this}; ///< ttp:extensions, any number
};

} // namespace ttaf1_dfxp::ttp

#endif
