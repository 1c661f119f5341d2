// Text of the XML library.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_XML_TEXT_H
#define XTTML_TOOLS_XTTML_DOCUMENT_XML_TEXT_H

#include <string_view>
#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/util/XercesDefs.hpp>

namespace xttml {

/// A zero-terminated text of the XML library, whose code units are no char16_t in its releases before 3.2.
inline std::u16string_view Units(const XMLCh* text) {
    static_assert(sizeof(XMLCh) == sizeof(char16_t));
    return reinterpret_cast<const char16_t*>(text);
}

/// The value of an attribute. With a single text child it is taken from the child: asked for it, an attribute
/// of the XML library goes by way of dynamic casts.
inline std::u16string_view ValueOf(const xercesc::DOMNode& attribute) {
    const xercesc::DOMNode* const child = attribute.getFirstChild();
    const bool isPlain =
        child && child->getNodeType() == xercesc::DOMNode::TEXT_NODE && !child->getNextSibling();
    return Units((isPlain ? *child : attribute).getNodeValue());
}

} // namespace xttml

#endif
