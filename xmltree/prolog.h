// What the bytes of a document tell before they are parsed.
#ifndef XTTML_XMLTREE_PROLOG_H
#define XTTML_XMLTREE_PROLOG_H

#include <string_view>

/// Whether a document is plainly one in UTF-8 whose root element follows nothing but an XML declaration,
/// comments and processing instructions: it has no document type (XML 1.0, 2.8). In doubt it is not.
bool HasPlainProlog(std::string_view bytes);

#endif
