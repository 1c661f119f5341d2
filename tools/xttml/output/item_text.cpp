#include "tools/xttml/output/item_text.h"

#include "tools/xttml/text/text_encoding.h"

#include <algorithm>
#include <fmt/format.h>

namespace xttml {

using render::TextPiece;
using render::WhiteSpace;

const std::vector<Sentence*>& Runs(const DisplayItem& item) {
    static const std::vector<Sentence*> none;
    const auto* const text = dynamic_cast<const TextItem*>(&item);
    return text ? *text->pGetSentenceSeq() : none;
}

const StylingAttrib& StylingOf(const Sentence& run, const DisplayItem& item) {
    return run.pStylingAttrib ? *run.pStylingAttrib : item.styling;
}

std::u16string WholeText(const DisplayItem& item) {
    std::u16string text;
    for (const Sentence* const run : Runs(item))
        text.append(run->vecText.begin(), run->vecText.end());
    return text;
}

std::vector<TextPiece> VisiblePieces(const DisplayItem& item, WhiteSpace whiteSpace) {
    std::vector<TextPiece> pieces = ReadPieces(&item, WhiteSpace::PRESERVED);
    for (std::size_t run = 0; run < pieces.size(); ++run)
        if (!pieces[run].isLineBreak && StylingOf(*Runs(item)[run], item).iVisibility != 0)
            pieces[run].text.clear();
    HandleWhiteSpace(pieces, whiteSpace);
    return pieces;
}

std::string TextOf(const std::vector<TextPiece>& pieces) {
    std::string text;
    for (const TextPiece& piece : pieces)
        text += piece.text;
    return text;
}

std::string VisibleText(const DisplayItem& item, WhiteSpace whiteSpace) {
    const std::vector<TextPiece> pieces = VisiblePieces(item, whiteSpace);
    const bool anyVisible = std::any_of(pieces.begin(), pieces.end(), [](const TextPiece& piece) {
        return !piece.isLineBreak && !piece.text.empty();
    });
    return anyVisible ? TextOf(pieces) : std::string();
}

bool IsSeen(const DisplayItem& item) {
    if (x_ttml_item_get_kind(&item) == X_TTML_IMAGE_ITEM)
        return item.styling.iVisibility == 0 && !DataOf(item).empty();
    return !VisibleText(item, WhiteSpace::COLLAPSED).empty();
}

std::string BoxText(const StylingAttrib& styling) {
    return fmt::format("{}x{}+{}+{}", styling.uExtentWidth, styling.uExtentHeight, styling.uOriginX,
                       styling.uOriginY);
}

std::string SpanText(const TimeSpan& span) {
    return FormatTime(span.begin) + " to " + FormatTime(span.end);
}

std::string ScreenLine(const DisplayItem& item, const ImageBlock& images) {
    const std::string forced = item.fgForcedDisplay ? "[forced] " : "";
    if (x_ttml_item_get_kind(&item) == X_TTML_IMAGE_ITEM)
        return forced + BoxText(item.styling) + "  " + ImageLine(item, images);
    const std::string text = VisibleText(item, WhiteSpace::COLLAPSED);
    return forced + (text.empty() ? "[nothing visible]" : OnOneLine(text));
}

} // namespace xttml
