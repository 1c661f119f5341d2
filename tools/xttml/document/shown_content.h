// How much of a document is shown.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_SHOWN_CONTENT_H
#define XTTML_TOOLS_XTTML_DOCUMENT_SHOWN_CONTENT_H

#include "tools/xttml/document/display_sequence.h"

#include <cstddef>
#include <string>
#include <xttml/binding/ttaf1_dfxp.h>

namespace xttml {

/// Things that can be shown.
struct ContentCount {
    std::size_t paragraphs = 0;
    std::size_t pictures = 0; ///< divisions with an image
};

/// What the body of a document holds, wherever it stands there, and how much of it is on screen at some time.
struct ShownContent {
    ContentCount all;
    ContentCount shown;
};

/// @param sequence the items of the document; null: none can be made
ShownContent CountShown(const ttaf1_dfxp::tt::Cttaf1_dfxp& document, const DisplaySequence* sequence);

/// "7 of 412 paragraphs are not shown", pictures likewise; empty when nothing is lost.
std::string LossOf(const ShownContent& content);

} // namespace xttml

#endif
