// The namespace names that XML itself gives a meaning to.
#ifndef XTTML_XMLTREE_NAMESPACE_NAMES_H
#define XTTML_XMLTREE_NAMESPACE_NAMES_H

/// Namespaces in XML 1.0, 3: always bound to the prefix xml.
inline constexpr char XML_NAMESPACE[] = "http://www.w3.org/XML/1998/namespace";
/// Namespaces in XML 1.0, 3: the namespace of the namespace declarations.
inline constexpr char XMLNS_NAMESPACE[] = "http://www.w3.org/2000/xmlns/";
/// XML Schema Part 1, 2.6: xsi:type, xsi:schemaLocation and xsi:noNamespaceSchemaLocation.
inline constexpr char XML_SCHEMA_INSTANCE_NAMESPACE[] = "http://www.w3.org/2001/XMLSchema-instance";

#endif
