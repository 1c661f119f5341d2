// Namespace declarations as the reads and edits of tree_operations.h need them.
#ifndef XTTML_XMLTREE_NAMESPACE_PREFIXES_H
#define XTTML_XMLTREE_NAMESPACE_PREFIXES_H

#include <xercesc/dom/DOMNode.hpp>

#include <string>

/// The namespace that `prefix` is bound to at an element or attribute, empty when there is no declaration.
std::string FindNamespaceForPrefix(const xercesc::DOMNode* node, const std::string& prefix);

/// The default namespace at a node, as DOMNode::lookupNamespaceURI finds it for no prefix; empty for none.
std::string FindDefaultNamespace(const xercesc::DOMNode* node);

/// The prefix that is bound to a namespace at a node: the outermost of those declared there or above and not
/// rebound in between. Empty when there is none; a default declaration is no prefix.
std::string FindPrefixForNamespace(const xercesc::DOMNode* node, const std::string& namespaceURI);

/// A prefix for a new declaration on `node`: the first of the row base, base1, base2 ... (n0, n1, n2 ... for
/// an empty base) that the element does not declare, moved on in the row by every element above that declares
/// it; the elements below that one are not asked again. Empty when the node stands in no document.
std::string GetUnusedPrefix(const xercesc::DOMNode* node, const std::string& base);

/// A prefix for a namespace that has none at `node`: what GetUnusedPrefix gives, unless that is empty (the
/// node stands in no document), declared on an element that it has passed, or in use by another attribute of
/// the node for another namespace. Then the next one of the row that is none of this.
std::string GetFreshPrefix(const xercesc::DOMNode* node, const std::string& base,
                           const std::string& namespaceURI);

#endif
