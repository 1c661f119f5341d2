#include "parser/ttml_parser.h"

#include <algorithm>
#include <cstddef>

namespace {

bool fgSharesTimes(const DisplayItem& item, const DisplayItem& other) {
    return item.iGetBeginTime() == other.iGetBeginTime() && item.iGetEndTime() == other.iGetEndTime();
}

void vMergeContent(TextItem& target, const TextItem& source) {
    target.vecContent.push_back(u'\n');
    target.vecContent.insert(target.vecContent.end(), source.vecContent.begin(), source.vecContent.end());
    target.fgCombined = true;
}

} // namespace

std::optional<std::size_t> TtmlParser::rFindByTime(std::uint32_t uTime) const {
    return fgIsIndexed() ? timeIndex_.rFind(uTime) : rWalkToTime(uTime);
}

// For a sequence that the index knows only in part: there was no memory for it, or items were appended one by
// one.
std::optional<std::size_t> TtmlParser::rWalkToTime(std::uint32_t uTime) const {
    const auto fgOnScreen = [uTime](const DisplayItem* pItem) {
        return pItem->fgCheckTimeInfo(static_cast<std::int32_t>(uTime));
    };
    const auto fgLater = [uTime](const DisplayItem* pItem) {
        return static_cast<std::uint32_t>(pItem->iGetBeginTime()) > uTime;
    };
    const auto first = vecDisplaySequence_.begin();
    const auto last = vecDisplaySequence_.end();
    auto found = std::find_if(first, last, fgOnScreen);
    if (found == last)
        found = std::find_if(first, last, fgLater);
    if (found == last)
        return std::nullopt;
    return static_cast<std::size_t>(found - first);
}

DisplayItem* TtmlParser::rGetDisplayItemByTime(std::uint32_t uTime) {
    const std::optional<std::size_t> uFound = rFindByTime(uTime);
    uCurrentIndex_ = static_cast<std::uint32_t>(uFound.value_or(0));
    return uFound ? vecDisplaySequence_[*uFound] : nullptr;
}

void TtmlParser::vGetDisplayItemArrayByTime(DisplayItem** ppItems, std::uint32_t uTime) const {
    constexpr std::size_t uSlots = 4;
    std::fill_n(ppItems, uSlots, nullptr);
    const std::optional<std::size_t> uAnchor = rFindByTime(uTime);
    if (!uAnchor)
        return;
    const DisplayItem& anchor = *vecDisplaySequence_[*uAnchor];
    const std::size_t uEnd = std::min(*uAnchor + uSlots, vecDisplaySequence_.size());
    for (std::size_t i = *uAnchor; i < uEnd && fgSharesTimes(*vecDisplaySequence_[i], anchor); ++i)
        ppItems[i - *uAnchor] = vecDisplaySequence_[i];
}

std::uint32_t TtmlParser::uGetDisplayItemsOnScreen(DisplayItem** ppItems, std::uint32_t uCapacity,
                                                   std::uint32_t uTime) const {
    const auto iTime = static_cast<std::int32_t>(uTime);
    std::uint32_t uCount = 0;
    const auto vTake = [&](DisplayItem* pItem) {
        if (ppItems && uCount < uCapacity)
            ppItems[uCount] = pItem;
        ++uCount;
    };
    if (fgIsIndexed()) {
        timeIndex_.vVisitOnScreen(iTime, [&](std::size_t uItem) { vTake(vecDisplaySequence_[uItem]); });
    } else {
        for (DisplayItem* const pItem : vecDisplaySequence_) {
            if (pItem->fgCheckTimeInfo(iTime))
                vTake(pItem);
        }
    }
    return uCount;
}

std::optional<std::int32_t> TtmlParser::rGetNextChange(std::int32_t iAfter) const {
    return fgIsIndexed() ? timeIndex_.rFindNextChange(iAfter) : rWalkToNextChange(iAfter);
}

std::optional<std::int32_t> TtmlParser::rWalkToNextChange(std::int32_t iAfter) const {
    std::optional<std::int32_t> iFirst;
    const auto vOffer = [&](std::int32_t iTime) {
        if (iTime > iAfter && (!iFirst || iTime < *iFirst))
            iFirst = iTime;
    };
    for (const DisplayItem* const pItem : vecDisplaySequence_) {
        if (pItem->iGetEndTime() < pItem->iGetBeginTime())
            continue;
        vOffer(pItem->iGetBeginTime());
        if (pItem->iGetEndTime() < INT32_MAX)
            vOffer(pItem->iGetEndTime() + 1);
    }
    return iFirst;
}

DisplayItem* TtmlParser::rCombineSameTimeItem() {
    if (uCurrentIndex_ >= vecDisplaySequence_.size())
        return nullptr;
    DisplayItem* const pCurrent = vecDisplaySequence_[uCurrentIndex_];
    auto* const pText = dynamic_cast<TextItem*>(pCurrent);
    if (!pText || pText->fgCombined)
        return pCurrent;
    for (std::size_t i = uCurrentIndex_ + 1; i < vecDisplaySequence_.size(); ++i) {
        const DisplayItem* const pNext = vecDisplaySequence_[i];
        if (!fgSharesTimes(*pNext, *pCurrent))
            break;
        if (const auto* pNextText = dynamic_cast<const TextItem*>(pNext))
            vMergeContent(*pText, *pNextText);
    }
    return pCurrent;
}

void TtmlParser::vClearDisplaySequence() {
    for (DisplayItem*& pItem : vecDisplaySequence_) {
        delete pItem;
        pItem = nullptr;
    }
    vecDisplaySequence_.clear();
    timeIndex_.vClear();
    vecEarlierBuffers_.clear();
}
