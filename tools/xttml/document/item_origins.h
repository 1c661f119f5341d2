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
    bool preservesSpace = false;       ///< xml:space is "preserve", here or from an element around it
};

/// The origins of the items of a sequence.
class ItemOrigins {
public:
    /// Of no items.
    ItemOrigins() = default;
    /// @param model of the same document
    ItemOrigins(const DocumentModel& model, const DisplaySequence& sequence);

    /// Without any name when nothing is known of the item.
    const ItemOrigin& Of(const DisplayItem& item) const;

private:
    std::unordered_map<const DisplayItem*, ItemOrigin> origins_;
};

} // namespace xttml

#endif
