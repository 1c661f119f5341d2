// What the XML library makes of bytes when it is left to itself.
#ifndef XTTML_TESTS_SUPPORT_PLAIN_PARSE_H
#define XTTML_TESTS_SUPPORT_PLAIN_PARSE_H

#include "xmltree/transcode.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>

#include <string>
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

    /// Whether another document says the same, in its XML declaration as well, and is a tree.
    bool IsSame(const xercesc::DOMDocument& other) {
        const xercesc::DOMDocument& own = *parser.getDocument();
        return IsLinked(other) && own.isEqualNode(&other) &&
               xercesc::XMLString::equals(own.getXmlVersion(), other.getXmlVersion()) &&
               xercesc::XMLString::equals(own.getXmlEncoding(), other.getXmlEncoding()) &&
               own.getXmlStandalone() == other.getXmlStandalone();
    }

private:
    /// Whether all children inside a node, those of attributes as well, know their parent and each other.
    static bool IsLinked(const xercesc::DOMNode& top) {
        std::vector<const xercesc::DOMNode*> open = {&top};
        while (!open.empty()) {
            const xercesc::DOMNode& parent = *open.back();
            open.pop_back();
            const xercesc::DOMNode* last = nullptr;
            for (const auto* child = parent.getFirstChild(); child; child = child->getNextSibling()) {
                if (child->getParentNode() != &parent || child->getPreviousSibling() != last)
                    return false;
                last = child;
                open.push_back(child);
            }
            if (parent.getLastChild() != last)
                return false;
            const xercesc::DOMNamedNodeMap* attributes = parent.getAttributes();
            for (XMLSize_t i = 0; attributes && i < attributes->getLength(); ++i)
                open.push_back(attributes->item(i));
        }
        return true;
    }

    xercesc::XercesDOMParser parser;
    xercesc::DefaultHandler handler;
    std::string message;
};

#endif
