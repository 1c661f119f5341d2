#include "tools/xttml/findings/element.h"

#include "tools/xttml/document/xml_text.h"
#include "tools/xttml/findings/attribute.h"
#include "tools/xttml/text/text_encoding.h"

#include <algorithm>
#include <bitset>
#include <iterator>
#include <utility>
#include <xercesc/util/XMLString.hpp>
#include <xttml/xmltree/tree_operations.h>

namespace xttml {

namespace {

enum class Case { SAME, ANY };
enum class Count { ALL, FIRST };

/// What the library takes a child for, by its local name.
struct RoleRule {
    Role parent;
    const char* name;
    Role role;
    Count count = Count::ALL;
    Case letters = Case::SAME;
};

constexpr RoleRule rules[] = {
    {Role::ROOT, "head", Role::HEAD, Count::FIRST},
    {Role::ROOT, "body", Role::BODY, Count::FIRST},
    {Role::HEAD, "styling", Role::STYLING, Count::FIRST},
    {Role::HEAD, "layout", Role::LAYOUT, Count::FIRST},
    {Role::STYLING, "style", Role::STYLE},
    {Role::LAYOUT, "region", Role::REGION},
    {Role::REGION, "style", Role::REGION_STYLE},
    {Role::BODY, "div", Role::DIVISION},
    {Role::BODY, "p", Role::PARAGRAPH},
    {Role::DIVISION, "div", Role::DIVISION},
    {Role::DIVISION, "p", Role::PARAGRAPH},
    {Role::PARAGRAPH, "span", Role::SPAN, Count::ALL, Case::ANY},
    {Role::PARAGRAPH, "br", Role::LINE_BREAK, Count::ALL, Case::ANY},
    {Role::SPAN, "span", Role::SPAN, Count::ALL, Case::ANY},
    {Role::SPAN, "br", Role::LINE_BREAK, Count::ALL, Case::ANY},
};

bool IsNamed(const xercesc::DOMNode& node, const char* name, Case letters = Case::SAME) {
    const std::u16string_view local = Units(node.getLocalName());
    const auto isSame = [letters](char16_t left, char right) {
        const bool isUpper = letters == Case::ANY && left >= u'A' && left <= u'Z';
        return (isUpper ? left - u'A' + u'a' : left) == static_cast<unsigned char>(right);
    };
    const std::string_view sought = name;
    return std::equal(local.begin(), local.end(), sought.begin(), sought.end(), isSame);
}

/// A division with an image holds what any division does.
Role RoleInRules(const Element& parent) {
    return parent.role == Role::PICTURE ? Role::DIVISION : parent.role;
}

const RoleRule* FindRule(const xercesc::DOMNode& node, const Element& parent) {
    const auto* const rule = std::find_if(std::begin(rules), std::end(rules), [&](const RoleRule& candidate) {
        return candidate.parent == RoleInRules(parent) && IsNamed(node, candidate.name, candidate.letters);
    });
    return rule == std::end(rules) ? nullptr : rule;
}

// In the order of the roles: nothing inside these is read.
constexpr Role firstUnread = Role::ANIMATION;

bool IsContent(Role role) {
    return role == Role::PARAGRAPH || role == Role::SPAN;
}

bool HaveSameNamespace(const xercesc::DOMNode& left, const xercesc::DOMNode& right) {
    return xercesc::XMLString::equals(left.getNamespaceURI(), right.getNamespaceURI());
}

/// The role of an element that no rule names. Elements of other vocabularies hold text only in content.
Role RoleWithoutRule(const xercesc::DOMNode& node, const Element& parent) {
    if (parent.role >= firstUnread)
        return Role::INSIDE;
    if (IsNamed(node, "set") || IsNamed(node, "animate"))
        return Role::ANIMATION;
    const bool isDescription =
        IsNamed(node, "metadata") ||
        XercesTreeOperations::IsEqualString(node.getNamespaceURI(), metadataNamespace) ||
        (!IsContent(parent.role) && !HaveSameNamespace(node, *parent.node));
    return isDescription ? Role::DESCRIPTION : Role::UNKNOWN;
}

/// Above references to entities.
const xercesc::DOMNode* ParentElement(const xercesc::DOMNode& node) {
    const xercesc::DOMNode* parent = node.getParentNode();
    while (parent && parent->getNodeType() == xercesc::DOMNode::ENTITY_REFERENCE_NODE)
        parent = parent->getParentNode();
    return parent;
}

/// Takes the elements of a document one after the other.
class RoleFinder {
public:
    explicit RoleFinder(bool showsImages) : showsImages_(showsImages) {}

    Element Take(const PlacedElement& placed, const Element* parent) {
        Element element = {placed.node, placed.place, parent, Role::UNKNOWN, true, nullptr};
        if (!parent)
            element.role = Role::ROOT;
        else if (placed.node->getParentNode() != parent->node) // but a reference to an entity
            element.role = Role::INSIDE;
        else
            element.role = RoleBelow(*placed.node, *parent);
        element.isRead = !parent || (parent->isRead && IsLookedFor(element));
        return element;
    }

private:
    Role RoleBelow(const xercesc::DOMNode& node, const Element& parent) {
        const RoleRule* const rule = FindRule(node, parent);
        if (!rule)
            return RoleWithoutRule(node, parent);
        const auto position = static_cast<std::size_t>(rule - std::begin(rules));
        const bool isFirst = !met_[position];
        met_.set(position);
        if (rule->count == Count::FIRST && !isFirst)
            return Role::UNKNOWN;
        const bool isPicture = rule->role == Role::DIVISION && AttributeOf(node, pictureName);
        return isPicture ? Role::PICTURE : rule->role;
    }

    /// Text comes from the first division.
    bool IsLookedFor(const Element& element) {
        const bool isInBody = element.parent->role == Role::BODY;
        switch (element.role) {
        case Role::PARAGRAPH:
            return !showsImages_ && !isInBody;
        case Role::DIVISION:
        case Role::PICTURE:
            return showsImages_ ? IsPlaceOfPicture(element)
                                : isInBody && !std::exchange(hasFirstDivision_, true);
        default:
            return element.role != Role::INSIDE;
        }
    }

    bool showsImages_;
    bool hasFirstDivision_ = false;
    std::bitset<std::size(rules)> met_;
};

} // namespace

ElementList FindRoles(const std::vector<PlacedElement>& placed, bool showsImages) {
    ElementList elements;
    elements.reserve(placed.size()); // they point to each other
    RoleFinder finder(showsImages);
    const Element* parent = nullptr;
    for (const PlacedElement& next : placed) {
        const xercesc::DOMNode* const parentNode = ParentElement(*next.node);
        while (parent && parent->node != parentNode)
            parent = parent->parent;
        elements.push_back(finder.Take(next, parent));
        parent = &elements.back();
    }
    return elements;
}

bool IsOneTooMany(const Element& element) {
    return element.role == Role::UNKNOWN && FindRule(*element.node, *element.parent);
}

bool IsPlaceOfPicture(const Element& division) {
    const Element& parent = *division.parent;
    return parent.role == Role::BODY || (parent.role == Role::DIVISION && parent.parent->role == Role::BODY);
}

std::string TagOf(const Element& element) {
    return '<' + Utf8Beginning(Units(element.node->getNodeName())) + '>';
}

} // namespace xttml
