#include "tools/xttml/document/item_elements.h"

#include <cstdlib>

using namespace ttaf1_dfxp::tt;

namespace xttml {

namespace {

using Elements = std::vector<const xercesc::DOMNode*>;

/// Text items are made from the paragraphs of the first division.
Elements ParagraphsShown(const Cbody_eltype& body) {
    Elements elements;
    const Cdiv_eltype division = body.div.first();
    for (auto paragraph = division.p.all(); paragraph.CurrentNode(); ++paragraph)
        elements.push_back(paragraph.CurrentNode());
    return elements;
}

void AppendIfShown(const Cdiv_eltype& division, Elements& elements) {
    if (!division.backgroundImage.exists())
        return;
    const std::uint32_t number = PictureNumber(division.backgroundImage).value_or(0);
    if (number >= 1 && number <= mostPictures)
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

// The number stands behind "urn:dece:container:subtitleimageindex:", before a point.
std::optional<std::uint32_t> PictureNumber(const std::string& reference) {
    constexpr std::size_t numberPosition = 38;
    const std::size_t point = reference.rfind('.');
    if (point == std::string::npos || point <= numberPosition)
        return std::nullopt;
    return static_cast<std::uint32_t>(std::strtoll(&reference[numberPosition], nullptr, 10));
}

std::vector<const xercesc::DOMNode*> ItemElements(const Cttaf1_dfxp& document,
                                                  const DisplaySequence& sequence) {
    const Cbody_eltype body = document.tt.first().body.first();
    Elements elements = sequence.Images().Empty() ? ParagraphsShown(body) : DivisionsShown(body);
    if (elements.size() != sequence.Items().size())
        elements.clear();
    return elements;
}

} // namespace xttml
