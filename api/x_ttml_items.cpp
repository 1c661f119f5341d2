#include "api/x_ttml_items.h"

#include "runtime/utf8.h"
#include "style/color_reading.h"

#include <algorithm>
#include <cstring>

static_assert(int(DISPLAY_ALIGN_BEFORE) == int(X_TTML_DISPLAY_ALIGN_BEFORE) &&
              int(DISPLAY_ALIGN_CENTER) == int(X_TTML_DISPLAY_ALIGN_CENTER) &&
              int(DISPLAY_ALIGN_AFTER) == int(X_TTML_DISPLAY_ALIGN_AFTER));
static_assert(int(TEXT_ALIGN_LEFT) == int(X_TTML_TEXT_ALIGN_LEFT) &&
              int(TEXT_ALIGN_CENTER) == int(X_TTML_TEXT_ALIGN_CENTER) &&
              int(TEXT_ALIGN_RIGHT) == int(X_TTML_TEXT_ALIGN_RIGHT) &&
              int(TEXT_ALIGN_START) == int(X_TTML_TEXT_ALIGN_START) &&
              int(TEXT_ALIGN_END) == int(X_TTML_TEXT_ALIGN_END));
static_assert(int(TEXT_DECORATION_NONE) == int(X_TTML_TEXT_DECORATION_NONE) &&
              int(TEXT_DECORATION_UNDERLINE) == int(X_TTML_TEXT_DECORATION_UNDERLINE) &&
              int(TEXT_DECORATION_NO_UNDERLINE) == int(X_TTML_TEXT_DECORATION_NO_UNDERLINE) &&
              int(TEXT_DECORATION_LINE_THROUGH) == int(X_TTML_TEXT_DECORATION_LINE_THROUGH) &&
              int(TEXT_DECORATION_NO_LINE_THROUGH) == int(X_TTML_TEXT_DECORATION_NO_LINE_THROUGH) &&
              int(TEXT_DECORATION_OVERLINE) == int(X_TTML_TEXT_DECORATION_OVERLINE) &&
              int(TEXT_DECORATION_NO_OVERLINE) == int(X_TTML_TEXT_DECORATION_NO_OVERLINE));

namespace {

const TextItem* prGetText(const DisplayItem* item) {
    return dynamic_cast<const TextItem*>(item);
}

const Sentence* prGetRun(const DisplayItem* item, uint32_t run) {
    const TextItem* const pText = prGetText(item);
    return pText && run < pText->vecSentence.size() ? pText->vecSentence[run] : nullptr;
}

const StylingAttrib& rStylingOf(const Sentence& run, const DisplayItem& item) {
    return run.pStylingAttrib ? *run.pStylingAttrib : item.styling;
}

std::u16string_view strTextOf(const Sentence& run) {
    return {run.vecText.data(), run.vecText.size()};
}

bool fgIsVisible(const Sentence& run, const TextItem& item) {
    return rStylingOf(run, item).iVisibility == 0;
}

/// Whether there is more to see than line breaks.
bool fgAnyVisible(const TextItem& item) {
    return std::any_of(item.vecSentence.begin(), item.vecSentence.end(), [&item](const Sentence* pRun) {
        return !pRun->fgLineBreak && fgIsVisible(*pRun, item);
    });
}

uint32_t uGiven(const StylingAttrib& attrib) {
    const struct {
        bool fgGiven;
        uint32_t uBit;
    } flags[] = {{attrib.fgColorSet, X_TTML_GIVEN_COLOR},
                 {attrib.fgFontSizeSet, X_TTML_GIVEN_FONT_SIZE},
                 {attrib.fgFontWeightSet, X_TTML_GIVEN_FONT_WEIGHT},
                 {attrib.fgFontStyleSet, X_TTML_GIVEN_FONT_STYLE},
                 {attrib.fgLineHeightSet, X_TTML_GIVEN_LINE_HEIGHT},
                 {attrib.fgTextAlignSet, X_TTML_GIVEN_TEXT_ALIGN},
                 {attrib.fgTextDecorationSet, X_TTML_GIVEN_TEXT_DECORATION},
                 {attrib.fgVisibilitySet, X_TTML_GIVEN_VISIBILITY},
                 {attrib.fgDisplayAlignSet, X_TTML_GIVEN_DISPLAY_ALIGN}};
    uint32_t uBits = 0;
    for (const auto& flag : flags)
        uBits |= flag.fgGiven ? flag.uBit : 0;
    return uBits;
}

x_ttml_color rColorOf(const std::string& strText) {
    const RgbaColor color = rReadColor(strText);
    return {static_cast<uint8_t>(color.uRed), static_cast<uint8_t>(color.uGreen),
            static_cast<uint8_t>(color.uBlue), static_cast<uint8_t>(color.uAlpha)};
}

x_ttml_styling rRecordOf(const StylingAttrib& attrib) {
    x_ttml_styling record{};
    record.given = uGiven(attrib);
    record.color_text = attrib.strColor.c_str();
    record.background_color_text = attrib.strBackgroundColor.c_str();
    record.color = rColorOf(attrib.strColor);
    record.background_color = rColorOf(attrib.strBackgroundColor);
    record.display_align = attrib.eDisplayAlign;
    record.text_align = attrib.eTextAlign;
    record.text_decoration = attrib.eTextDecoration;
    record.is_italic = attrib.iFontStyle != 0;
    record.is_bold = attrib.iFontWeight != 0;
    record.is_hidden = attrib.iVisibility != 0;
    record.font_size = attrib.uFontSize;
    record.line_height = attrib.uLineHeight;
    record.origin_x = attrib.uOriginX;
    record.origin_y = attrib.uOriginY;
    record.extent_width = attrib.uExtentWidth;
    record.extent_height = attrib.uExtentHeight;
    return record;
}

/// Fills in as much of a record as the program knows, and zeroes what only the program knows.
int iFillIn(const StylingAttrib* pAttrib, x_ttml_styling* styling) {
    if (!pAttrib || !styling || styling->size < sizeof styling->size)
        return 0;
    x_ttml_styling record = rRecordOf(*pAttrib);
    record.size = styling->size;
    const size_t uKnown = std::min<size_t>(record.size, sizeof record);
    auto* const pBytes = reinterpret_cast<unsigned char*>(styling);
    std::memcpy(pBytes, &record, uKnown);
    std::memset(pBytes + uKnown, 0, record.size - uKnown);
    return 1;
}

} // namespace

int x_ttml_item_get_kind(const DisplayItem* item) {
    if (!item)
        return X_TTML_NO_ITEM;
    return prGetText(item) ? X_TTML_TEXT_ITEM : X_TTML_IMAGE_ITEM;
}

int32_t x_ttml_item_get_begin(const DisplayItem* item) {
    return item ? item->iGetBeginTime() : -1;
}

int32_t x_ttml_item_get_end(const DisplayItem* item) {
    return item ? item->iGetEndTime() : -1;
}

int x_ttml_item_is_forced(const DisplayItem* item) {
    return item && item->fgForcedDisplay;
}

const uint8_t* x_ttml_item_get_image(const DisplayItem* item, uint32_t* size) {
    const auto* const pImage = dynamic_cast<const ImageItem*>(item);
    const bool fgData = pImage && pImage->pImageData && pImage->iImageDataSize > 0;
    if (size)
        *size = fgData ? static_cast<uint32_t>(pImage->iImageDataSize) : 0;
    return fgData ? pImage->pImageData : nullptr;
}

size_t x_ttml_item_get_text(const DisplayItem* item, char* buffer, size_t room) {
    tessera::Utf8Writer writer(buffer, room);
    const TextItem* const pText = prGetText(item);
    if (pText && fgAnyVisible(*pText))
        for (const Sentence* const pRun : pText->vecSentence)
            if (pRun->fgLineBreak || fgIsVisible(*pRun, *pText))
                writer.Append(strTextOf(*pRun));
    return writer.Finish();
}

uint32_t x_ttml_item_get_run_count(const DisplayItem* item) {
    const TextItem* const pText = prGetText(item);
    return pText ? static_cast<uint32_t>(pText->vecSentence.size()) : 0;
}

const x_ttml_utf16* x_ttml_run_get_utf16(const DisplayItem* item, uint32_t run, size_t* length) {
    const Sentence* const pRun = prGetRun(item, run);
    if (length)
        *length = pRun ? pRun->vecText.size() : 0;
    return pRun && !pRun->vecText.empty() ? pRun->vecText.data() : nullptr;
}

size_t x_ttml_run_get_text(const DisplayItem* item, uint32_t run, char* buffer, size_t room) {
    tessera::Utf8Writer writer(buffer, room);
    if (const Sentence* const pRun = prGetRun(item, run))
        writer.Append(strTextOf(*pRun));
    return writer.Finish();
}

int x_ttml_run_is_line_break(const DisplayItem* item, uint32_t run) {
    const Sentence* const pRun = prGetRun(item, run);
    return pRun && pRun->fgLineBreak;
}

int x_ttml_run_has_own_styling(const DisplayItem* item, uint32_t run) {
    const Sentence* const pRun = prGetRun(item, run);
    return pRun && pRun->pStylingAttrib;
}

int x_ttml_item_get_styling(const DisplayItem* item, x_ttml_styling* styling) {
    return iFillIn(item ? &item->styling : nullptr, styling);
}

int x_ttml_item_get_region_styling(const DisplayItem* item, x_ttml_styling* styling) {
    return iFillIn(item ? item->pRegionAttrib : nullptr, styling);
}

int x_ttml_item_get_style_styling(const DisplayItem* item, x_ttml_styling* styling) {
    return iFillIn(item ? item->pStyleAttrib : nullptr, styling);
}

int x_ttml_run_get_styling(const DisplayItem* item, uint32_t run, x_ttml_styling* styling) {
    const Sentence* const pRun = prGetRun(item, run);
    return iFillIn(pRun ? &rStylingOf(*pRun, *item) : nullptr, styling);
}
