#include "tools/xttml/findings/attribute.h"

#include "tools/xttml/document/xml_text.h"
#include "tools/xttml/text/text_encoding.h"

#include <fmt/format.h>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xttml/xmltree/tree_operations.h>

namespace xttml {

std::string Attribute::Value() const {
    return XercesTreeOperations::GetTextValue(node_);
}

std::string Attribute::Written() const {
    return fmt::format("{}=\"{}\"", Name(), Utf8Beginning(Units(node_->getNodeValue())));
}

std::string Attribute::Name() const {
    return Utf8FromUtf16(Units(node_->getNodeName()));
}

std::string Attribute::Namespace() const {
    const XMLCh* const name = node_->getNamespaceURI();
    return name ? Utf8FromUtf16(Units(name)) : std::string();
}

bool Attribute::HasNamespace(const char* namespaceUri) const {
    return XercesTreeOperations::IsEqualString(node_->getNamespaceURI(), namespaceUri);
}

bool Attribute::HasLocalName(const char* name) const {
    return XercesTreeOperations::IsEqualString(node_->getLocalName(), name);
}

Attribute AttributeOf(const xercesc::DOMNode& element, const AttributeName& name) {
    return Attribute(XercesTreeOperations::FindAttribute(&element, name.namespaceUri, name.localName));
}

Attribute StylingAttributeOf(const xercesc::DOMNode& element, const char* localName) {
    return AttributeOf(element, {stylingNamespace, localName});
}

std::vector<Attribute> AttributesOf(const xercesc::DOMNode& element) {
    const xercesc::DOMNamedNodeMap& map = *element.getAttributes();
    std::vector<Attribute> attributes;
    attributes.reserve(map.getLength());
    for (XMLSize_t i = 0; i < map.getLength(); ++i)
        attributes.emplace_back(map.item(i));
    return attributes;
}

} // namespace xttml
