// Qualified names (Namespaces in XML 1.0). Nothing here throws.
#ifndef XTTML_RUNTIME_QNAME_H
#define XTTML_RUNTIME_QNAME_H

#include "runtime/export.h"

#include <string>

namespace tessera {

/// A name with its namespace; an empty `uri` means no namespace, an empty `prefix` no prefix.
struct XTTML_API QName {
    std::string uri;       ///< the name of the namespace
    std::string prefix;    ///< what stands before the ":"
    std::string localName; ///< the name without a prefix

    /// A local name alone, or Clark notation: "{namespace}local". A brace elsewhere belongs to the name.
    explicit QName(const std::string& text);
    /// A namespace and "prefix:local" or "local"; the first ":" separates.
    QName(const std::string& namespaceURI, const std::string& qualifiedName);
    /// The three parts as they are.
    QName(const std::string& namespaceURI, const std::string& namePrefix, const std::string& name);

    /// "prefix:localName", or `localName` without a prefix. The namespace is no part of it.
    std::string ToString() const;
};

} // namespace tessera

#endif
