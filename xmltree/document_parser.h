// The DOM parser of every load. It makes the tree that the XML library makes by itself, faster.
#ifndef XTTML_XMLTREE_DOCUMENT_PARSER_H
#define XTTML_XMLTREE_DOCUMENT_PARSER_H

#include "xmltree/parse_memory.h"

#include <utility>
#include <vector>

#ifdef XTTML_LINKS_NODES

/// Makes and links elements, attributes and texts itself: the XML library asks by dynamic_cast what each node
/// is, again and again, and looks up every name in a pool, which takes half of a parse. Rarer nodes and
/// documents with a type are left to it: without one there are no references to entities, so that what has
/// children is the document or an element. Namespaces have to be on.
class DocumentParser : public ShortLivedParser {
public:
    using ShortLivedParser::ShortLivedParser;

    void docCharacters(const XMLCh* characters, XMLSize_t length, bool isCdata) override;
    void startElement(const xercesc::XMLElementDecl& declaration, unsigned int namespaceId,
                      const XMLCh* prefix, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                      XMLSize_t count, bool isEmpty, bool isRoot) override;
    void endElement(const xercesc::XMLElementDecl& declaration, unsigned int namespaceId, bool isRoot,
                    const XMLCh* prefix) override;

private:
    /// Nodes of one kind by the identifiers of their namespaces, one a name: their names serve the next ones.
    using Known = std::vector<std::pair<unsigned int, const xercesc::DOMNode*>>;
    template <class Node, class Make>
    Node& MakeNamed(Known& known, unsigned int namespaceId, const XMLCh* name, Make&& make);
    void AddAttribute(xercesc::DOMElement* element, const xercesc::XMLAttr& attribute);

    Known elements_;
    Known attributes_;
};
#else
/// With a series that links nodes its own way, all memory is the XML library's, too.
class DocumentParser : public xercesc::XercesDOMParser {
public:
    explicit DocumentParser(const ParseMemory&) {}
};
#endif

#endif
