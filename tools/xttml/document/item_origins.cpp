#include "tools/xttml/document/item_origins.h"

#include "tools/xttml/document/item_elements.h"
#include "tools/xttml/document/namespace_names.h"
#include "tools/xttml/document/xml_text.h"
#include "tools/xttml/text/text_encoding.h"

#include <utility>
#include <vector>
#include <xttml/xmltree/tree_operations.h>

namespace xttml {

namespace {

std::optional<std::string> AttributeOf(const xercesc::DOMNode* element, const char* namespaceUri,
                                       const char* name) {
    const xercesc::DOMNode* const attribute =
        XercesTreeOperations::FindAttribute(element, namespaceUri, name);
    return attribute ? std::optional(Utf8FromUtf16(Units(attribute->getNodeValue()))) : std::nullopt;
}

/// What xml:space says of elements; those with one parent come one after the other.
class SpaceReader {
public:
    bool Preserves(const xercesc::DOMNode* element) {
        if (const auto space = AttributeOf(element, xmlNamespace, "space"))
            return *space == "preserve";
        const xercesc::DOMNode* const parent = element->getParentNode();
        if (std::exchange(parent_, parent) != parent)
            parentPreserves_ = Inherits(parent);
        return parentPreserves_;
    }

private:
    static bool Inherits(const xercesc::DOMNode* element) {
        for (; element; element = element->getParentNode())
            if (const auto space = AttributeOf(element, xmlNamespace, "space"))
                return *space == "preserve";
        return false;
    }

    const xercesc::DOMNode* parent_ = nullptr;
    bool parentPreserves_ = false;
};

ItemOrigin OriginOf(const xercesc::DOMNode* element, SpaceReader& space) {
    return {AttributeOf(element, xmlNamespace, "id"), AttributeOf(element, noNamespace, "region"),
            AttributeOf(element, noNamespace, "style"), space.Preserves(element)};
}

} // namespace

ItemOrigins::ItemOrigins(const DocumentModel& model, const DisplaySequence& sequence) {
    const std::vector<const xercesc::DOMNode*> elements = ItemElements(model.Root(), sequence);
    SpaceReader space;
    origins_.reserve(elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i)
        origins_.emplace(sequence.Items()[i], OriginOf(elements[i], space));
}

const ItemOrigin& ItemOrigins::Of(const DisplayItem& item) const {
    static const ItemOrigin unknown;
    const auto found = origins_.find(&item);
    return found == origins_.end() ? unknown : found->second;
}

} // namespace xttml
