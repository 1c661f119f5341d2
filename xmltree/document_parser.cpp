#include "xmltree/document_parser.h"

#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/util/XMLString.hpp>

// The nodes behind the DOM's interfaces, for parsers that make nodes of their own.
#include <xercesc/dom/impl/DOMAttrImpl.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>
#include <xercesc/dom/impl/DOMElementImpl.hpp>
#include <xercesc/dom/impl/DOMNodeVector.hpp>
#include <xercesc/dom/impl/DOMTextImpl.hpp>

using xercesc::DOMAttrImpl;
using xercesc::DOMAttrMapImpl;
using xercesc::DOMChildNode;
using xercesc::DOMElementImpl;
using xercesc::DOMNode;
using xercesc::DOMNodeVector;
using xercesc::DOMParentNode;
using xercesc::DOMTextImpl;
using xercesc::XMLAttr;
using xercesc::XMLElementDecl;
using xercesc::XMLString;
using xercesc::XMLUni;

namespace {

/// The element that a node is, or null.
DOMElementImpl* ElementAt(DOMNode* node) {
    return node->getNodeType() == DOMNode::ELEMENT_NODE ? static_cast<DOMElementImpl*>(node) : nullptr;
}

/// What links an element or a text to its siblings; null for a rarer kind of node.
DOMChildNode* LinksOf(DOMNode* node) {
    switch (node->getNodeType()) {
    case DOMNode::ELEMENT_NODE:
        return &static_cast<DOMElementImpl*>(node)->fChild;
    case DOMNode::TEXT_NODE:
        return &static_cast<DOMTextImpl*>(node)->fChild;
    default:
        return nullptr;
    }
}

template <class Node>
void Own(DOMNode* owner, Node& node) {
    node.fNode.fOwnerNode = owner;
    node.fNode.isOwned(true);
}

// A first child is marked as such, and the last child is its previous sibling.

template <class Child>
void LinkFirst(DOMParentNode& parent, Child& child) {
    Own(parent.fContainingNode, child);
    child.fNode.isFirstChild(true);
    child.fChild.previousSibling = &child;
    parent.fFirstChild = &child;
}

template <class Child>
void LinkLast(const DOMParentNode& parent, DOMChildNode& first, DOMChildNode& last, Child& child) {
    Own(parent.fContainingNode, child);
    child.fChild.previousSibling = first.previousSibling;
    last.nextSibling = &child;
    first.previousSibling = &child;
}

template <class Child>
void Append(DOMParentNode& parent, Child& child) {
    if (!parent.fFirstChild) {
        LinkFirst(parent, child);
        return;
    }
    DOMChildNode* const first = LinksOf(parent.fFirstChild);
    DOMChildNode* const last = first ? LinksOf(first->previousSibling) : nullptr;
    if (last) {
        LinkLast(parent, *first, *last, child);
    } else {
        parent.appendChildFast(&child);
    }
}

/// Opens what a map of attributes keeps to itself.
struct OpenAttributes : DOMAttrMapImpl {
    static DOMNodeVector& NodesOf(DOMAttrMapImpl& map) { return *(map.*&OpenAttributes::fNodes); }
};

/// Puts an attribute into its place by name. The scanner refuses a second one of the same name.
void Insert(DOMElementImpl& element, DOMAttrImpl& attribute) {
    const int place = element.fAttributes->findNamePoint(attribute.fName);
    Own(&element, attribute);
    OpenAttributes::NodesOf(*element.fAttributes)
        .insertElementAt(&attribute, static_cast<XMLSize_t>(-1 - place));
}

} // namespace

void DocumentParser::docCharacters(const XMLCh* characters, XMLSize_t length, bool isCdata) {
    const bool isNewText = !isCdata && fCurrentNode->getNodeType() != DOMNode::TEXT_NODE;
    DOMElementImpl* const parent = isNewText ? ElementAt(fCurrentParent) : nullptr;
    if (!parent) {
        XercesDOMParser::docCharacters(characters, length, isCdata);
        return;
    }
    xercesc::DOMText* const text = createText(characters, length);
    Append(parent->fParent, static_cast<DOMTextImpl&>(*text));
    fCurrentNode = text;
}

void DocumentParser::startElement(const XMLElementDecl& declaration, unsigned int namespaceId,
                                  const XMLCh* prefix, const xercesc::RefVectorOf<XMLAttr>& attributes,
                                  XMLSize_t attributeCount, bool isEmpty, bool isRoot) {
    DOMElementImpl* const parent = declaration.hasAttDefs() ? nullptr : ElementAt(fCurrentParent);
    if (!parent) {
        XercesDOMParser::startElement(declaration, namespaceId, prefix, attributes, attributeCount, isEmpty,
                                      isRoot);
        return;
    }
    auto& element = static_cast<DOMElementImpl&>(*createElementNS(
        NamespaceOf(namespaceId), prefix, declaration.getBaseName(), declaration.getFullName()));
    if (attributeCount > 0) {
        element.fAttributes->reserve(attributeCount);
    }
    for (XMLSize_t i = 0; i < attributeCount; ++i) {
        Insert(element, static_cast<DOMAttrImpl&>(*MakeAttribute(*attributes.elementAt(i))));
    }
    Append(parent->fParent, element);
    fCurrentParent = &element;
    fCurrentNode = &element;
    if (isEmpty) {
        endElement(declaration, namespaceId, isRoot, prefix);
    }
}

void DocumentParser::endElement(const XMLElementDecl& declaration, unsigned int namespaceId, bool isRoot,
                                const XMLCh* prefix) {
    const DOMElementImpl* const element = ElementAt(fCurrentParent);
    DOMElementImpl* const parent = element ? ElementAt(element->fNode.fOwnerNode) : nullptr;
    if (!parent) {
        XercesDOMParser::endElement(declaration, namespaceId, isRoot, prefix);
        return;
    }
    fCurrentNode = fCurrentParent;
    fCurrentParent = parent;
}

/// Null for no namespace.
const XMLCh* DocumentParser::NamespaceOf(unsigned int id) const {
    return id == fScanner->getEmptyNamespaceId() ? nullptr : fScanner->getURIText(id);
}

/// An attribute with its value, not yet an element's.
xercesc::DOMAttr* DocumentParser::MakeAttribute(const XMLAttr& attribute) {
    const XMLCh* const name = attribute.getName();
    const XMLCh* const prefix = attribute.getPrefix();
    const bool isDefaultNamespace = (!prefix || !*prefix) && XMLString::equals(name, XMLUni::fgXMLNSString);
    const unsigned int namespaceId =
        isDefaultNamespace ? fScanner->getXMLNSNamespaceId() : attribute.getURIId();
    xercesc::DOMAttr* const node = createAttrNS(NamespaceOf(namespaceId), prefix, name, attribute.getQName());
    const XMLCh* const value = attribute.getValue();
    xercesc::DOMText* const text = createText(value, XMLString::stringLen(value));
    Append(static_cast<DOMAttrImpl*>(node)->fParent, static_cast<DOMTextImpl&>(*text));
    return node;
}
