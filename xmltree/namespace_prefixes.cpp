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

constexpr char XML_PREFIX[] = "xml";
constexpr char XMLNS_PREFIX[] = "xmlns";

bool IsElement(const DOMNode* node) {
    return node && node->getNodeType() == DOMNode::ELEMENT_NODE;
}

const DOMNode* FindDeclaration(const DOMNode* element, const char* prefix) {
    return XercesTreeOperations::FindAttribute(element, XMLNS_NAMESPACE, prefix);
}

/// Visits the attributes of a node, if it has any.
template <class Visit>
void ForEachAttribute(const DOMNode* node, Visit&& visit) {
    const DOMNamedNodeMap* attributes = node->getAttributes();
    const XMLSize_t count = attributes ? attributes->getLength() : 0;
    for (XMLSize_t i = 0; i < count; ++i) {
        visit(attributes->item(i));
    }
}

bool IsPrefixDeclaration(const DOMNode* attribute) {
    return XercesTreeOperations::IsEqualString(attribute->getPrefix(), XMLNS_PREFIX);
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
        ForEachAttribute(element, [this](const DOMNode* attribute) {
            if (IsPrefixDeclaration(attribute)) {
                Take(attribute);
            }
        });
    }

    std::string OutermostPrefix() const {
        return XercesUnstringTemp(declarations.empty() ? nullptr : declarations.front()->getLocalName());
    }

private:
    void Take(const DOMNode* declaration) {
        if (IsTranscoded(declaration->getNodeValue(), namespaceURI.c_str())) {
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

/// What becomes of a prefix when it is to stand for a namespace; the greater one prevails.
enum class Standing { FREE, BOUND, TAKEN };

/// The standing of a prefix by one element alone. A name counts like a declaration: it keeps its namespace
/// whatever is declared, and the serialiser declares what is missing.
Standing StandingOn(const DOMNode* element, const std::string& prefix, const std::string& namespaceURI) {
    Standing standing = Standing::FREE;
    const auto take = [&](const XMLCh* used, const XMLCh* boundTo) {
        if (IsTranscoded(used, prefix.c_str())) {
            const bool isSame = IsTranscoded(boundTo, namespaceURI.c_str());
            standing = std::max(standing, isSame ? Standing::BOUND : Standing::TAKEN);
        }
    };
    take(element->getPrefix(), element->getNamespaceURI());
    ForEachAttribute(element, [&take](const DOMNode* attribute) {
        take(attribute->getPrefix(), attribute->getNamespaceURI());
        if (IsPrefixDeclaration(attribute)) {
            take(attribute->getLocalName(), attribute->getNodeValue());
        }
    });
    return standing;
}

/// The standing of a prefix by the nearest element that uses it.
Standing StandingAt(const DOMNode* node, const std::string& prefix, const std::string& namespaceURI) {
    if (prefix == XML_PREFIX || prefix == XMLNS_PREFIX) {
        const bool isOwn = namespaceURI == (prefix == XML_PREFIX ? XML_NAMESPACE : XMLNS_NAMESPACE);
        return isOwn ? Standing::BOUND : Standing::TAKEN;
    }
    Standing standing = Standing::FREE;
    for (; node && standing == Standing::FREE; node = node->getParentNode()) {
        standing = IsElement(node) ? StandingOn(node, prefix, namespaceURI) : Standing::FREE;
    }
    return standing;
}

/// The declaration of a prefix that has come out of the document, so that it is compared as it was narrowed.
const DOMNode* FindNarrowedDeclaration(const DOMNode* element, const std::string& prefix) {
    const DOMNode* found = nullptr;
    ForEachAttribute(element, [&](const DOMNode* attribute) {
        if (XercesTreeOperations::IsEqualString(attribute->getNamespaceURI(), XMLNS_NAMESPACE) &&
            XercesTreeOperations::IsEqualString(attribute->getLocalName(), prefix.c_str())) {
            found = attribute;
        }
    });
    return found;
}

} // namespace

std::string FindPrefixForNamespace(const DOMNode* node, const std::string& namespaceURI) {
    if (namespaceURI == XML_NAMESPACE) {
        return XML_PREFIX;
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

std::string FindUsablePrefix(const DOMNode* node, const std::string& namespaceURI) {
    const std::string prefix = FindPrefixForNamespace(node, namespaceURI);
    const bool isAscii = std::all_of(prefix.begin(), prefix.end(),
                                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    const bool isUsable = isAscii && StandingAt(node, prefix, namespaceURI) == Standing::BOUND;
    return isUsable ? prefix : std::string();
}

std::string GetFreshPrefix(const DOMNode* node, const std::string& base, const std::string& namespaceURI) {
    const bool isReserved = base == XML_PREFIX || base == XMLNS_PREFIX;
    CandidatePrefixes candidates(isReserved ? std::string() : base);
    while (StandingAt(node, candidates.Current(), namespaceURI) == Standing::TAKEN) {
        candidates.Next();
    }
    return candidates.Current();
}

std::string FindNamespaceForPrefix(const DOMNode* node, const std::string& prefix) {
    for (node = CarrierOf(node); IsElement(node); node = node->getParentNode()) {
        if (const DOMNode* declaration = FindNarrowedDeclaration(node, prefix)) {
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
