#include "xmltree/tree_operations.h"

#include "runtime/exceptions.h"
#include "runtime/progress_lines.h"
#include "runtime/utf8.h"
#include "xmltree/document_parser.h"
#include "xmltree/transcode.h"
#include "xmltree/untrusted_parser.h"
#include "xmltree/xml_library.h"

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLExceptMsgs.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <utility>

#include <sys/stat.h>
#include <unistd.h>

using tessera::DataSourceUnavailableException;
using xercesc::DOMDocument;
using xercesc::XMLPlatformUtils;

namespace {

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

/// Knows the errors that the XML library reports from those that it is stopped by.
class FatalErrors : public xercesc::DefaultHandler {
public:
    void fatalError(const xercesc::SAXParseException& error) override {
        haveComeUp = true;
        DefaultHandler::fatalError(error);
    }

    bool haveComeUp = false;
};

template <class Parser, class Report, class Parse>
DOMDocument* ParseDocument(const Report& report, FatalErrors& handler, ParseMemory& memory, Parse&& parse) {
    Parser parser(memory);
    report.Line("parser Created OK");
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

std::string Utf8(const XMLCh* text) {
    return text ? tessera::Utf8FromUtf16(Units(text)) : std::string();
}

/// Where a fatal error has no line, the document was not even opened.
LoadFault::Kind KindOf(const FatalErrors& handler, std::uint64_t line) {
    if (!handler.haveComeUp) {
        return LoadFault::REFUSED;
    }
    return line == 0 ? LoadFault::UNREADABLE : LoadFault::MALFORMED;
}

LoadFault FaultOf(const xercesc::SAXException& error, const FatalErrors& handler) {
    const auto* const place = dynamic_cast<const xercesc::SAXParseException*>(&error);
    const std::uint64_t line = place ? place->getLineNumber() : 0;
    return {KindOf(handler, line), Utf8(error.getMessage()), line, place ? place->getColumnNumber() : 0};
}

void Tell(const LoadOptions& options, LoadFault fault) {
    if (options.fault) {
        *options.fault = std::move(fault);
    }
}

template <class Report, class Parse>
DOMDocument* Load(const Report& report, const LoadOptions& options, Parse&& parse) {
    if (!xml_library::IsInitialised()) {
        throw DataSourceUnavailableException(
            report.Failure("Xerces XML error while loading: The XML library is not initialised."));
    }
    FatalErrors handler;
    ParseMemory memory; // what is caught here lies in it
    try {
        return options.isUntrusted ? ParseDocument<UntrustedParser>(report, handler, memory, parse)
                                   : ParseDocument<DocumentParser>(report, handler, memory, parse);
    } catch (const xercesc::XMLException& error) {
        report.Line("XMLException catched");
        Tell(options, {LoadFault::UNREADABLE, Utf8(error.getMessage())});
        throw DataSourceUnavailableException(
            report.Failure("Xerces XML error while loading: " + XercesUnstringTemp(error.getMessage())));
    } catch (const xercesc::SAXException& error) {
        report.Line("SAXException catched");
        Tell(options, FaultOf(error, handler));
        throw DataSourceUnavailableException(
            report.Failure("Xerces SAX error while loading: " + XercesUnstringTemp(error.getMessage())));
    } catch (const xercesc::DOMException& error) {
        report.Line("DOMException catched");
        Tell(options, {LoadFault::MALFORMED, Utf8(error.getMessage())});
        throw DataSourceUnavailableException(report.Failure("Xerces DOM error while loading"));
    }
}

/// Reports a directory as the XML library does once it has opened one, which costs memory each time.
template <class Parser>
void RefuseDirectory(Parser& parser, const std::string& path) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) || access(path.c_str(), R_OK) != 0) {
        return;
    }
    const xercesc::XMLPlatformUtilsException error(__FILE__, __LINE__,
                                                   xercesc::XMLExcepts::File_CouldNotReadFromFile,
                                                   XMLPlatformUtils::fgMemoryManager);
    parser.error(xercesc::XMLErrs::XMLException_Fatal, xercesc::XMLUni::fgXMLErrDomain,
                 xercesc::XMLErrorReporter::ErrType_Fatal, error.getMessage(), XercesStringTemp(path),
                 nullptr, 0, 0);
}

DOMDocument* LoadFromMemory(const void* bytes, std::size_t size, const LoadOptions& options) {
    return Load(SilentLoad{}, options, [bytes, size](auto& parser) {
        xercesc::MemBufInputSource source(static_cast<const XMLByte*>(bytes), size, "String");
        source.setCopyBufToStream(false); // the bytes outlast the parse
        parser.parse(source);
    });
}

} // namespace

const bool LoadOptions::UNTRUSTED_BY_DEFAULT = XTTML_UNTRUSTED_BY_DEFAULT != 0;

DOMDocument* XercesTreeOperations::LoadDocument(const std::string& path, const LoadOptions& options) {
    tessera::WriteLoadingLine("XercesTreeOperations::LoadDocument called!");
    tessera::WriteLoadingLine("declare parser OK");
    return Load(ReportedLoad{path}, options, [&path](auto& parser) {
        RefuseDirectory(parser, path);
        parser.parse(XercesStringTemp(path));
    });
}

DOMDocument* XercesTreeOperations::LoadXml(const std::string& text, const LoadOptions& options) {
    return LoadFromMemory(text.data(), text.size(), options);
}

DOMDocument* XercesTreeOperations::LoadFromBinary(const std::vector<unsigned char>& bytes,
                                                  const LoadOptions& options) {
    return LoadFromMemory(bytes.data(), bytes.size(), options);
}

DOMDocument* XercesTreeOperations::LoadFromBinary(const unsigned char* bytes, std::size_t size,
                                                  const LoadOptions& options) {
    return LoadFromMemory(bytes, size, options);
}
