// What every wrapper of a node has in common.
#ifndef XTTML_BINDING_TYPE_BASE_H
#define XTTML_BINDING_TYPE_BASE_H

#include "runtime/export.h"
#include "runtime/info.h"

#include <xercesc/dom/DOMNode.hpp>

#include <cstdint>
#include <string>

namespace ttaf1_dfxp {

/// A typed view of one DOM node. It is a value: a copy views the same node. The document owns the node and
/// must outlive the wrapper. A wrapper without a node has no attributes, no child elements and no text; an
/// edit of it throws tessera::InvalidOperationException.
///
/// A member argument is a record of the member table. Child elements match a member by local name alone, in
/// whatever namespace they are.
class XTTML_API TypeBase {
public:
    /// `node`: may be null.
    explicit TypeBase(xercesc::DOMNode* node) : node_(node) {}

    /// The node that is viewed; null for none.
    xercesc::DOMNode* GetNode() const { return node_; }

    /// The matching child element number `index`, counted from 0 in document order; null when there are
    /// not so many.
    xercesc::DOMNode* GetElementNth(const tessera::MemberInfo& member, std::uint32_t index) const;
    /// The last matching child element; null when there is none.
    xercesc::DOMNode* GetElementLast(const tessera::MemberInfo& member) const;
    /// The number of matching child elements.
    std::uint32_t CountElement(const tessera::MemberInfo& member) const;
    /// Removes every matching child element.
    void RemoveElement(const tessera::MemberInfo& member);

    /// The value of the facet record `first + index`. Throws tessera::ConversionException ("Enumeration index
    /// out of range.") unless 0 <= index < count and the record is there and has a value.
    static std::string GetEnumerationValue(std::int32_t index, std::uint32_t first, std::uint32_t count);
    /// The place, counted from 0, of the first of the `count` facet records from `first` on whose value is
    /// `value`, byte for byte; -1 when there is none.
    static std::int32_t GetEnumerationIndex(const std::string& value, std::uint32_t first,
                                            std::uint32_t count);

protected:
    /// Views another node from now on; null for none.
    void SetNode(xercesc::DOMNode* node) { node_ = node; }

    /// The text inside the node; empty without a node.
    std::string GetText(const tessera::MemberInfo& textMember) const;
    /// Replaces everything inside the node.
    void SetText(const tessera::MemberInfo& textMember, const std::string& text);
    /// Sets xsi:type (XML Schema Part 1, 2.6.1) to the name of `type`, declaring prefixes as needed. Throws
    /// xercesc::DOMException when the node is no element.
    void WriteXsiType(const tessera::TypeInfo& type);

private:
    xercesc::DOMNode* node_;
};

} // namespace ttaf1_dfxp

#endif
