#include "parser/time_index.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr std::uint32_t uNoItem = UINT32_MAX;

std::int64_t iAfterEnd(const DisplayItem& item) {
    return std::int64_t{item.iGetEndTime()} + 1;
}

/// The first piece from uPiece on that no item has taken yet; shortens the way for the next call.
std::size_t uNextFree(std::vector<std::size_t>& vecNext, std::size_t uPiece) {
    while (vecNext[uPiece] != uPiece) {
        vecNext[uPiece] = vecNext[vecNext[uPiece]];
        uPiece = vecNext[uPiece];
    }
    return uPiece;
}

} // namespace

void TimeIndex::vBuild(const std::vector<DisplayItem*>& vecItems) {
    vClear();
    vCutTimeLine(vecItems);
    vAssignPieces(vecItems);
    vecLatestBegin_.reserve(vecItems.size());
    std::uint32_t uLatest = 0;
    for (const DisplayItem* pItem : vecItems) {
        uLatest = std::max(uLatest, static_cast<std::uint32_t>(pItem->iGetBeginTime()));
        vecLatestBegin_.push_back(uLatest);
    }
}

void TimeIndex::vClear() {
    vecCuts_.clear();
    vecFirstItem_.clear();
    vecLatestBegin_.clear();
}

void TimeIndex::vCutTimeLine(const std::vector<DisplayItem*>& vecItems) {
    vecCuts_.reserve(2 * vecItems.size());
    for (const DisplayItem* pItem : vecItems) {
        vecCuts_.push_back(pItem->iGetBeginTime());
        vecCuts_.push_back(iAfterEnd(*pItem));
    }
    if (!std::is_sorted(vecCuts_.begin(), vecCuts_.end()))
        std::sort(vecCuts_.begin(), vecCuts_.end());
    vecCuts_.erase(std::unique(vecCuts_.begin(), vecCuts_.end()), vecCuts_.end());
}

void TimeIndex::vAssignPieces(const std::vector<DisplayItem*>& vecItems) {
    vecFirstItem_.assign(vecCuts_.size(), uNoItem);
    std::vector<std::size_t> vecNext(vecCuts_.size() + 1); // free pieces point to themselves
    std::iota(vecNext.begin(), vecNext.end(), std::size_t{0});
    const auto uPieceAt = [this](std::int64_t iTime) {
        return static_cast<std::size_t>(std::lower_bound(vecCuts_.begin(), vecCuts_.end(), iTime) -
                                        vecCuts_.begin());
    };
    for (std::size_t i = 0; i < vecItems.size(); ++i) {
        const std::int64_t iEnd = iAfterEnd(*vecItems[i]);
        std::size_t uPiece = uNextFree(vecNext, uPieceAt(vecItems[i]->iGetBeginTime()));
        while (uPiece < vecCuts_.size() && vecCuts_[uPiece] < iEnd) {
            vecFirstItem_[uPiece] = static_cast<std::uint32_t>(i);
            vecNext[uPiece] = uPiece + 1;
            uPiece = uNextFree(vecNext, uPiece + 1);
        }
    }
}

std::optional<std::size_t> TimeIndex::rFind(std::uint32_t uTime) const {
    const auto cut = std::upper_bound(vecCuts_.begin(), vecCuts_.end(), static_cast<std::int32_t>(uTime));
    if (cut != vecCuts_.begin()) {
        const std::uint32_t uItem = vecFirstItem_[static_cast<std::size_t>(cut - vecCuts_.begin()) - 1];
        if (uItem != uNoItem)
            return uItem;
    }
    const auto later = std::upper_bound(vecLatestBegin_.begin(), vecLatestBegin_.end(), uTime);
    if (later == vecLatestBegin_.end())
        return std::nullopt;
    return static_cast<std::size_t>(later - vecLatestBegin_.begin());
}
