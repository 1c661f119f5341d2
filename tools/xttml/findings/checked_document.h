// A document under check: its elements and what the library makes of them.
#ifndef XTTML_TOOLS_XTTML_FINDINGS_CHECKED_DOCUMENT_H
#define XTTML_TOOLS_XTTML_FINDINGS_CHECKED_DOCUMENT_H

#include "tools/xttml/document/display_sequence.h"
#include "tools/xttml/findings/element.h"

#include <cstdint>

namespace xttml {

/// A document under check.
class CheckedDocument {
public:
    /// @param sequence its items on the document's own time line; null when none can be made. Lives as long
    ///        as this does, and so does `document`
    /// @param showsImages whether its pictures are asked for or else its paragraphs
    CheckedDocument(const PlacedDocument& document, const DisplaySequence* sequence, bool showsImages);

    const ElementList& Elements() const { return elements_; }
    /// The root element.
    const Element& Root() const { return elements_.front(); }
    /// Null when the document cannot be shown at all.
    const DisplaySequence* Sequence() const { return sequence_; }
    bool ShowsImages() const { return showsImages_; }
    /// Frames a second.
    std::int32_t FrameRate() const { return frameRate_; }

private:
    void AssignItems(const PlacedDocument& document);

    ElementList elements_;
    const DisplaySequence* sequence_;
    bool showsImages_;
    std::int32_t frameRate_;
};

} // namespace xttml

#endif
