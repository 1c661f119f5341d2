// Which elements of a document its display items are made from.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_ITEM_ELEMENTS_H
#define XTTML_TOOLS_XTTML_DOCUMENT_ITEM_ELEMENTS_H

#include "tools/xttml/document/display_sequence.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>
#include <xttml/binding/ttaf1_dfxp.h>

namespace xttml {

/// The most pictures that a block has.
constexpr std::uint32_t mostPictures = 30;

/// The number in a reference to a picture of a block, such as "urn:dece:container:subtitleimageindex:7.png";
/// nothing for what is no such reference. The number need not be one that a block has.
std::optional<std::uint32_t> PictureNumber(const std::string& reference);

/// The paragraphs or divisions that the items of a sequence are made from, one an item and in their order;
/// empty when it is not known which these are.
std::vector<const xercesc::DOMNode*> ItemElements(const ttaf1_dfxp::tt::Cttaf1_dfxp& document,
                                                  const DisplaySequence& sequence);

} // namespace xttml

#endif
