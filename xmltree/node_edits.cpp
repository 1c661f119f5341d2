#include "xmltree/tree_operations.h"

#include "runtime/exceptions.h"
#include "runtime/qname.h"
#include "xmltree/namespace_names.h"
#include "xmltree/namespace_prefixes.h"
#include "xmltree/transcode.h"

#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/dom/DOMProcessingInstruction.hpp>
#include <xercesc/dom/DOMText.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <utility>
#include <vector>

using tessera::MemberInfo;
using tessera::QName;
using xercesc::DOMAttr;
using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMException;
using xercesc::DOMImplementation;
using xercesc::DOMNamedNodeMap;
using xercesc::DOMNode;
using xercesc::XMLPlatformUtils;

namespace {

DOMException Refusal() {
    return DOMException(DOMException::HIERARCHY_REQUEST_ERR, 0, XMLPlatformUtils::fgMemoryManager);
}

DOMNode& NodeToEdit(DOMNode* node) {
    if (!node) {
        throw tessera::InvalidOperationException("Cannot edit a non-existent node.");
    }
    return *node;
}

DOMDocument& DocumentOf(DOMNode* node) {
    if (NodeToEdit(node).getNodeType() == DOMNode::DOCUMENT_NODE) {
        return static_cast<DOMDocument&>(*node);
    }
    DOMDocument* owner = node->getOwnerDocument();
    if (!owner) {
        throw Refusal();
    }
    return *owner;
}

DOMElement& ElementOf(DOMNode* node) {
    if (NodeToEdit(node).getNodeType() != DOMNode::ELEMENT_NODE) {
        throw Refusal();
    }
    return static_cast<DOMElement&>(*node);
}

bool IsTextContent(const MemberInfo& member) {
    return !*member.localName;
}

/// Releases a node that has no parent and all inside it, leaves first: DOMNode::release calls itself for
/// every level.
void ReleaseTree(DOMNode* top) {
    DOMNode* node = top;
    while (true) {
        while (node->getNodeType() == DOMNode::ELEMENT_NODE && node->getFirstChild()) {
            node = node->getFirstChild();
        }
        if (node == top) {
            break;
        }
        DOMNode* parent = node->getParentNode();
        parent->removeChild(node)->release();
        node = parent;
    }
    top->release();
}

// A document has no text: it is refused before it has lost its content.
void ReplaceContent(DOMNode* node, const XMLCh* text) {
    DOMDocument& document = DocumentOf(node);
    if (node == &document) {
        throw Refusal();
    }
    while (DOMNode* child = node->getFirstChild()) {
        ReleaseTree(node->removeChild(child));
    }
    node->appendChild(document.createTextNode(text));
}

/// What DOMDocument::importNode makes of a node and all inside it; that calls itself for every level. The
/// inside of an entity reference is not copied: it is what the entity is in the document that it comes to.
DOMNode* ImportTree(DOMDocument& document, const DOMNode* top) {
    DOMNode* const topCopy = document.importNode(top, false);
    std::vector<std::pair<const DOMNode*, DOMNode*>> open = {{top, topCopy}};
    while (!open.empty()) {
        const auto [node, copy] = open.back();
        open.pop_back();
        const bool isElement = node->getNodeType() == DOMNode::ELEMENT_NODE;
        for (const DOMNode* child = isElement ? node->getFirstChild() : nullptr; child;
             child = child->getNextSibling()) {
            open.emplace_back(child, copy->appendChild(document.importNode(child, false)));
        }
    }
    return topCopy;
}

void DeclarePrefix(DOMElement& element, const std::string& prefix, const std::string& namespaceURI) {
    element.setAttributeNS(XercesStringTemp(XMLNS_NAMESPACE), XercesStringTemp("xmlns:" + prefix),
                           XercesStringTemp(namespaceURI));
}

/// The name of an element or attribute under the prefix in scope for its namespace, if there is one.
QName NameInScope(const DOMNode* node, const MemberInfo& member) {
    QName name(member.namespaceURI, {}, member.localName);
    if (!name.uri.empty()) {
        name.prefix = FindUsablePrefix(node, name.uri);
    }
    return name;
}

/// The prefix in scope for the namespace of a name, or a fresh one made from its own, declared on the
/// element.
std::string BoundPrefix(DOMElement& element, const QName& name) {
    std::string prefix = FindUsablePrefix(&element, name.uri);
    if (prefix.empty()) {
        prefix = GetFreshPrefix(&element, name.prefix, name.uri);
        DeclarePrefix(element, prefix, name.uri);
    }
    return prefix;
}

/// The text of a qualified name under such a prefix.
std::string BoundName(DOMElement& element, const QName& name) {
    const std::string prefix = name.uri.empty() ? std::string() : BoundPrefix(element, name);
    return QName(name.uri, prefix, name.localName).ToString();
}

template <class Document>
void ReleaseAndClear(Document*& document) {
    if (document) {
        document->release();
        document = nullptr;
    }
}

} // namespace

DOMDocument* XercesTreeOperations::CreateDocument() {
    DOMImplementation* implementation = DOMImplementation::getImplementation();
    if (!implementation) {
        throw tessera::InvalidOperationException("The XML library is not initialised.");
    }
    return implementation->createDocument(XMLPlatformUtils::fgMemoryManager);
}

void XercesTreeOperations::FreeDocument(DOMDocument*& document) {
    ReleaseAndClear(document);
}

void XercesTreeOperations::FreeDocument(DOMNode*& document) {
    ReleaseAndClear(document);
}

DOMElement* XercesTreeOperations::AddElement(DOMNode* node, const MemberInfo& member) {
    const QName name = NameInScope(node, member);
    DOMElement* element =
        DocumentOf(node).createElementNS(XercesStringTemp(name.uri), XercesStringTemp(name.ToString()));
    node->appendChild(element);
    return element;
}

void XercesTreeOperations::RemoveElements(DOMNode* node, const MemberInfo& member) {
    MemberIterator matches = GetElements(&NodeToEdit(node), member);
    while (DOMNode* match = matches.CurrentNode()) {
        ++matches;
        node->removeChild(match);
    }
}

void XercesTreeOperations::RemoveElement(DOMNode* node, const MemberInfo& member, std::uint32_t index) {
    MemberIterator matches = GetElements(&NodeToEdit(node), member);
    while (index > 0 && matches.CurrentNode()) {
        ++matches;
        --index;
    }
    if (matches.CurrentNode()) {
        node->removeChild(matches.CurrentNode());
    }
}

void XercesTreeOperations::RemoveAttribute(DOMNode* node, const MemberInfo& member) {
    if (IsTextContent(member)) {
        RemoveElements(node, member);
    } else if (NodeToEdit(node).hasAttributes()) {
        node->getAttributes()->removeNamedItemNS(XercesStringTemp(member.namespaceURI),
                                                 XercesStringTemp(member.localName));
    }
}

void XercesTreeOperations::CopyAll(const DOMNode* source, DOMNode* target) {
    DOMDocument& document = DocumentOf(target);
    // A node copied into itself grows behind its last child.
    const DOMNode* last = source ? source->getLastChild() : nullptr;
    const DOMNode* child = last ? source->getFirstChild() : nullptr;
    while (child) {
        target->appendChild(ImportTree(document, child));
        child = child == last ? nullptr : child->getNextSibling();
    }
    const DOMNamedNodeMap* attributes = source ? source->getAttributes() : nullptr;
    const XMLSize_t count = attributes ? attributes->getLength() : 0;
    for (XMLSize_t i = 0; i < count; ++i) {
        DOMNode* copy = document.importNode(attributes->item(i), true);
        ElementOf(target).setAttributeNode(static_cast<DOMAttr*>(copy));
    }
}

void XercesTreeOperations::AddProcessingInstruction(DOMNode* node, const std::string& target,
                                                    const std::string& data) {
    DOMDocument& document = DocumentOf(node);
    node->appendChild(document.createProcessingInstruction(XercesStringTemp(target), XercesStringTemp(data)));
}

void XercesTreeOperations::SetValue(DOMNode* node, const std::string& value) {
    NodeToEdit(node).setNodeValue(XercesStringTemp(value));
}

void XercesTreeOperations::SetTextValue(DOMNode* node, const std::string& value) {
    ReplaceContent(node, XercesStringTemp(value));
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, const XMLCh* value) {
    const XMLCh* text = value ? value : xercesc::XMLUni::fgZeroLenString;
    if (IsTextContent(member)) {
        ReplaceContent(node, text);
        return;
    }
    DOMElement& element = ElementOf(node);
    QName name = NameInScope(node, member);
    if (name.prefix.empty() && !name.uri.empty()) {
        name.prefix = GetFreshPrefix(node, {}, name.uri);
    }
    DOMAttr* attribute =
        DocumentOf(node).createAttributeNS(XercesStringTemp(name.uri), XercesStringTemp(name.ToString()));
    attribute->setValue(text);
    element.getAttributes()->setNamedItemNS(attribute);
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, const std::string& value) {
    SetValue(node, member, static_cast<const XMLCh*>(XercesStringTemp(value)));
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, const DOMNode* source) {
    SetValue(node, member, GetTextValue(source));
}

void XercesTreeOperations::SetValue(DOMNode* node, const MemberInfo& member, const QName& value) {
    SetValue(node, member, BoundName(ElementOf(node), value));
}

void XercesTreeOperations::SetAttribute(DOMNode* node, const std::string& name,
                                        const std::string& namespaceURI, const std::string& value) {
    DOMElement& element = ElementOf(node);
    QName qualified(namespaceURI, name);
    if (!namespaceURI.empty() && name != "xmlns") {
        qualified.prefix = BoundPrefix(element, qualified);
    }
    element.setAttributeNS(XercesStringTemp(namespaceURI), XercesStringTemp(qualified.ToString()),
                           XercesStringTemp(value));
}

void XercesTreeOperations::SetAttribute(DOMNode* node, const std::string& name,
                                        const std::string& namespaceURI, const std::string& valueLocalName,
                                        const std::string& valueNamespace) {
    const QName qualified(valueNamespace, {}, valueLocalName);
    SetAttribute(node, name, namespaceURI, BoundName(ElementOf(node), qualified));
}
