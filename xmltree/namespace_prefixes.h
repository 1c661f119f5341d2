// Namespace declarations as the reads and edits of tree_operations.h need them.
#ifndef XTTML_XMLTREE_NAMESPACE_PREFIXES_H
#define XTTML_XMLTREE_NAMESPACE_PREFIXES_H

#include <xercesc/dom/DOMNode.hpp>

#include <string>

/// The namespace that `prefix` is bound to at an element or attribute, empty when there is no declaration.
/// The prefix is one read from the document: it is compared as it was narrowed.
std::string FindNamespaceForPrefix(const xercesc::DOMNode* node, const std::string& prefix);

/// The default namespace at a node, as DOMNode::lookupNamespaceURI finds it for no prefix; empty for none.
std::string FindDefaultNamespace(const xercesc::DOMNode* node);

/// The prefix that is bound to a namespace at a node: the outermost of those declared there or above and not
/// rebound in between. Empty when there is none; a default declaration is no prefix. It comes narrowed.
std::string FindPrefixForNamespace(const xercesc::DOMNode* node, const std::string& namespaceURI);

/// A prefix for a new declaration on `node`: the first of the row base, base1, base2 ... (n0, n1, n2 ... for
/// an empty base) that the element does not declare, moved on in the row by every element above that declares
/// it; the elements below that one are not asked again. Empty when the node stands in no document.
std::string GetUnusedPrefix(const xercesc::DOMNode* node, const std::string& base);

/// What FindPrefixForNamespace gives, if a name written with it at `node` is in that namespace when the
/// document is saved and loaded again; else empty. It is not when a name on the way down bears the prefix for
/// another namespace without a declaration, and when the prefix is not ASCII: it has been narrowed.
std::string FindUsablePrefix(const xercesc::DOMNode* node, const std::string& namespaceURI);

/// A prefix to declare at `node` for a namespace that has no usable one there: the first of the row that
/// GetUnusedPrefix goes through (of n0, n1, n2 ... for the base xml or xmlns, too) that does not stand for
/// another namespace at the node, by a declaration or by a name. What is in use keeps its meaning, and what
/// is saved loads again.
std::string GetFreshPrefix(const xercesc::DOMNode* node, const std::string& base,
                           const std::string& namespaceURI);

#endif
