#include "runtime/qname.h"

namespace tessera {

QName::QName(const std::string& text) : localName(text) {
    const std::size_t brace = text.compare(0, 1, "{") == 0 ? text.find('}') : std::string::npos;
    if (brace != std::string::npos) {
        uri = text.substr(1, brace - 1);
        localName = text.substr(brace + 1);
    }
}

QName::QName(const std::string& namespaceURI, const std::string& qualifiedName)
    : uri(namespaceURI), localName(qualifiedName) {
    const std::size_t colon = qualifiedName.find(':');
    if (colon != std::string::npos) {
        prefix = qualifiedName.substr(0, colon);
        localName = qualifiedName.substr(colon + 1);
    }
}

QName::QName(const std::string& namespaceURI, const std::string& namePrefix, const std::string& name)
    : uri(namespaceURI), prefix(namePrefix), localName(name) {}

std::string QName::ToString() const {
    return prefix.empty() ? localName : prefix + ":" + localName;
}

} // namespace tessera
