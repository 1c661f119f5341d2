#include "xmltree/xml_library.h"

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <new>

using xercesc::XMLPlatformUtils;

namespace {

bool isBroken = false;

} // namespace

void xml_library::Initialise() {
    if (isBroken) {
        throw std::bad_alloc();
    }
    isBroken = true;
    try {
        XMLPlatformUtils::Initialize();
    } catch (const xercesc::OutOfMemoryException&) {
        throw std::bad_alloc();
    }
    isBroken = false;
}

void xml_library::Terminate() {
    if (!isBroken) {
        XMLPlatformUtils::Terminate();
    }
}

bool xml_library::IsInitialised() {
    return XMLPlatformUtils::fgMemoryManager && !isBroken;
}
