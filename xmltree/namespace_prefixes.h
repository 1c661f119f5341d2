// Namespace declarations as the reads and edits of tree_operations.h need them.
#ifndef XTTML_XMLTREE_NAMESPACE_PREFIXES_H
#define XTTML_XMLTREE_NAMESPACE_PREFIXES_H

#include <xercesc/dom/DOMNode.hpp>

#include <string>

/// The namespace that `prefix` is bound to at an element or attribute, empty when there is no declaration.
std::string FindNamespaceForPrefix(const xercesc::DOMNode* node, const std::string& prefix);

/// The default namespace at a node, as DOMNode::lookupNamespaceURI finds it for no prefix; empty for none.
std::string FindDefaultNamespace(const xercesc::DOMNode* node);

/// A prefix for a namespace that has none at `node`: what GetUnusedPrefix gives, unless that is empty (the
/// node stands in no document), declared on an element that it has passed, or in use by another attribute of
/// the node for another namespace. Then the next one of the row that is none of this.
std::string GetFreshPrefix(const xercesc::DOMNode* node, const std::string& base,
                           const std::string& namespaceURI);

#endif
