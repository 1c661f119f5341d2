// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// Metadata (TTML 1.0, 12).
// clang-format off
#ifndef XTTML_BINDING_GENERATED_METADATA_H
#define XTTML_BINDING_GENERATED_METADATA_H

#include "binding/generated/class_names.h"
#include "binding/member_accessors.h"
#include "binding/tables.h"
#include "binding/type_base.h"

#include <string>

namespace ttaf1_dfxp::tt {

/// The element tt:metadata.
class Cmetadata_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cmetadata_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cmetadata_eltype(const Cmetadata_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cmetadata_eltype& operator=(const Cmetadata_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// The text inside the element.
    operator std::string() const { return GetText(members[156]); }
    /// Replaces everything inside the element by a text.
    Cmetadata_eltype& operator=(const std::string& text) {
        SetText(members[156], text);
        return *this;
    }

    /// Sets xsi:type to tt:metadata.eltype.
    void SetXsiType() { WriteXsiType(types[54]); }

    MemberAttribute<std::string, 157> id{*this};          ///< xml:id
    MemberAttribute<std::string, 158, 0, 1> lang{*this};  ///< xml:lang
    MemberAttribute<std::string, 159, 0, 2> space{*this}; ///< xml:space
};

} // namespace ttaf1_dfxp::tt

namespace ttaf1_dfxp::ttm {

/// The element ttm:actor.
class Cactor_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cactor_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cactor_eltype(const Cactor_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cactor_eltype& operator=(const Cactor_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to ttm:actor.eltype.
    void SetXsiType() { WriteXsiType(types[133]); }

    MemberAttribute<std::string, 447> id{*this};          ///< xml:id
    MemberAttribute<std::string, 448, 0, 1> lang{*this};  ///< xml:lang
    MemberAttribute<std::string, 449, 0, 2> space{*this}; ///< xml:space
    MemberAttribute<std::string, 450> agent{*this};       ///< agent
};

/// The element ttm:agent.
class Cagent_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cagent_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cagent_eltype(const Cagent_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cagent_eltype& operator=(const Cagent_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// Sets xsi:type to ttm:agent.eltype.
    void SetXsiType() { WriteXsiType(types[134]); }

    MemberAttribute<std::string, 451> id{*this};          ///< xml:id
    MemberAttribute<std::string, 452, 0, 1> lang{*this};  ///< xml:lang
    MemberAttribute<std::string, 453, 0, 2> space{*this}; ///< xml:space
    MemberAttribute<std::string, 454, 0, 5> type{*this};  ///< type, required
    MemberElement<Cname_eltype, 455> name{*this};         ///< ttm:name, any number
    MemberElement<Cactor_eltype, 456> actor{*this};       ///< ttm:actor, at most one
};

/// The element ttm:copyright.
class Ccopyright_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Ccopyright_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Ccopyright_eltype(const Ccopyright_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Ccopyright_eltype& operator=(const Ccopyright_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// The text inside the element.
    operator std::string() const { return GetText(members[457]); }
    /// Replaces everything inside the element by a text.
    Ccopyright_eltype& operator=(const std::string& text) {
        SetText(members[457], text);
        return *this;
    }

    /// Sets xsi:type to ttm:copyright.eltype.
    void SetXsiType() { WriteXsiType(types[135]); }

    MemberAttribute<std::string, 458> id{*this};          ///< xml:id
    MemberAttribute<std::string, 459, 0, 1> lang{*this};  ///< xml:lang
    MemberAttribute<std::string, 460, 0, 2> space{*this}; ///< xml:space
};

/// The element ttm:desc.
class Cdesc_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cdesc_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cdesc_eltype(const Cdesc_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cdesc_eltype& operator=(const Cdesc_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// The text inside the element.
    operator std::string() const { return GetText(members[461]); }
    /// Replaces everything inside the element by a text.
    Cdesc_eltype& operator=(const std::string& text) {
        SetText(members[461], text);
        return *this;
    }

    /// Sets xsi:type to ttm:desc.eltype.
    void SetXsiType() { WriteXsiType(types[136]); }

    MemberAttribute<std::string, 462> id{*this};          ///< xml:id
    MemberAttribute<std::string, 463, 0, 1> lang{*this};  ///< xml:lang
    MemberAttribute<std::string, 464, 0, 2> space{*this}; ///< xml:space
};

/// The element ttm:name.
class Cname_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Cname_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Cname_eltype(const Cname_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Cname_eltype& operator=(const Cname_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// The text inside the element.
    operator std::string() const { return GetText(members[465]); }
    /// Replaces everything inside the element by a text.
    Cname_eltype& operator=(const std::string& text) {
        SetText(members[465], text);
        return *this;
    }

    /// Sets xsi:type to ttm:name.eltype.
    void SetXsiType() { WriteXsiType(types[137]); }

    MemberAttribute<std::string, 466> id{*this};          ///< xml:id
    MemberAttribute<std::string, 467, 0, 1> lang{*this};  ///< xml:lang
    MemberAttribute<std::string, 468, 0, 2> space{*this}; ///< xml:space
    MemberAttribute<std::string, 469, 0, 5> type{*this};  ///< type
};

/// The element ttm:title.
class Ctitle_eltype : public TypeBase {
public:
    /// Views a node, which may be null.
    explicit Ctitle_eltype(xercesc::DOMNode* wrapped) : TypeBase(wrapped) {}
    /// Views the same node.
    Ctitle_eltype(const Ctitle_eltype& other) : TypeBase(other) {}
    /// Views the other's node from now on.
    Ctitle_eltype& operator=(const Ctitle_eltype& other) {
        TypeBase::operator=(other);
        return *this;
    }

    /// The text inside the element.
    operator std::string() const { return GetText(members[470]); }
    /// Replaces everything inside the element by a text.
    Ctitle_eltype& operator=(const std::string& text) {
        SetText(members[470], text);
        return *this;
    }

    /// Sets xsi:type to ttm:title.eltype.
    void SetXsiType() { WriteXsiType(types[138]); }

    MemberAttribute<std::string, 471> id{*this};          ///< xml:id
    MemberAttribute<std::string, 472, 0, 1> lang{*this};  ///< xml:lang
    MemberAttribute<std::string, 473, 0, 2> space{*this}; ///< xml:space
};

} // namespace ttaf1_dfxp::ttm

#endif
