#include "xmltree/transcode.h"

#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include <algorithm>

using xercesc::XMLPlatformUtils;
using xercesc::XMLString;

void AppendNarrowed(std::string& target, const XMLCh* utf16) {
    const std::size_t length = XMLString::stringLen(utf16);
    const std::size_t start = target.size();
    target.resize(start + length);
    std::transform(utf16, utf16 + length, target.begin() + static_cast<std::ptrdiff_t>(start),
                   [](XMLCh unit) { return static_cast<char>(unit & 0xFF); });
}

// Narrowing is the conversion from one unit to one char.
XercesUnstringTemp::XercesUnstringTemp(const XMLCh* utf16)
    : std::string(utf16, utf16 + XMLString::stringLen(utf16)) {}

XercesStringTemp::XercesStringTemp(const char* chars)
    : rawTranscode(XMLString::transcode(chars, XMLPlatformUtils::fgMemoryManager)) {
    if (rawTranscode) {
        text = rawTranscode.get();
    }
}

XercesStringTemp::~XercesStringTemp() = default;

bool IsTranscodedRest(const XMLCh* utf16, const char* chars) {
    return XMLString::equals(utf16, XercesStringTemp(chars));
}

void XercesStringTemp::Release::operator()(XMLCh* transcoded) const {
    XMLString::release(&transcoded, XMLPlatformUtils::fgMemoryManager);
}
