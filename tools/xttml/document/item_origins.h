// From a display item back to the element that it was made from.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_ITEM_ORIGINS_H
#define XTTML_TOOLS_XTTML_DOCUMENT_ITEM_ORIGINS_H

#include "tools/xttml/document/display_sequence.h"
#include "tools/xttml/document/document_model.h"

#include <optional>
#include <string>
#include <unordered_map>

namespace xttml {

/// What the element of an item, a paragraph or a division with an image, is called and refers to. UTF-8;
/// nothing for an attribute that it does not have.
struct ItemOrigin {
    std::optional<std::string> id;     ///< xml:id
    std::optional<std::string> region; ///< as written, whether there is such a region or not
    std::optional<std::string> style;  ///< likewise
};

/// The origins of the items of a sequence, which lives as long as they are asked for.
class ItemOrigins {
public:
    /// Of no items.
    ItemOrigins() = default;
    /// @param model of the same document
    ItemOrigins(const DocumentModel& model, const DisplaySequence& sequence);

    /// Without any name when nothing is known of the item.
    ItemOrigin Of(const DisplayItem& item) const;
    /// Whether xml:space is "preserve" at the element of an item or else around it.
    bool PreservesSpace(const DisplayItem& item) const;

private:
    /// Null when it is not known.
    const xercesc::DOMNode* ElementOf(const DisplayItem& item) const;

    std::unordered_map<const DisplayItem*, const xercesc::DOMNode*> elements_;
    // What the elements of one parent inherit: they come one after the other.
    mutable const xercesc::DOMNode* parent_ = nullptr;
    mutable bool parentPreserves_ = false;
};

} // namespace xttml

#endif
