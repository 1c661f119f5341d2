#include "xmltree/tree_operations.h"

#include "xmltree/transcode.h"

#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/dom/DOMText.hpp>

using xercesc::DOMNamedNodeMap;
using xercesc::DOMNode;

namespace {

/// Whether an attribute's local name, null for none, may be the one sought, by its first character alone.
/// Most are not.
bool MayBe(const XMLCh* name, const char* sought) {
    const auto first = static_cast<unsigned char>(*sought);
    return !name || *name == first || first > 0x7F;
}

bool HasName(const DOMNode* attribute, const char* namespaceURI, const char* localName) {
    const XMLCh* name = attribute->getLocalName();
    return (IsTranscoded(name, localName) || (!name && IsTranscoded(attribute->getNodeName(), localName))) &&
           IsTranscoded(attribute->getNamespaceURI(), namespaceURI);
}

/// The first attribute of a node that is accepted; null when there is none. Nodes are asked for attributes
/// many times, mostly in vain: names are compared in place.
template <class Accepts>
DOMNode* FirstAttribute(const DOMNode* node, Accepts&& accepts) {
    const DOMNamedNodeMap* attributes = node ? node->getAttributes() : nullptr;
    const XMLSize_t count = attributes ? attributes->getLength() : 0;
    for (XMLSize_t i = 0; i < count; ++i) {
        DOMNode* attribute = attributes->item(i);
        if (accepts(attribute)) {
            return attribute;
        }
    }
    return nullptr;
}

/// The text of an attribute. With a single text child it is taken from the child: asked for it, an attribute
/// of the XML library goes by way of dynamic casts.
std::string TextOfAttribute(const DOMNode* attribute) {
    const DOMNode* child = attribute->getFirstChild();
    const bool isPlain = child && child->getNodeType() == DOMNode::TEXT_NODE && !child->getNextSibling();
    if (!isPlain) {
        return XercesUnstringTemp(attribute->getNodeValue());
    }
    const XMLCh* units = child->getNodeValue();
    return {units, units + static_cast<const xercesc::DOMText*>(child)->getLength()};
}

enum class TextKind { NONE, ATTRIBUTE, OWN_VALUE, INSIDE };

TextKind TextKindOf(const DOMNode* node) {
    switch (node->getNodeType()) {
    case DOMNode::ELEMENT_NODE:
    case DOMNode::ENTITY_REFERENCE_NODE:
    case DOMNode::DOCUMENT_NODE:
    case DOMNode::DOCUMENT_FRAGMENT_NODE:
        return TextKind::INSIDE;
    case DOMNode::ATTRIBUTE_NODE:
        return TextKind::ATTRIBUTE;
    case DOMNode::TEXT_NODE:
    case DOMNode::CDATA_SECTION_NODE:
    case DOMNode::PROCESSING_INSTRUCTION_NODE:
    case DOMNode::COMMENT_NODE:
        return TextKind::OWN_VALUE;
    default:
        return TextKind::NONE;
    }
}

/// Adds what a node met inside another one contributes and tells whether to look inside it as well.
bool EntersForText(const DOMNode* node, std::string& text) {
    switch (node->getNodeType()) {
    case DOMNode::TEXT_NODE:
    case DOMNode::CDATA_SECTION_NODE:
        AppendNarrowed(text, node->getNodeValue());
        return false;
    case DOMNode::ELEMENT_NODE:
    case DOMNode::ENTITY_REFERENCE_NODE:
        return true;
    default:
        return false;
    }
}

/// The node after `node` and all inside it, in document order and inside `top`; null at the end.
const DOMNode* NextOutside(const DOMNode* node, const DOMNode* top) {
    while (node != top && !node->getNextSibling()) {
        node = node->getParentNode();
    }
    return node == top ? nullptr : node->getNextSibling();
}

std::string TextInside(const DOMNode* top) {
    std::string text;
    const DOMNode* node = top->getFirstChild();
    while (node) {
        const DOMNode* child = EntersForText(node, text) ? node->getFirstChild() : nullptr;
        node = child ? child : NextOutside(node, top);
    }
    return text;
}

} // namespace

DOMNode* XercesTreeOperations::FindAttribute(const DOMNode* node, const tessera::MemberInfo& member) {
    return FindAttribute(node, member.namespaceURI, member.localName);
}

DOMNode* XercesTreeOperations::FindAttribute(const DOMNode* node, const char* namespaceURI,
                                             const char* localName) {
    return FirstAttribute(
        node, [=](const DOMNode* attribute) { return HasName(attribute, namespaceURI, localName); });
}

void XercesTreeOperations::FindAttributes(const DOMNode* node, SoughtAttribute* sought, std::size_t count) {
    std::size_t missing = count;
    FirstAttribute(node, [=, &missing](const DOMNode* attribute) {
        const XMLCh* name = attribute->getLocalName();
        for (SoughtAttribute* one = sought; one != sought + count; ++one) {
            const tessera::MemberInfo& member = *one->member;
            const bool mayMatch = !one->found && MayBe(name, member.localName);
            if (mayMatch && HasName(attribute, member.namespaceURI, member.localName)) {
                one->found = attribute;
                --missing;
            }
        }
        return missing == 0;
    });
}

bool XercesTreeOperations::HasAttributeInNamespace(const DOMNode* node, const tessera::MemberInfo& member) {
    return FirstAttribute(node, [&member](const DOMNode* attribute) {
        return IsTranscoded(attribute->getNamespaceURI(), member.namespaceURI);
    });
}

std::string XercesTreeOperations::GetTextValue(const DOMNode* node) {
    switch (node ? TextKindOf(node) : TextKind::NONE) {
    case TextKind::INSIDE:
        return TextInside(node);
    case TextKind::ATTRIBUTE:
        return TextOfAttribute(node);
    case TextKind::OWN_VALUE:
        return XercesUnstringTemp(node->getNodeValue());
    default:
        return {};
    }
}
