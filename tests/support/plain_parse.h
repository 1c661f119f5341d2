// What the XML library makes of bytes when it is left to itself.
#ifndef XTTML_TESTS_SUPPORT_PLAIN_PARSE_H
#define XTTML_TESTS_SUPPORT_PLAIN_PARSE_H

#include "xmltree/transcode.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLString.hpp>

#include <string>

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

    /// Whether another document says the same, in its XML declaration as well.
    bool IsSame(const xercesc::DOMDocument& other) {
        const xercesc::DOMDocument& own = *parser.getDocument();
        return own.isEqualNode(&other) &&
               xercesc::XMLString::equals(own.getXmlVersion(), other.getXmlVersion()) &&
               xercesc::XMLString::equals(own.getXmlEncoding(), other.getXmlEncoding()) &&
               own.getXmlStandalone() == other.getXmlStandalone();
    }

private:
    xercesc::XercesDOMParser parser;
    xercesc::DefaultHandler handler;
    std::string message;
};

#endif
