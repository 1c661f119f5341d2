// What the XML library makes of bytes when it is left to itself.
#ifndef XTTML_TESTS_SUPPORT_PLAIN_PARSE_H
#define XTTML_TESTS_SUPPORT_PLAIN_PARSE_H

#include "xmltree/transcode.h"

#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>

#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

/// A document and the parser that owns it. The XML library must be initialised.
class PlainParse {
public:
    explicit PlainParse(const std::string& bytes) {
        parser.setErrorHandler(&handler);
        parser.setDoNamespaces(true);
        try {
            parser.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(bytes.data()),
                                                    bytes.size(), "String"));
        } catch (const xercesc::SAXException& error) {
            message = "Xerces SAX error while loading: " + XercesUnstringTemp(error.getMessage());
        } catch (const xercesc::XMLException& error) {
            message = "Xerces XML error while loading: " + XercesUnstringTemp(error.getMessage());
        } catch (const xercesc::DOMException&) {
            message = "Xerces DOM error while loading";
        }
    }

    /// What a load says of the bytes; empty when they are a document.
    const std::string& Message() const { return message; }

    /// Whether another document is the same tree, node for node, and says the same in its XML declaration.
    bool IsSame(const xercesc::DOMDocument& other) {
        const xercesc::DOMDocument& own = *parser.getDocument();
        return IsSameTree(own, other) && own.isEqualNode(&other) &&
               xercesc::XMLString::equals(own.getXmlVersion(), other.getXmlVersion()) &&
               xercesc::XMLString::equals(own.getXmlEncoding(), other.getXmlEncoding()) &&
               own.getXmlStandalone() == other.getXmlStandalone();
    }

    /// Whether a copy of another document is the same as a copy of this one.
    bool HasSameCopy(const xercesc::DOMDocument& other) {
        xercesc::DOMNode* const ownCopy = parser.getDocument()->cloneNode(true);
        xercesc::DOMNode* const otherCopy = other.cloneNode(true);
        const bool isSame = IsSameTree(*ownCopy, *otherCopy);
        ownCopy->release();
        otherCopy->release();
        return isSame;
    }

private:
    using Node = const xercesc::DOMNode;

    static bool IsSameTree(Node& own, Node& other) {
        std::vector<std::pair<Node*, Node*>> open = {{&own, &other}};
        while (!open.empty()) {
            const auto [left, right] = open.back();
            open.pop_back();
            if (!IsSameNode(*left, *right) || !OpenChildren(*left, *right, open) ||
                !OpenAttributes(*left, *right, open))
                return false;
        }
        return true;
    }

    /// Whether two nodes are alike but for what is inside them.
    static bool IsSameNode(Node& own, Node& other) {
        const auto has = [&](const XMLCh* (Node::*text)() const) {
            return xercesc::XMLString::equals((own.*text)(), (other.*text)());
        };
        const auto* attribute = dynamic_cast<const xercesc::DOMAttr*>(&own);
        return typeid(own) == typeid(other) && has(&Node::getNodeName) && has(&Node::getNodeValue) &&
               has(&Node::getNamespaceURI) && has(&Node::getPrefix) && has(&Node::getLocalName) &&
               (!attribute || IsSameAttribute(*attribute, static_cast<const xercesc::DOMAttr&>(other)));
    }

    static bool IsSameAttribute(const xercesc::DOMAttr& own, const xercesc::DOMAttr& other) {
        return own.getSpecified() == other.getSpecified() && own.isId() == other.isId();
    }

    /// Opens the children; false when their number differs or when they do not know their parent, their
    /// document and each other.
    static bool OpenChildren(Node& own, Node& other, std::vector<std::pair<Node*, Node*>>& open) {
        Node* last = nullptr;
        Node* ownChild = own.getFirstChild();
        for (Node* child = other.getFirstChild(); child; child = child->getNextSibling()) {
            if (!ownChild || child->getParentNode() != &other || child->getPreviousSibling() != last ||
                child->getOwnerDocument() != DocumentOf(other))
                return false;
            open.emplace_back(ownChild, child);
            ownChild = ownChild->getNextSibling();
            last = child;
        }
        return !ownChild && other.getLastChild() == last;
    }

    static Node* DocumentOf(Node& node) {
        return node.getNodeType() == Node::DOCUMENT_NODE ? &node : node.getOwnerDocument();
    }

    /// Opens the attributes, which have to stand in the same order.
    static bool OpenAttributes(Node& own, Node& other, std::vector<std::pair<Node*, Node*>>& open) {
        const xercesc::DOMNamedNodeMap* const ownMap = own.getAttributes();
        const xercesc::DOMNamedNodeMap* const map = other.getAttributes();
        if (!map || !ownMap)
            return map == ownMap;
        for (XMLSize_t i = 0; i < map->getLength(); ++i) {
            const auto& attribute = static_cast<const xercesc::DOMAttr&>(*map->item(i));
            if (i >= ownMap->getLength() || attribute.getOwnerElement() != &other)
                return false;
            open.emplace_back(ownMap->item(i), &attribute);
        }
        return map->getLength() == ownMap->getLength();
    }

    xercesc::XercesDOMParser parser;
    xercesc::DefaultHandler handler;
    std::string message;
};

#endif
