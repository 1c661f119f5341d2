#include "xmltree/document_parser.h"

#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/util/XMLString.hpp>

// The nodes behind the DOM's interfaces, for parsers that make nodes of their own.
#include <xercesc/dom/impl/DOMAttrNSImpl.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>
#include <xercesc/dom/impl/DOMElementNSImpl.hpp>
#include <xercesc/dom/impl/DOMNodeVector.hpp>
#include <xercesc/dom/impl/DOMTextImpl.hpp>

using namespace xercesc;

namespace {

/// Reaches what nodes keep for the classes derived from them.
template <class Node>
struct Open : Node {
    static Node& CopyNames(const Node& from, Node& to) {
        to.fName = from.fName;
        for (const auto name : {&Open::fNamespaceURI, &Open::fLocalName, &Open::fPrefix}) {
            to.*name = from.*name;
        }
        return to;
    }
};
struct OpenMap : DOMAttrMapImpl {
    static DOMNodeVector& NodesOf(DOMAttrMapImpl& map) { return *(map.*&OpenMap::fNodes); }
};

/// What links an element or a text to its siblings; null for a rarer kind of node.
DOMChildNode* LinksOf(DOMNode* node) {
    const DOMNode::NodeType type = node->getNodeType();
    return type == DOMNode::TEXT_NODE      ? &static_cast<DOMTextImpl*>(node)->fChild
           : type == DOMNode::ELEMENT_NODE ? &static_cast<DOMElementImpl*>(node)->fChild
                                           : nullptr;
}

/// A text in a buffer of its length, not 15 characters longer: the buffer that was released last is taken.
DOMTextImpl& MakeText(DOMDocumentImpl* document, const XMLCh* characters, XMLSize_t length) {
    document->releaseBuffer(new (document) DOMBuffer(document, length + 1));
    return *new (document) DOMTextImpl(document, characters, length);
}

template <class Node>
void Own(DOMNode* owner, Node& node) {
    node.fNode.fOwnerNode = owner;
    node.fNode.isOwned(true);
}

/// A first child is marked as such, and the last child is its previous sibling.
template <class Child>
void Append(DOMParentNode& parent, Child& child) {
    const bool isFirst = !parent.fFirstChild;
    DOMChildNode* const first = isFirst ? &child.fChild : LinksOf(parent.fFirstChild);
    DOMChildNode* const last = isFirst || !first ? first : LinksOf(first->previousSibling);
    if (!last) {
        parent.appendChildFast(&child);
        return;
    }
    Own(parent.fContainingNode, child);
    child.fNode.isFirstChild(isFirst);
    child.fChild.previousSibling = first->previousSibling;
    (isFirst ? parent.fFirstChild : last->nextSibling) = &child;
    first->previousSibling = &child;
}

} // namespace

void DocumentParser::docCharacters(const XMLCh* characters, XMLSize_t length, bool isCdata) {
    const bool isContinued = fCurrentNode->getNodeType() == DOMNode::TEXT_NODE;
    if (fDocumentType || isCdata || !fWithinElement || isContinued) {
        XercesDOMParser::docCharacters(characters, length, isCdata);
        return;
    }
    DOMTextImpl& text = MakeText(fDocument, characters, length);
    Append(static_cast<DOMElementImpl*>(fCurrentParent)->fParent, text);
    fCurrentNode = &text;
}

void DocumentParser::startElement(const XMLElementDecl& declaration, unsigned int namespaceId,
                                  const XMLCh* prefix, const RefVectorOf<XMLAttr>& attributes,
                                  XMLSize_t count, bool isEmpty, bool isRoot) {
    if (fDocumentType) {
        XercesDOMParser::startElement(declaration, namespaceId, prefix, attributes, count, isEmpty, isRoot);
        return;
    }
    const XMLCh* const name = declaration.getFullName();
    auto& element = MakeNamed<DOMElementNSImpl>(elements_, namespaceId, name, [&] {
        return createElementNS(fScanner->getURIText(namespaceId), prefix, declaration.getBaseName(), name);
    });
    if (count > 0) {
        element.fAttributes->reserve(count);
    }
    for (XMLSize_t i = 0; i < count; ++i) {
        AddAttribute(&element, *attributes.elementAt(i));
    }
    if (fCurrentParent == fDocument) {
        fDocument->appendChild(&element);
    } else {
        Append(static_cast<DOMElementImpl*>(fCurrentParent)->fParent, element);
    }
    fCurrentParent = fCurrentNode = &element;
    fWithinElement = true;
    if (isEmpty) {
        endElement(declaration, namespaceId, isRoot, prefix);
    }
}

void DocumentParser::endElement(const XMLElementDecl& declaration, unsigned int namespaceId, bool isRoot,
                                const XMLCh* prefix) {
    if (fDocumentType || isRoot) {
        XercesDOMParser::endElement(declaration, namespaceId, isRoot, prefix);
        return;
    }
    fCurrentNode = fCurrentParent;
    fCurrentParent = static_cast<DOMElementImpl*>(fCurrentNode)->fNode.fOwnerNode;
}

/// A node with the names of a known one or, the first time, the one that `make` makes.
template <class Node, class Make>
Node& DocumentParser::MakeNamed(Known& known, unsigned int namespaceId, const XMLCh* name, Make&& make) {
    for (const auto& [id, node] : known) {
        const Node& model = *static_cast<const Node*>(node);
        if (id == namespaceId && XMLString::equals(model.fName, name)) {
            return Open<Node>::CopyNames(model, *new (fDocument) Node(fDocument, nullptr));
        }
    }
    auto& node = *static_cast<Node*>(make());
    if (known.size() < 16) { // subtitles use no more, and a search has to stay short
        known.emplace_back(namespaceId, &node);
    }
    return node;
}

void DocumentParser::AddAttribute(DOMElement* element, const XMLAttr& attribute) {
    const XMLCh* const name = attribute.getQName();
    auto& node = MakeNamed<DOMAttrNSImpl>(attributes_, attribute.getURIId(), name, [&] {
        const bool isDefaultNamespace = XMLString::equals(name, XMLUni::fgXMLNSString);
        const unsigned int id = isDefaultNamespace ? fScanner->getXMLNSNamespaceId() : attribute.getURIId();
        return createAttrNS(fScanner->getURIText(id), attribute.getPrefix(), attribute.getName(), name);
    });
    const XMLCh* const value = attribute.getValue();
    Append(node.fParent, MakeText(fDocument, value, XMLString::stringLen(value)));
    Own(element, node);
    DOMAttrMapImpl& map = *static_cast<DOMElementImpl*>(element)->fAttributes;
    const int place = map.findNamePoint(name); // negative: not there; the scanner refuses a second one
    OpenMap::NodesOf(map).insertElementAt(&node, static_cast<XMLSize_t>(place < 0 ? -1 - place : place));
}
