// The accessors of the wrapper classes: one object for each attribute and child element of a type.
//
// An accessor acts on the node that its wrapper views at the moment of the call and is good for as long as
// the wrapper is. `member` is an index into the member table. `enumFirst` and `enumCount` tell the values of
// the member's type: `enumCount` is the number of its enumeration facets, `enumFirst` always 0.
#ifndef XTTML_BINDING_MEMBER_ACCESSORS_H
#define XTTML_BINDING_MEMBER_ACCESSORS_H

#include "binding/tables.h"
#include "binding/type_base.h"
#include "runtime/exceptions.h"
#include "xmltree/tree_operations.h"

#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace ttaf1_dfxp {

/// Converts the value of an attribute.
template <class T>
using MemberCast = T (*)(const xercesc::DOMNode*, const tessera::MemberInfo&);

/// The conversions to every type that an attribute is read as, one for each.
inline constexpr auto MEMBER_CASTS = std::make_tuple(
    XercesTreeOperations::CastToString, XercesTreeOperations::CastToBool, XercesTreeOperations::CastToInt,
    XercesTreeOperations::CastToUInt, XercesTreeOperations::CastToInt64, XercesTreeOperations::CastToUInt64,
    XercesTreeOperations::CastToDouble, XercesTreeOperations::CastToDateTime,
    XercesTreeOperations::CastToDuration, XercesTreeOperations::CastToBinary,
    XercesTreeOperations::CastToQName);

/// The one to a T; any other type does not compile.
template <class T>
inline constexpr MemberCast<T> CAST_TO = std::get<MemberCast<T>>(MEMBER_CASTS);

/// An attribute, read as a T. It is found by namespace and local name: one of the same name in another
/// namespace, or in none, is not this one.
template <class T, std::uint32_t member, std::uint32_t enumFirst = 0, std::uint32_t enumCount = 0>
class MemberAttribute {
    static_assert(member < MEMBER_COUNT);

public:
    using Value = T; ///< what the attribute is read as

    /// `owner`: the wrapper that the accessor belongs to; must outlive it.
    explicit MemberAttribute(const TypeBase& owner) : owner_(owner) {}
    MemberAttribute(const MemberAttribute&) = delete;
    MemberAttribute& operator=(const MemberAttribute&) = delete;

    /// Whether the element carries the attribute.
    bool exists() const { return Find() != nullptr; }

    /// Whether the element carries any attribute of this one's namespace.
    bool namespaceExists() const {
        return XercesTreeOperations::HasAttributeInNamespace(owner_.GetNode(), members[member]);
    }

    /// The value; a string as it stands, without any change of white space. Throws
    /// tessera::InvalidOperationException when the attribute does not exist, and what the conversion throws
    /// (tessera::StringParseException, tessera::OutOfRangeException).
    operator T() const {
        const xercesc::DOMNode* attribute = Find();
        if (!attribute) {
            throw tessera::InvalidOperationException("Cannot read value of non-existent attribute.");
        }
        return CAST_TO<T>(attribute, members[member]);
    }

    /// The value if the attribute exists, found by one lookup. Throws only what the conversion throws.
    std::optional<T> value() const {
        std::optional<T> value;
        Convert(Find(), value);
        return value;
    }

    /// The text of the attribute if it exists, as it stands. Throws no conversion exception.
    std::optional<std::string> text() const {
        const xercesc::DOMNode* attribute = Find();
        return attribute ? std::optional<std::string>(XercesTreeOperations::GetTextValue(attribute))
                         : std::nullopt;
    }

private:
    template <class... Attributes>
    friend auto values(const Attributes&... attributes);

    static XercesTreeOperations::SoughtAttribute Sought() { return {&members[member]}; }
    static void Convert(const xercesc::DOMNode* attribute, std::optional<T>& value) {
        if (attribute) {
            value.emplace(CAST_TO<T>(attribute, members[member]));
        }
    }
    const xercesc::DOMNode* Find() const {
        return XercesTreeOperations::FindAttribute(owner_.GetNode(), members[member]);
    }

    const TypeBase& owner_;
};

/// The value() of several attributes of one element, found together by one pass over its attributes: a tuple
/// in the order of the arguments, in which they are converted, too.
template <class... Attributes>
auto values(const Attributes&... attributes) {
    XercesTreeOperations::SoughtAttribute sought[] = {Attributes::Sought()...};
    XercesTreeOperations::FindAttributes(std::get<0>(std::tie(attributes...)).owner_.GetNode(), sought,
                                         std::size(sought));
    std::tuple<std::optional<typename Attributes::Value>...> result;
    const XercesTreeOperations::SoughtAttribute* next = sought;
    std::apply([&next](auto&... value) { (Attributes::Convert((next++)->found, value), ...); }, result);
    return result;
}

/// Walks the child elements of a kind: a wrapper of one after the other. Single-pass:
/// `for (auto p = div.p.all(); p.CurrentNode(); ++p)`.
template <class T>
class Iterator : public T {
public:
    /// Stands on the element that `match` stands on.
    explicit Iterator(const XercesTreeOperations::MemberIterator& match)
        : T(match.CurrentNode()), match_(match) {}

    /// The element that the walk stands on; null when it has ended, while the wrapper stays on the last one.
    xercesc::DOMNode* CurrentNode() const { return match_.CurrentNode(); }

    /// Moves to the next element and tells whether there is one.
    bool operator++() {
        const bool found = ++match_;
        if (found) {
            this->SetNode(match_.CurrentNode());
        }
        return found;
    }

private:
    XercesTreeOperations::MemberIterator match_;
};

/// The child elements of a kind, each wrapped as a T. They are found by local name, whatever their namespace.
template <class T, std::uint32_t member>
class MemberElement {
    static_assert(member < MEMBER_COUNT);

public:
    /// `owner`: the wrapper that the accessor belongs to; must outlive it.
    explicit MemberElement(const TypeBase& owner) : owner_(owner) {}
    MemberElement(const MemberElement&) = delete;
    MemberElement& operator=(const MemberElement&) = delete;

    /// Whether there is at least one.
    bool exists() const { return owner_.GetElementNth(members[member], 0) != nullptr; }

    /// The first; a wrapper without a node when there is none.
    T first() const { return T(owner_.GetElementNth(members[member], 0)); }

    /// All, in document order.
    Iterator<T> all() const {
        return Iterator<T>(XercesTreeOperations::GetElements(owner_.GetNode(), members[member]));
    }

private:
    const TypeBase& owner_;
};

} // namespace ttaf1_dfxp

#endif
