#include "xmltree/document_parser.h"

// The nodes behind the DOM's interfaces, for parsers that make nodes of their own.
#include <xercesc/dom/impl/DOMAttrNSImpl.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>
#include <xercesc/dom/impl/DOMElementImpl.hpp>
#include <xercesc/dom/impl/DOMTextImpl.hpp>

using xercesc::DOMAttr;
using xercesc::DOMAttrNSImpl;
using xercesc::DOMChildNode;
using xercesc::DOMElementImpl;
using xercesc::DOMMemoryManager;
using xercesc::DOMNode;
using xercesc::DOMParentNode;
using xercesc::DOMTextImpl;

namespace {

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

void Own(const DOMParentNode& parent, DOMTextImpl& text) {
    text.fNode.fOwnerNode = parent.fContainingNode;
    text.fNode.isOwned(true);
}

// A first child is marked as such, and the last child is its previous sibling.

void LinkFirst(DOMParentNode& parent, DOMTextImpl& text) {
    Own(parent, text);
    text.fNode.isFirstChild(true);
    text.fChild.previousSibling = &text;
    parent.fFirstChild = &text;
}

void LinkLast(const DOMParentNode& parent, DOMChildNode& first, DOMChildNode& last, DOMTextImpl& text) {
    Own(parent, text);
    text.fChild.previousSibling = first.previousSibling;
    last.nextSibling = &text;
    first.previousSibling = &text;
}

void Append(DOMParentNode& parent, DOMTextImpl& text) {
    if (!parent.fFirstChild) {
        LinkFirst(parent, text);
        return;
    }
    DOMChildNode* const first = LinksOf(parent.fFirstChild);
    DOMChildNode* const last = first ? LinksOf(first->previousSibling) : nullptr;
    if (last) {
        LinkLast(parent, *first, *last, text);
    } else {
        parent.appendChildFast(&text);
    }
}

/// Has no members of its own: when it is released, the document uses its memory for another attribute.
class ParsedAttribute : public DOMAttrNSImpl {
public:
    using DOMAttrNSImpl::DOMAttrNSImpl;

    void setValueFast(const XMLCh* value) override {
        if (value) {
            Append(fParent, static_cast<DOMTextImpl&>(*fParent.fOwnerDocument->createTextNode(value)));
        }
    }
};
static_assert(sizeof(ParsedAttribute) == sizeof(DOMAttrNSImpl));

} // namespace

void DocumentParser::docCharacters(const XMLCh* characters, XMLSize_t length, bool isCdata) {
    const bool isNewText = !isCdata && fCurrentNode->getNodeType() != DOMNode::TEXT_NODE;
    if (!isNewText || fCurrentParent->getNodeType() != DOMNode::ELEMENT_NODE) {
        XercesDOMParser::docCharacters(characters, length, isCdata);
        return;
    }
    xercesc::DOMText* const text = createText(characters, length);
    Append(static_cast<DOMElementImpl*>(fCurrentParent)->fParent, static_cast<DOMTextImpl&>(*text));
    setCurrentNode(text);
}

DOMAttr* DocumentParser::createAttrNS(const XMLCh* namespaceURI, const XMLCh* prefix, const XMLCh* localName,
                                      const XMLCh* qualifiedName) {
    return new (fDocument, DOMMemoryManager::ATTR_NS_OBJECT)
        ParsedAttribute(fDocument, namespaceURI, prefix, localName, qualifiedName);
}
