// The DOM parser of every load. It makes the tree that the XML library makes by itself, faster.
#ifndef XTTML_XMLTREE_DOCUMENT_PARSER_H
#define XTTML_XMLTREE_DOCUMENT_PARSER_H

#include <xercesc/parsers/XercesDOMParser.hpp>

#ifdef XTTML_LINKS_NODES

/// Links texts and the values of attributes itself. The XML library asks by dynamic_cast, several times for
/// every node that it appends, what kind of node it is, which takes more than a third of a parse; most nodes
/// of a subtitle document are these.
class DocumentParser : public xercesc::XercesDOMParser {
public:
    using XercesDOMParser::XercesDOMParser;

    void docCharacters(const XMLCh* characters, XMLSize_t length, bool isCdata) override;

protected:
    xercesc::DOMAttr* createAttrNS(const XMLCh* namespaceURI, const XMLCh* prefix, const XMLCh* localName,
                                   const XMLCh* qualifiedName) override;
};
#else
using DocumentParser = xercesc::XercesDOMParser;
#endif

#endif
