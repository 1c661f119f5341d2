#include "binding/type_base.h"

#include "binding/tables.h"
#include "runtime/exceptions.h"
#include "xmltree/namespace_names.h"
#include "xmltree/tree_operations.h"

#include <algorithm>

using tessera::MemberInfo;
using xercesc::DOMNode;

namespace ttaf1_dfxp {

namespace {

/// The facet records from `first` on, `count` of them or as many as the table has.
struct FacetRange {
    FacetRange(std::uint32_t first, std::uint32_t count)
        : begin(std::min(first, FACET_COUNT)), size(std::min(count, FACET_COUNT - begin)) {}

    const char* Value(std::uint32_t index) const { return facets[begin + index].value; }

    std::uint32_t begin;
    std::uint32_t size;
};

} // namespace

DOMNode* TypeBase::GetElementNth(const MemberInfo& member, std::uint32_t index) const {
    auto match = XercesTreeOperations::GetElements(node_, member);
    while (index > 0 && match.CurrentNode()) {
        ++match;
        --index;
    }
    return match.CurrentNode();
}

DOMNode* TypeBase::GetElementLast(const MemberInfo& member) const {
    DOMNode* last = nullptr;
    for (auto match = XercesTreeOperations::GetElements(node_, member); match.CurrentNode(); ++match) {
        last = match.CurrentNode();
    }
    return last;
}

std::uint32_t TypeBase::CountElement(const MemberInfo& member) const {
    std::uint32_t count = 0;
    for (auto match = XercesTreeOperations::GetElements(node_, member); match.CurrentNode(); ++match) {
        ++count;
    }
    return count;
}

void TypeBase::RemoveElement(const MemberInfo& member) {
    XercesTreeOperations::RemoveElements(node_, member);
}

std::string TypeBase::GetEnumerationValue(std::int32_t index, std::uint32_t first, std::uint32_t count) {
    const FacetRange range(first, count);
    const auto place = static_cast<std::uint32_t>(index);
    if (index < 0 || place >= range.size || !range.Value(place)) {
        throw tessera::ConversionException("Enumeration index out of range.");
    }
    return range.Value(place);
}

std::int32_t TypeBase::GetEnumerationIndex(const std::string& value, std::uint32_t first,
                                           std::uint32_t count) {
    const FacetRange range(first, count);
    for (std::uint32_t i = 0; i < range.size; ++i) {
        if (range.Value(i) && range.Value(i) == value) {
            return static_cast<std::int32_t>(i);
        }
    }
    return -1;
}

std::string TypeBase::GetText(const MemberInfo& textMember) const {
    return XercesTreeOperations::CastToString(node_, textMember);
}

void TypeBase::SetText(const MemberInfo& textMember, const std::string& text) {
    XercesTreeOperations::SetValue(node_, textMember, text);
}

void TypeBase::WriteXsiType(const tessera::TypeInfo& type) {
    XercesTreeOperations::SetAttribute(node_, "xsi:type", XML_SCHEMA_INSTANCE_NAMESPACE, type.localName,
                                       namespaces[type.namespaceIndex].namespaceURI);
}

} // namespace ttaf1_dfxp
