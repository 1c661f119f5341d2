#include "xmltree/namespace_prefixes.h"

#include "xmltree/namespace_names.h"
#include "xmltree/transcode.h"
#include "xmltree/tree_operations.h"

#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/util/XMLString.hpp>

#include <algorithm>
#include <vector>

using xercesc::DOMAttr;
using xercesc::DOMDocument;
using xercesc::DOMNamedNodeMap;
using xercesc::DOMNode;
using xercesc::XMLString;

namespace {

constexpr char XMLNS_PREFIX[] = "xmlns";

bool IsElement(const DOMNode* node) {
    return node && node->getNodeType() == DOMNode::ELEMENT_NODE;
}

const DOMNode* FindDeclaration(const DOMNode* element, const char* prefix) {
    return XercesTreeOperations::FindAttribute(element, XMLNS_NAMESPACE, prefix);
}

/// The element that carries an attribute; any other node itself.
const DOMNode* CarrierOf(const DOMNode* node) {
    if (node && node->getNodeType() == DOMNode::ATTRIBUTE_NODE) {
        return static_cast<const DOMAttr*>(node)->getOwnerElement();
    }
    return node;
}

const DOMNode* NearestElement(const DOMNode* node) {
    while (node && !IsElement(node)) {
        node = node->getParentNode();
    }
    return node;
}

/// The element whose scope a node is in, after DOM Level 3 Core, B.4 (namespace URI lookup).
const DOMNode* ElementInScope(const DOMNode* node) {
    if (node && node->getNodeType() == DOMNode::DOCUMENT_NODE) {
        return static_cast<const DOMDocument*>(node)->getDocumentElement();
    }
    return NearestElement(CarrierOf(node));
}

/// The elements from the outermost one down to a node, the node included.
std::vector<const DOMNode*> ElementsDownTo(const DOMNode* node) {
    std::vector<const DOMNode*> elements;
    for (; node; node = node->getParentNode()) {
        if (IsElement(node)) {
            elements.push_back(node);
        }
    }
    std::reverse(elements.begin(), elements.end());
    return elements;
}

/// Prefix declarations that bind one namespace and have not been rebound so far, outermost first.
class BoundDeclarations {
public:
    explicit BoundDeclarations(const std::string& sought) : namespaceURI(sought) {}

    void Enter(const DOMNode* element) {
        const DOMNamedNodeMap* attributes = element->getAttributes();
        for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
            const DOMNode* attribute = attributes->item(i);
            if (XercesTreeOperations::IsEqualString(attribute->getPrefix(), XMLNS_PREFIX)) {
                Take(attribute);
            }
        }
    }

    std::string OutermostPrefix() const {
        return XercesUnstringTemp(declarations.empty() ? nullptr : declarations.front()->getLocalName());
    }

private:
    void Take(const DOMNode* declaration) {
        if (XercesTreeOperations::IsEqualString(declaration->getNodeValue(), namespaceURI.c_str())) {
            declarations.push_back(declaration);
            return;
        }
        const auto isRebound = [declaration](const DOMNode* outer) {
            return XMLString::equals(outer->getLocalName(), declaration->getLocalName());
        };
        declarations.erase(std::remove_if(declarations.begin(), declarations.end(), isRebound),
                           declarations.end());
    }

    const std::string& namespaceURI;
    std::vector<const DOMNode*> declarations;
};

/// Candidates for a new prefix: base, base1, base2 ...; n0, n1, n2 ... for an empty base.
class CandidatePrefixes {
public:
    explicit CandidatePrefixes(const std::string& base)
        : stem(base.empty() ? "n" : base), candidate(base.empty() ? "n0" : base) {}

    const std::string& Current() const { return candidate; }
    void Next() { candidate = stem + std::to_string(++number); }

private:
    std::string stem;
    std::string candidate;
    unsigned int number = 0;
};

bool IsDeclaredInScope(const DOMNode* node, const std::string& prefix) {
    while (IsElement(node) && !FindDeclaration(node, prefix.c_str())) {
        node = node->getParentNode();
    }
    return IsElement(node);
}

/// Whether an attribute of the element has the prefix for another namespace, declared or not.
bool IsUsedForAnother(const DOMNode* element, const std::string& prefix, const std::string& namespaceURI) {
    const DOMNamedNodeMap* attributes = element->getAttributes();
    const XMLSize_t count = attributes ? attributes->getLength() : 0;
    for (XMLSize_t i = 0; i < count; ++i) {
        const DOMNode* attribute = attributes->item(i);
        if (XercesTreeOperations::IsEqualString(attribute->getPrefix(), prefix.c_str()) &&
            !XercesTreeOperations::IsEqualString(attribute->getNamespaceURI(), namespaceURI.c_str())) {
            return true;
        }
    }
    return false;
}

} // namespace

std::string FindPrefixForNamespace(const DOMNode* node, const std::string& namespaceURI) {
    if (namespaceURI == XML_NAMESPACE) {
        return "xml";
    }
    if (namespaceURI == XMLNS_NAMESPACE) {
        return XMLNS_PREFIX;
    }
    BoundDeclarations declarations(namespaceURI);
    for (const DOMNode* element : ElementsDownTo(node)) {
        declarations.Enter(element);
    }
    return declarations.OutermostPrefix();
}

std::string GetUnusedPrefix(const DOMNode* node, const std::string& base) {
    CandidatePrefixes candidates(base);
    while (IsElement(node)) {
        if (FindDeclaration(node, candidates.Current().c_str())) {
            candidates.Next();
        } else {
            node = node->getParentNode();
        }
    }
    return node ? candidates.Current() : std::string();
}

std::string GetFreshPrefix(const DOMNode* node, const std::string& base, const std::string& namespaceURI) {
    CandidatePrefixes candidates(base);
    while (IsDeclaredInScope(node, candidates.Current()) ||
           IsUsedForAnother(node, candidates.Current(), namespaceURI)) {
        candidates.Next();
    }
    return candidates.Current();
}

std::string FindNamespaceForPrefix(const DOMNode* node, const std::string& prefix) {
    for (node = CarrierOf(node); IsElement(node); node = node->getParentNode()) {
        if (const DOMNode* declaration = FindDeclaration(node, prefix.c_str())) {
            return XercesTreeOperations::GetTextValue(declaration);
        }
    }
    return {};
}

// DOMNode::lookupNamespaceURI calls itself for every ancestor; a deep document would exhaust the stack.
std::string FindDefaultNamespace(const DOMNode* node) {
    for (node = ElementInScope(node); node; node = NearestElement(node->getParentNode())) {
        if (node->getNamespaceURI() && !node->getPrefix()) {
            return XercesUnstringTemp(node->getNamespaceURI());
        }
        if (const DOMNode* declaration = FindDeclaration(node, XMLNS_PREFIX)) {
            return XercesTreeOperations::GetTextValue(declaration);
        }
    }
    return {};
}
