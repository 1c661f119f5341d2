#include "tools/xttml/item_text.h"

#include "tools/xttml/text_encoding.h"

#include <algorithm>

namespace xttml {

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

std::u16string VisibleText(const DisplayItem& item) {
    std::u16string text;
    bool anyVisible = false;
    for (const Sentence* const run : Runs(item)) {
        const bool visible = StylingOf(*run, item).iVisibility == 0;
        if (run->fgLineBreak || visible)
            text.append(run->vecText.begin(), run->vecText.end());
        anyVisible = anyVisible || (visible && !run->fgLineBreak);
    }
    return anyVisible ? text : std::u16string();
}

std::string TerminalText(std::u16string_view text) {
    return OnOneLine(Utf8FromUtf16(text));
}

std::string BoxText(const StylingAttrib& styling) {
    return std::to_string(styling.uExtentWidth) + "x" + std::to_string(styling.uExtentHeight) + "+" +
           std::to_string(styling.uOriginX) + "+" + std::to_string(styling.uOriginY);
}

std::string ScreenLine(const DisplayItem& item, const ImageBlock& images) {
    const std::string forced = item.fgForcedDisplay ? "[forced] " : "";
    if (const auto* const image = dynamic_cast<const ImageItem*>(&item))
        return forced + BoxText(item.styling) + "  " + ImageLine(*image, images);
    const std::u16string text = VisibleText(item);
    return forced + (text.empty() ? std::string("[nothing visible]") : TerminalText(text));
}

} // namespace xttml
