#include "tools/xttml/document/shown_content.h"

#include "tools/xttml/document/namespace_names.h"

#include <algorithm>
#include <fmt/format.h>
#include <xttml/xmltree/tree_operations.h>

namespace xttml {

namespace {

using xercesc::DOMNode;

bool IsNamed(const DOMNode& node, const char* name) {
    return XercesTreeOperations::IsEqualString(node.getLocalName(), name);
}

/// Counts a node of the body and tells whether more may be inside it.
bool Count(const DOMNode& node, ContentCount& count) {
    if (IsNamed(node, "p")) {
        ++count.paragraphs;
        return false;
    }
    if (IsNamed(node, "div") && XercesTreeOperations::FindAttribute(&node, smpteNamespace, "backgroundImage"))
        ++count.pictures;
    return true;
}

/// The node after another and all inside it; null at the end of the top one.
const DOMNode* NextOutside(const DOMNode* node, const DOMNode* top) {
    while (node != top && !node->getNextSibling())
        node = node->getParentNode();
    return node == top ? nullptr : node->getNextSibling();
}

ContentCount CountAll(const DOMNode* body) {
    ContentCount count;
    for (const DOMNode* node = body; node;) {
        const DOMNode* const inside = Count(*node, count) ? node->getFirstChild() : nullptr;
        node = inside ? inside : NextOutside(node, body);
    }
    return count;
}

/// Whether an item comes on screen. One without a begin is there from the start.
bool IsEverOnScreen(const DisplayItem& item, const DisplaySequence& sequence) {
    const TimeSpan span = sequence.SpanOf(item);
    const bool isPicture = x_ttml_item_get_kind(&item) == X_TTML_IMAGE_ITEM;
    return span.end && span.begin.value_or(*span.end) <= *span.end && !(isPicture && DataOf(item).empty());
}

std::string Share(std::size_t part, std::size_t all, const char* name) {
    return fmt::format("{} of {} {}{}", part, all, name, all == 1 ? "" : "s");
}

} // namespace

ShownContent CountShown(const ttaf1_dfxp::tt::Cttaf1_dfxp& document, const DisplaySequence* sequence) {
    ShownContent content = {CountAll(document.tt.first().body.first().GetNode()), {}};
    if (!sequence)
        return content;
    std::size_t& shown = sequence->Images().Empty() ? content.shown.paragraphs : content.shown.pictures;
    shown = static_cast<std::size_t>(
        std::count_if(sequence->Items().begin(), sequence->Items().end(),
                      [sequence](const DisplayItem* item) { return IsEverOnScreen(*item, *sequence); }));
    return content;
}

std::string LossOf(const ShownContent& content) {
    std::string loss;
    std::size_t all = 0;
    const auto add = [&](std::size_t ContentCount::*kind, const char* name) {
        if (content.shown.*kind >= content.all.*kind)
            return;
        loss += (loss.empty() ? "" : " and ") +
                Share(content.all.*kind - content.shown.*kind, content.all.*kind, name);
        all += content.all.*kind;
    };
    add(&ContentCount::paragraphs, "paragraph");
    add(&ContentCount::pictures, "picture");
    return loss.empty() ? loss : loss + (all == 1 ? " is" : " are") + " not shown";
}

} // namespace xttml
