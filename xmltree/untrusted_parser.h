// The DOM parser for documents from the network, whoever wrote them: it refuses what costs a player its
// files, its network, its time or its memory.
#ifndef XTTML_XMLTREE_UNTRUSTED_PARSER_H
#define XTTML_XMLTREE_UNTRUSTED_PARSER_H

#include "xmltree/document_parser.h"
#include "xmltree/untrusted_limits.h"

#include <xercesc/sax/InputSource.hpp>

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

/// Refuses, by a xercesc::SAXException, with the place where it is known, without asking the error handler:
/// - any document type declaration, before anything that it names is read: no entities, nothing external;
/// - more bytes than untrusted::BYTES, before they are parsed;
/// - more of anything else than untrusted_limits.h allows, when it is met.
class UntrustedParser : public DocumentParser {
public:
    using DocumentParser::DocumentParser;

    void parse(const xercesc::InputSource& source);
    /// @param path a path of the local file system, never a URL
    void parse(const XMLCh* path);

    void startDocument() override;
    void doctypeDecl(const xercesc::DTDElementDecl& element, const XMLCh* publicId, const XMLCh* systemId,
                     bool hasInternalSubset, bool hasExternalSubset) override;
    void docCharacters(const XMLCh* characters, XMLSize_t length, bool isCdata) override;
    void docComment(const XMLCh* comment) override;
    void docPI(const XMLCh* target, const XMLCh* data) override;
    void startElement(const xercesc::XMLElementDecl& element, unsigned int namespaceId, const XMLCh* prefix,
                      const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes, XMLSize_t attributeCount,
                      bool isEmpty, bool isRoot) override;
    void endElement(const xercesc::XMLElementDecl& element, unsigned int namespaceId, bool isRoot,
                    const XMLCh* prefix) override;
    /// Told by the scanner of each error.
    void error(unsigned int code, const XMLCh* domain, xercesc::XMLErrorReporter::ErrTypes type,
               const XMLCh* text, const XMLCh* systemId, const XMLCh* publicId, XMLFileLoc line,
               XMLFileLoc column) override;

private:
    [[noreturn]] void Refuse(const std::string& reason) const;
    void Require(std::uint64_t count, const untrusted::Limit& limit) const;
    void RequireLength(const XMLCh* text, const untrusted::Limit& limit) const;
    void RefuseLargeDocument() const;
    void CountNodes(std::uint64_t count);
    void CountNamespaces();
    void CountElementName(const xercesc::XMLElementDecl& element);
    void CheckAttribute(const xercesc::XMLAttr& attribute);
    bool IsDeclaration(const xercesc::XMLAttr& attribute) const;

    bool isTooLarge_ = false; // its bytes end before its end
    std::uint64_t nodes_ = 0;
    std::vector<unsigned int> declarations_; // in scope, by level
    unsigned int ownNamespaces_ = 0;         // the scanner's, which no document declares
    unsigned int namespaces_ = 0;            // with those of the document
    unsigned int stylingNamespace_ = 0;      // 0: not declared
    XMLSize_t elementNames_ = 0;
    std::set<std::basic_string<XMLCh>, std::less<>> attributeNames_; // the scanner has no numbers for these
};

#endif
