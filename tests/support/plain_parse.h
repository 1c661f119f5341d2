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
        return Described(own) == Described(other) && own.isEqualNode(&other) &&
               xercesc::XMLString::equals(own.getXmlVersion(), other.getXmlVersion()) &&
               xercesc::XMLString::equals(own.getXmlEncoding(), other.getXmlEncoding()) &&
               own.getXmlStandalone() == other.getXmlStandalone();
    }

    /// Whether a copy of another document is the same as a copy of this one.
    bool HasSameCopy(const xercesc::DOMDocument& other) {
        return DescribedCopy(*parser.getDocument()) == DescribedCopy(other);
    }

private:
    using Node = const xercesc::DOMNode;

    static std::string DescribedCopy(Node& node) {
        xercesc::DOMNode* const copy = node.cloneNode(true);
        std::string description = Described(*copy);
        copy->release();
        return description;
    }

    /// A node and what is inside it, each with its class, what it says and how many it holds.
    static std::string Described(Node& root) {
        std::string description;
        std::vector<Node*> open = {&root};
        while (!open.empty()) {
            Node& node = *open.back();
            open.pop_back();
            description += typeid(node).name();
            for (const XMLCh* text : {node.getNodeName(), node.getNodeValue(), node.getNamespaceURI(),
                                      node.getPrefix(), node.getLocalName()}) {
                description.append(reinterpret_cast<const char*>(text),
                                   sizeof(XMLCh) * xercesc::XMLString::stringLen(text));
                description += '\n';
            }
            if (const auto* attribute = dynamic_cast<const xercesc::DOMAttr*>(&node))
                description += std::to_string(attribute->getSpecified()) + std::to_string(attribute->isId());
            description += std::to_string(OpenChildren(node, open)) + ' ';
            description += std::to_string(OpenAttributes(node, open)) + ' ';
        }
        return description;
    }

    /// How many there are; -1 when they do not know their parent, their document and each other.
    static int OpenChildren(Node& node, std::vector<Node*>& open) {
        int count = 0;
        Node* last = nullptr;
        Node* const document = node.getOwnerDocument() ? node.getOwnerDocument() : &node;
        for (Node* child = node.getFirstChild(); child; child = child->getNextSibling()) {
            if (child->getParentNode() != &node || child->getPreviousSibling() != last ||
                child->getOwnerDocument() != document)
                return -1;
            open.push_back(child);
            last = child;
            ++count;
        }
        return node.getLastChild() == last ? count : -1;
    }

    /// How many there are; -1 when they do not know their element.
    static int OpenAttributes(Node& node, std::vector<Node*>& open) {
        const xercesc::DOMNamedNodeMap* const map = node.getAttributes();
        const XMLSize_t count = map ? map->getLength() : 0;
        for (XMLSize_t i = 0; i < count; ++i) {
            if (static_cast<const xercesc::DOMAttr*>(map->item(i))->getOwnerElement() != &node)
                return -1;
            open.push_back(map->item(i));
        }
        return static_cast<int>(count);
    }

    xercesc::XercesDOMParser parser;
    xercesc::DefaultHandler handler;
    std::string message;
};

#endif
