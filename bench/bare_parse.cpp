#include "bench/bare_parse.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>

void BareParse(const std::string& text) {
    xercesc::DOMDocument* document = nullptr;
    {
        xercesc::DefaultHandler handler;
        xercesc::XercesDOMParser parser;
        parser.setErrorHandler(&handler);
        parser.setDoNamespaces(true);
        const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                                "String");
        parser.parse(source);
        document = parser.adoptDocument();
    }
    document->release();
}
