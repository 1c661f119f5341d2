// The DOM parser of every load. It makes the tree that the XML library makes by itself, faster.
#ifndef XTTML_XMLTREE_DOCUMENT_PARSER_H
#define XTTML_XMLTREE_DOCUMENT_PARSER_H

#include <xercesc/parsers/XercesDOMParser.hpp>

#ifdef XTTML_LINKS_NODES

/// Links elements, their attributes and texts itself. The XML library asks by dynamic_cast, several times for
/// every node, what kind of node it is, which takes more than a third of a parse. The rarer kinds of nodes,
/// and all that a document type has a part in, are left to it. Namespaces have to be on.
class DocumentParser : public xercesc::XercesDOMParser {
public:
    using XercesDOMParser::XercesDOMParser;

    void docCharacters(const XMLCh* characters, XMLSize_t length, bool isCdata) override;
    void startElement(const xercesc::XMLElementDecl& declaration, unsigned int namespaceId,
                      const XMLCh* prefix, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                      XMLSize_t attributeCount, bool isEmpty, bool isRoot) override;
    void endElement(const xercesc::XMLElementDecl& declaration, unsigned int namespaceId, bool isRoot,
                    const XMLCh* prefix) override;

private:
    const XMLCh* NamespaceOf(unsigned int id) const;
    xercesc::DOMAttr* MakeAttribute(const xercesc::XMLAttr& attribute);
};

#else
using DocumentParser = xercesc::XercesDOMParser;
#endif

#endif
