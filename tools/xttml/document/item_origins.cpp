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
    return attribute ? std::optional(Utf8FromUtf16(ValueOf(*attribute))) : std::nullopt;
}

/// What xml:space says; nothing when it is not there.
std::optional<bool> PreservesSpaceItself(const xercesc::DOMNode* element) {
    const xercesc::DOMNode* const space = XercesTreeOperations::FindAttribute(element, xmlNamespace, "space");
    return space ? std::optional(ValueOf(*space) == u"preserve") : std::nullopt;
}

bool InheritsSpace(const xercesc::DOMNode* element) {
    for (; element; element = element->getParentNode())
        if (const auto preserves = PreservesSpaceItself(element))
            return *preserves;
    return false;
}

} // namespace

ItemOrigins::ItemOrigins(const DocumentModel& model, const DisplaySequence& sequence) {
    const std::vector<const xercesc::DOMNode*> elements = ItemElements(model.Root(), sequence);
    elements_.reserve(elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i)
        elements_.emplace(sequence.Items()[i], elements[i]);
}

ItemOrigin ItemOrigins::Of(const DisplayItem& item) const {
    const xercesc::DOMNode* const element = ElementOf(item);
    return {AttributeOf(element, xmlNamespace, "id"), AttributeOf(element, noNamespace, "region"),
            AttributeOf(element, noNamespace, "style")};
}

bool ItemOrigins::PreservesSpace(const DisplayItem& item) const {
    const xercesc::DOMNode* const element = ElementOf(item);
    if (const auto preserves = PreservesSpaceItself(element))
        return *preserves;
    const xercesc::DOMNode* const parent = element ? element->getParentNode() : nullptr;
    if (std::exchange(parent_, parent) != parent)
        parentPreserves_ = InheritsSpace(parent);
    return parentPreserves_;
}

const xercesc::DOMNode* ItemOrigins::ElementOf(const DisplayItem& item) const {
    const auto found = elements_.find(&item);
    return found == elements_.end() ? nullptr : found->second;
}

} // namespace xttml
