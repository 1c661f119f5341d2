#include "fuzz/item_invariants.h"

#include "fuzz/invariant.h"
#include "tests/support/describe.h"

#include <cstddef>

namespace {

bool IsBit(std::int32_t value) {
    return value == 0 || value == 1;
}

template <class Enumeration>
bool IsOneOf(Enumeration value, Enumeration last) {
    return value >= 0 && value <= last;
}

void RequireSound(const StylingAttrib& styling) {
    Require(IsOneOf(styling.eDisplayAlign, DISPLAY_ALIGN_AFTER), "a display alignment");
    Require(IsOneOf(styling.eTextAlign, TEXT_ALIGN_END), "a text alignment");
    Require(IsOneOf(styling.eTextDecoration, TEXT_DECORATION_NO_OVERLINE), "a text decoration");
    Require(IsBit(styling.iFontStyle) && IsBit(styling.iFontWeight) && IsBit(styling.iVisibility),
            "style, weight and visibility are 0 or 1");
}

void RequireSound(const Sentence& sentence) {
    if (sentence.pStylingAttrib)
        RequireSound(*sentence.pStylingAttrib);
    if (sentence.fgLineBreak) {
        Require(sentence.vecText == std::vector<char16_t>{u'\n'}, "a line break is one unit");
        Require(!sentence.pStylingAttrib, "a line break has no styling");
    }
    for (const char16_t unit : sentence.vecText)
        Require(unit != 0, "no unit of a text is zero");
}

bool SharesTimes(const DisplayItem& item, const DisplayItem& other) {
    return item.iGetBeginTime() == other.iGetBeginTime() && item.iGetEndTime() == other.iGetEndTime();
}

std::string Text(const std::vector<char16_t>& units) {
    std::string text;
    for (const char16_t unit : units)
        text += std::to_string(unit) + ' ';
    return text;
}

std::string Text(const Sentence& sentence) {
    return (sentence.fgLineBreak ? " br " : " run ") + Text(sentence.vecText) +
           (sentence.pStylingAttrib ? Describe(*sentence.pStylingAttrib) : "");
}

} // namespace

void RequireSoundTextItem(const DisplayItem& item) {
    const auto* const text = dynamic_cast<const TextItem*>(&item);
    Require(text, "the text generator makes text items");
    RequireSound(item.styling);
    for (const StylingAttrib* styling : {item.pRegionAttrib, item.pStyleAttrib}) {
        if (styling)
            RequireSound(*styling);
    }
    std::size_t breaks = 0;
    for (const Sentence* sentence : *text->pGetSentenceSeq()) {
        Require(sentence, "no sentence is null");
        RequireSound(*sentence);
        breaks += sentence->fgLineBreak ? 1 : 0;
    }
    Require(text->strContent.empty() && !text->fgCombined, "a fresh item has nothing merged");
    Require(text->vecContent.size() <= breaks, "the content holds line breaks of the sentences");
}

void RequireSoundImageItem(const DisplayItem& item, std::size_t blockSize) {
    const auto* const image = dynamic_cast<const ImageItem*>(&item);
    Require(image, "the image generator makes image items");
    RequireSound(item.styling);
    Require(!item.pRegionAttrib && !item.pStyleAttrib, "an image item borrows no styling");
    Require(image->iImageDataSize >= 0 && static_cast<std::size_t>(image->iImageDataSize) <= blockSize,
            "an image is no larger than its block");
    Require(image->pImageData || image->iImageDataSize == 0, "no data without bytes");
    volatile std::uint8_t byte = 0; // read, so that the sanitizer sees a pointer out of the block
    for (std::int32_t i = 0; i < image->iImageDataSize; ++i)
        byte = image->pImageData[i];
    static_cast<void>(byte);
}

std::size_t FindByWalking(const std::vector<DisplayItem*>& items, std::uint32_t time) {
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i]->fgCheckTimeInfo(static_cast<std::int32_t>(time)))
            return i;
    }
    std::size_t next = 0;
    while (next < items.size() && static_cast<std::uint32_t>(items[next]->iGetBeginTime()) <= time)
        ++next;
    return next;
}

void RequireSlots(const std::vector<DisplayItem*>& items, std::size_t first, DisplayItem* const* slots) {
    bool isFilling = first < items.size();
    for (std::size_t slot = 0; slot < 4; ++slot) {
        const std::size_t i = first + slot;
        isFilling = isFilling && i < items.size() && SharesTimes(*items[i], *items[first]);
        Require(slots[slot] == (isFilling ? items[i] : nullptr), "the slots hold one time span");
    }
}

void RequireCombines(const std::vector<DisplayItem*>& items, std::size_t current,
                     const std::function<DisplayItem*()>& combine) {
    if (items.empty()) {
        Require(!combine(), "nothing combines to nothing");
        return;
    }
    auto* const text = dynamic_cast<TextItem*>(items[current]);
    std::vector<char16_t> expected = text ? text->vecContent : std::vector<char16_t>();
    if (text && !text->fgCombined) {
        for (std::size_t i = current + 1; i < items.size() && SharesTimes(*items[i], *text); ++i) {
            if (const auto* next = dynamic_cast<const TextItem*>(items[i])) {
                expected.push_back(u'\n');
                expected.insert(expected.end(), next->vecContent.begin(), next->vecContent.end());
            }
        }
    }
    for (int time = 0; time < 2; ++time)
        Require(combine() == items[current], "the current item is combined");
    Require(!text || text->vecContent == expected, "the content is merged once");
}

std::string Text(const DisplayItem& item, std::int32_t origin) {
    const auto since = [origin](std::int32_t time) {
        return std::to_string(static_cast<std::uint32_t>(time) - static_cast<std::uint32_t>(origin));
    };
    std::string text = since(item.iGetBeginTime()) + ' ' + since(item.iGetEndTime()) +
                       (item.fgForcedDisplay ? " forced " : " ") + Describe(item.styling);
    for (const StylingAttrib* styling : {item.pRegionAttrib, item.pStyleAttrib})
        text += styling ? "\n  " + Describe(*styling) : "\n  none";
    if (const auto* textItem = dynamic_cast<const TextItem*>(&item)) {
        for (const Sentence* sentence : *textItem->pGetSentenceSeq())
            text += "\n " + Text(*sentence);
    }
    return text;
}
