// The DOM parser of every load. It makes the tree that the XML library makes by itself, faster.
#ifndef XTTML_XMLTREE_DOCUMENT_PARSER_H
#define XTTML_XMLTREE_DOCUMENT_PARSER_H

#include <xercesc/parsers/XercesDOMParser.hpp>

/// Makes attributes that link their text themselves. The XML library finds out by dynamic_cast, several times
/// for every node it appends, what kind of node it is, which takes more than a third of a parse; most nodes
/// of a subtitle document are attributes and their texts.
class DocumentParser : public xercesc::XercesDOMParser {
public:
    using XercesDOMParser::XercesDOMParser;

protected:
    xercesc::DOMAttr* createAttrNS(const XMLCh* namespaceURI, const XMLCh* prefix, const XMLCh* localName,
                                   const XMLCh* qualifiedName) override;
};

#endif
