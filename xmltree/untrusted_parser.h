// The DOM parser for documents from the network, whoever wrote them: it refuses what costs a player its
// files, its network, its time or its memory.
#ifndef XTTML_XMLTREE_UNTRUSTED_PARSER_H
#define XTTML_XMLTREE_UNTRUSTED_PARSER_H

#include "xmltree/document_parser.h"

#include <xercesc/sax/InputSource.hpp>

#include <cstddef>
#include <functional>
#include <set>
#include <string>

/// Refuses, by a xercesc::SAXException, with the place where it is known, without asking the error handler:
/// - any document type declaration, before anything that it names is read: no entities, nothing external;
/// - more than XTTML_UNTRUSTED_MAX_BYTES bytes, before they are parsed;
/// - elements nested more than XTTML_UNTRUSTED_MAX_DEPTH deep;
/// - elements with more attributes, values of more characters and documents with more names than any TTML
///   document needs: the XML library's cost grows with the square of the first and the last.
class UntrustedParser : public DocumentParser {
public:
    using DocumentParser::DocumentParser;

    void parse(const xercesc::InputSource& source);
    /// @param path a path of the local file system, never a URL
    void parse(const XMLCh* path);

    void doctypeDecl(const xercesc::DTDElementDecl& element, const XMLCh* publicId, const XMLCh* systemId,
                     bool hasInternalSubset, bool hasExternalSubset) override;
    void startElement(const xercesc::XMLElementDecl& element, unsigned int namespaceId, const XMLCh* prefix,
                      const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes, XMLSize_t attributeCount,
                      bool isEmpty, bool isRoot) override;
    void endElement(const xercesc::XMLElementDecl& element, unsigned int namespaceId, bool isRoot,
                    const XMLCh* prefix) override;

private:
    [[noreturn]] void Refuse(const std::string& reason) const;
    template <class Count>
    void RequireAtMost(Count count, Count limit, const char* before, const char* after) const;
    void CountName(const XMLCh* name);

    std::size_t depth_ = 0;
    std::set<std::basic_string<XMLCh>, std::less<>> names_; // qualified names and namespaces
};

#endif
