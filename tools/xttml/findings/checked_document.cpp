#include "tools/xttml/findings/checked_document.h"

#include "tools/xttml/document/document_model.h"
#include "tools/xttml/document/item_elements.h"

namespace xttml {

CheckedDocument::CheckedDocument(const PlacedDocument& document, const DisplaySequence* sequence,
                                 bool showsImages)
    : elements_(FindRoles(document.Elements(), showsImages)), sequence_(sequence), showsImages_(showsImages),
      frameRate_(FrameRateOf(document.Root())) {
    if (sequence_)
        AssignItems(document);
}

// Both are in the order of the document.
void CheckedDocument::AssignItems(const PlacedDocument& document) {
    const std::vector<const xercesc::DOMNode*> nodes = ItemElements(document.Root(), *sequence_);
    std::size_t next = 0;
    for (Element& element : elements_) {
        if (next < nodes.size() && nodes[next] == element.node)
            element.item = sequence_->Items()[next++];
    }
}

} // namespace xttml
