#include "parser/content_walk.h"

namespace {

/// Whether a name equals a lower-case ASCII name, ignoring the case of ASCII letters.
bool fgIsNamed(const XMLCh* name, const char* lowerCase) {
    for (; *lowerCase != '\0'; ++name, ++lowerCase) {
        const bool fgUpper = *name >= u'A' && *name <= u'Z';
        const unsigned int uCharacter = fgUpper ? *name - u'A' + u'a' : *name;
        if (uCharacter != static_cast<unsigned char>(*lowerCase))
            return false;
    }
    return *name == 0;
}

} // namespace

ContentKind eGetContentKind(const xercesc::DOMNode& node) {
    const auto eType = node.getNodeType();
    if (eType == xercesc::DOMNode::TEXT_NODE)
        return ContentKind::TEXT;
    if (eType != xercesc::DOMNode::ELEMENT_NODE)
        return ContentKind::OTHER;
    const XMLCh* const localName = node.getLocalName();
    const XMLCh* const name = localName ? localName : node.getNodeName();
    if (fgIsNamed(name, "br"))
        return ContentKind::LINE_BREAK;
    return fgIsNamed(name, "span") ? ContentKind::SPAN : ContentKind::OTHER;
}
