#include "tools/xttml/document/item_origins.h"

#include "tools/xttml/document/xml_text.h"
#include "tools/xttml/text/text_encoding.h"

#include <cstdlib>
#include <vector>
#include <xttml/xmltree/tree_operations.h>

using namespace ttaf1_dfxp::tt;

namespace xttml {

namespace {

using Elements = std::vector<const xercesc::DOMNode*>;

constexpr const char* xmlNamespace = "http://www.w3.org/XML/1998/namespace";
constexpr const char* noNamespace = "";

std::optional<std::string> AttributeOf(const xercesc::DOMNode* element, const char* namespaceUri,
                                       const char* name) {
    const xercesc::DOMNode* const attribute =
        XercesTreeOperations::FindAttribute(element, namespaceUri, name);
    return attribute ? std::optional(Utf8FromUtf16(Units(attribute->getNodeValue()))) : std::nullopt;
}

bool PreservesSpace(const xercesc::DOMNode* element) {
    for (; element; element = element->getParentNode())
        if (const auto space = AttributeOf(element, xmlNamespace, "space"))
            return *space == "preserve";
    return false;
}

ItemOrigin OriginOf(const xercesc::DOMNode* element) {
    return {AttributeOf(element, xmlNamespace, "id"), AttributeOf(element, noNamespace, "region"),
            AttributeOf(element, noNamespace, "style"), PreservesSpace(element)};
}

/// Text items are made from the paragraphs of the first division.
Elements ParagraphsShown(const Cbody_eltype& body) {
    Elements elements;
    const Cdiv_eltype division = body.div.first();
    for (auto paragraph = division.p.all(); paragraph.CurrentNode(); ++paragraph)
        elements.push_back(paragraph.CurrentNode());
    return elements;
}

/// Whether a division's picture is one of the thirty that the library knows: the number stands behind
/// "urn:dece:container:subtitleimageindex:", before a point.
bool ShowsPicture(const Cdiv_eltype& division) {
    constexpr std::size_t numberPosition = 38;
    constexpr std::uint32_t mostPictures = 30;
    const std::string reference = division.backgroundImage;
    const std::size_t point = reference.rfind('.');
    if (point == std::string::npos || point <= numberPosition)
        return false;
    const auto number = static_cast<std::uint32_t>(std::strtoll(&reference[numberPosition], nullptr, 10));
    return number >= 1 && number <= mostPictures;
}

void AppendIfShown(const Cdiv_eltype& division, Elements& elements) {
    if (division.backgroundImage.exists() && ShowsPicture(division))
        elements.push_back(division.GetNode());
}

/// Image items are made from the divisions with an image, else from those of their children.
Elements DivisionsShown(const Cbody_eltype& body) {
    Elements elements;
    for (auto division = body.div.all(); division.CurrentNode(); ++division) {
        if (division.backgroundImage.exists()) {
            AppendIfShown(division, elements);
            continue;
        }
        for (auto child = division.div.all(); child.CurrentNode(); ++child)
            AppendIfShown(child, elements);
    }
    return elements;
}

} // namespace

ItemOrigins::ItemOrigins(const DocumentModel& model, const DisplaySequence& sequence) {
    const Cbody_eltype body = model.Root().tt.first().body.first();
    const Elements elements = sequence.Images().Empty() ? ParagraphsShown(body) : DivisionsShown(body);
    if (elements.size() != sequence.Items().size())
        return;
    origins_.reserve(elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i)
        origins_.emplace(sequence.Items()[i], OriginOf(elements[i]));
}

const ItemOrigin& ItemOrigins::Of(const DisplayItem& item) const {
    static const ItemOrigin unknown;
    const auto found = origins_.find(&item);
    return found == origins_.end() ? unknown : found->second;
}

} // namespace xttml
