#include "xmltree/tree_operations.h"

#include "runtime/exceptions.h"
#include "runtime/progress_lines.h"
#include "xmltree/document_parser.h"
#include "xmltree/transcode.h"
#ifdef XTTML_UNTRUSTED_XML
#include "xmltree/untrusted_parser.h"
#endif

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>

using tessera::DataSourceUnavailableException;
using xercesc::DOMDocument;
using xercesc::XMLPlatformUtils;

namespace {

#ifdef XTTML_UNTRUSTED_XML
using Parser = UntrustedParser;
#else
using Parser = DocumentParser;
#endif

/// A load from memory says nothing on its way.
struct SilentLoad {
    void Line(const char*) const {}
    std::string Failure(const std::string& message) const { return message; }
};

/// A load from a file reports every step on standard output and names the file in its failures.
struct ReportedLoad {
    void Line(const char* text) const { tessera::WriteLoadingLine(text); }
    std::string Failure(const std::string& message) const { return path + ": " + message; }

    const std::string& path;
};

template <class Report, class Parse>
DOMDocument* ParseDocument(const Report& report, Parse&& parse) {
    if (!XMLPlatformUtils::fgMemoryManager) {
        throw DataSourceUnavailableException(
            report.Failure("Xerces XML error while loading: The XML library is not initialised."));
    }
    Parser parser(nullptr, XMLPlatformUtils::fgMemoryManager);
    report.Line("parser Created OK");
    xercesc::DefaultHandler handler;
    report.Line("defaultHandler Created OK");
    parser.setErrorHandler(&handler);
    report.Line("setErrorHandler OK");
    parser.setDoNamespaces(true);
    report.Line("setDoNamespaces OK");
    parse(parser);
    report.Line("parse OK");
    DOMDocument* document = parser.adoptDocument();
    report.Line("adoptDocument OK");
    return document;
}

template <class Report, class Parse>
DOMDocument* Load(const Report& report, Parse&& parse) {
    try {
        return ParseDocument(report, parse);
    } catch (const xercesc::XMLException& error) {
        report.Line("XMLException catched");
        throw DataSourceUnavailableException(
            report.Failure("Xerces XML error while loading: " + XercesUnstringTemp(error.getMessage())));
    } catch (const xercesc::SAXException& error) {
        report.Line("SAXException catched");
        throw DataSourceUnavailableException(
            report.Failure("Xerces SAX error while loading: " + XercesUnstringTemp(error.getMessage())));
    } catch (const xercesc::DOMException&) {
        report.Line("DOMException catched");
        throw DataSourceUnavailableException(report.Failure("Xerces DOM error while loading"));
    }
}

DOMDocument* LoadFromMemory(const void* bytes, std::size_t size) {
    return Load(SilentLoad{}, [bytes, size](Parser& parser) {
        xercesc::MemBufInputSource source(static_cast<const XMLByte*>(bytes), size, "String");
        source.setCopyBufToStream(false); // the bytes outlast the parse
        parser.parse(source);
    });
}

} // namespace

DOMDocument* XercesTreeOperations::LoadDocument(const std::string& path) {
    tessera::WriteLoadingLine("XercesTreeOperations::LoadDocument called!");
    tessera::WriteLoadingLine("declare parser OK");
    return Load(ReportedLoad{path}, [&path](Parser& parser) { parser.parse(XercesStringTemp(path)); });
}

DOMDocument* XercesTreeOperations::LoadXml(const std::string& text) {
    return LoadFromMemory(text.data(), text.size());
}

DOMDocument* XercesTreeOperations::LoadFromBinary(const std::vector<unsigned char>& bytes) {
    return LoadFromMemory(bytes.data(), bytes.size());
}

DOMDocument* XercesTreeOperations::LoadFromBinary(const unsigned char* bytes, std::size_t size) {
    return LoadFromMemory(bytes, size);
}
