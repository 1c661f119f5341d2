#include "tools/xttml/output/item_text.h"

#include "tools/xttml/text/text_encoding.h"

#include <fmt/format.h>

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
    const std::u16string text = VisibleText(item);
    return forced + (text.empty() ? std::string("[nothing visible]") : TerminalText(text));
}

} // namespace xttml
