#include "tools/xttml/document/placed_document.h"

#include "tools/xttml/document/unusable_file.h"
#include "tools/xttml/document/xml_text.h"
#include "tools/xttml/text/text_encoding.h"

#include <utility>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>

using namespace xercesc;

namespace xttml {

namespace {

/// Notes where elements begin: where the XML library stands when it tells of one its start tag has ended, so
/// that it began where what came before it ended.
class PlacingParser : public XercesDOMParser {
public:
    std::vector<PlacedElement> TakeElements() { return std::move(elements_); }

    void startElement(const XMLElementDecl& declaration, unsigned int namespaceId, const XMLCh* prefix,
                      const RefVectorOf<XMLAttr>& attributes, XMLSize_t count, bool isEmpty,
                      bool isRoot) override {
        const Place place = end_;
        XercesDOMParser::startElement(declaration, namespaceId, prefix, attributes, count, isEmpty, isRoot);
        elements_.push_back({fCurrentNode, place});
        NoteEnd();
    }
    void endElement(const XMLElementDecl& declaration, unsigned int namespaceId, bool isRoot,
                    const XMLCh* prefix) override {
        XercesDOMParser::endElement(declaration, namespaceId, isRoot, prefix);
        NoteEnd();
    }
    void docCharacters(const XMLCh* characters, XMLSize_t length, bool isCdata) override {
        XercesDOMParser::docCharacters(characters, length, isCdata);
        NoteEnd();
    }
    void docComment(const XMLCh* comment) override {
        XercesDOMParser::docComment(comment);
        NoteEnd();
    }
    void docPI(const XMLCh* target, const XMLCh* data) override {
        XercesDOMParser::docPI(target, data);
        NoteEnd();
    }
    void ignorableWhitespace(const XMLCh* characters, XMLSize_t length, bool isCdata) override {
        XercesDOMParser::ignorableWhitespace(characters, length, isCdata);
        NoteEnd();
    }
    void endEntityReference(const XMLEntityDecl& entity) override {
        XercesDOMParser::endEntityReference(entity);
        NoteEnd();
    }
    void XMLDecl(const XMLCh* version, const XMLCh* encoding, const XMLCh* standalone,
                 const XMLCh* actualEncoding) override {
        XercesDOMParser::XMLDecl(version, encoding, standalone, actualEncoding);
        NoteEnd();
    }

private:
    void NoteEnd() {
        const Locator& locator = *getScanner()->getLocator();
        end_ = {locator.getLineNumber(), locator.getColumnNumber()};
    }

    Place end_ = {1, 1}; // of what the XML library told of last
    std::vector<PlacedElement> elements_;
};

void Parse(const Source& source, PlacingParser& parser) {
    DefaultHandler throwing;
    parser.setErrorHandler(&throwing);
    parser.setDoNamespaces(true);
    if (!source.Path().empty()) {
        parser.parse(source.Path().c_str());
        return;
    }
    MemBufInputSource bytes(reinterpret_cast<const XMLByte*>(source.Bytes().data()), source.Bytes().size(),
                            "");
    bytes.setCopyBufToStream(false);
    parser.parse(bytes);
}

} // namespace

PlacedDocument::PlacedDocument(const Source& source) : root_(nullptr) {
    PlacingParser parser;
    try {
        Parse(source, parser);
    } catch (const SAXParseException& error) { // not what it was when the library loaded it
        throw UnusableFile(source.Name(), error.getLineNumber(), error.getColumnNumber(),
                           Utf8FromUtf16(Units(error.getMessage())));
    }
    elements_ = parser.TakeElements();
    root_ = ttaf1_dfxp::tt::Cttaf1_dfxp(parser.adoptDocument());
}

} // namespace xttml
