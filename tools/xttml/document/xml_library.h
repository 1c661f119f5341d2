// The XML library as a resource.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_XML_LIBRARY_H
#define XTTML_TOOLS_XTTML_DOCUMENT_XML_LIBRARY_H

#include <new>
#include <x_ttml_items.h>

namespace xttml {

/// Keeps the XML library initialised.
class XmlLibrary {
public:
    /// Throws std::bad_alloc.
    XmlLibrary() {
        if (x_ttml_try_init() != X_TTML_OK)
            throw std::bad_alloc();
    }
    ~XmlLibrary() { x_ttml_uninit_xerces(); }
    XmlLibrary(const XmlLibrary&) = delete;
    XmlLibrary& operator=(const XmlLibrary&) = delete;
};

} // namespace xttml

#endif
