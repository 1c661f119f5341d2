// A document with the places of its elements.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_PLACED_DOCUMENT_H
#define XTTML_TOOLS_XTTML_DOCUMENT_PLACED_DOCUMENT_H

#include "tools/xttml/document/source.h"

#include <cstdint>
#include <vector>
#include <xttml/binding/ttaf1_dfxp.h>

namespace xttml {

/// Where something begins, both counted from 1; a column is a UTF-16 code unit.
struct Place {
    std::uint64_t line;
    std::uint64_t column;
};

/// An element and where its start tag begins.
struct PlacedElement {
    const xercesc::DOMNode* node;
    Place place;
};

/// A parsed document; the XML library must be initialised as long as it lives.
class PlacedDocument {
public:
    /// Throws UnusableFile.
    /// @param source of a document that the library has loaded before: nothing is refused here
    explicit PlacedDocument(const Source& source);
    ~PlacedDocument() { root_.DestroyDocument(); }
    PlacedDocument(const PlacedDocument&) = delete;
    PlacedDocument& operator=(const PlacedDocument&) = delete;

    const ttaf1_dfxp::tt::Cttaf1_dfxp& Root() const { return root_; }
    /// All elements in the order of their start tags.
    const std::vector<PlacedElement>& Elements() const { return elements_; }

private:
    std::vector<PlacedElement> elements_;
    ttaf1_dfxp::tt::Cttaf1_dfxp root_;
};

} // namespace xttml

#endif
