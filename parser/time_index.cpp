#include "parser/time_index.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace {

constexpr std::uint32_t uNoItem = UINT32_MAX;
constexpr std::size_t uPiecesAStep = 4;

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
    vMakeDirectory();
    vAssignItemsOnScreen(vecItems);
    vAssignItemsToCome(vecItems);
    uItemCount_ = vecItems.size();
}

void TimeIndex::vClear() {
    uItemCount_ = 0;
    vecPieces_.clear();
    vecDirectory_.clear();
}

// Cut at 0 as well, where the order of unsigned times begins anew.
void TimeIndex::vCutTimeLine(const std::vector<DisplayItem*>& vecItems) {
    std::vector<std::int32_t> vecCuts = {INT32_MIN, 0};
    vecCuts.reserve(2 + 2 * vecItems.size());
    for (const DisplayItem* pItem : vecItems) {
        vecCuts.push_back(pItem->iGetBeginTime());
        if (pItem->iGetEndTime() < INT32_MAX)
            vecCuts.push_back(pItem->iGetEndTime() + 1);
    }
    if (!std::is_sorted(vecCuts.begin(), vecCuts.end()))
        std::sort(vecCuts.begin(), vecCuts.end());
    vecCuts.erase(std::unique(vecCuts.begin(), vecCuts.end()), vecCuts.end());
    vecPieces_.reserve(vecCuts.size());
    for (const std::int32_t iCut : vecCuts)
        vecPieces_.push_back({iCut, uNoItem});
}

void TimeIndex::vMakeDirectory() {
    iFirstStep_ = vecPieces_[1].iBegin;
    const std::int64_t iSpan = vecPieces_.back().iBegin - iFirstStep_;
    const auto iSteps = static_cast<std::int64_t>(vecPieces_.size() / uPiecesAStep + 1);
    for (uStepBits_ = 0; iSpan >> uStepBits_ >= iSteps; ++uStepBits_) {
    }
    std::uint32_t uPiece = 1;
    for (std::int64_t iStep = 0; iStep <= iSpan >> uStepBits_; ++iStep) {
        while (vecPieces_[uPiece].iBegin < iFirstStep_ + (iStep << uStepBits_))
            ++uPiece;
        vecDirectory_.push_back(uPiece);
    }
    vecDirectory_.push_back(static_cast<std::uint32_t>(vecPieces_.size()));
}

// In sequence order, each item takes the pieces of its span that no earlier one has.
void TimeIndex::vAssignItemsOnScreen(const std::vector<DisplayItem*>& vecItems) {
    std::vector<std::size_t> vecNext(vecPieces_.size() + 1); // a free piece points to itself
    std::iota(vecNext.begin(), vecNext.end(), std::size_t{0});
    for (std::size_t i = 0; i < vecItems.size(); ++i) {
        std::size_t uPiece = uNextFree(vecNext, uPieceAt(vecItems[i]->iGetBeginTime()));
        while (uPiece < vecPieces_.size() && vecPieces_[uPiece].iBegin <= vecItems[i]->iGetEndTime()) {
            vecPieces_[uPiece].uItem = static_cast<std::uint32_t>(i);
            vecNext[uPiece] = uPiece + 1;
            uPiece = uNextFree(vecNext, uPiece + 1);
        }
    }
}

// The first item to begin later is the first that raises the largest begin so far above the time.
void TimeIndex::vAssignItemsToCome(const std::vector<DisplayItem*>& vecItems) {
    std::vector<std::uint32_t> vecLatestBegin;
    vecLatestBegin.reserve(vecItems.size());
    for (const DisplayItem* pItem : vecItems) {
        const auto uBegin = static_cast<std::uint32_t>(pItem->iGetBeginTime());
        vecLatestBegin.push_back(vecLatestBegin.empty() ? uBegin : std::max(vecLatestBegin.back(), uBegin));
    }
    for (Piece& piece : vecPieces_) {
        if (piece.uItem != uNoItem)
            continue;
        const auto uBegin = static_cast<std::uint32_t>(piece.iBegin);
        const auto later = std::upper_bound(vecLatestBegin.begin(), vecLatestBegin.end(), uBegin);
        if (later != vecLatestBegin.end())
            piece.uItem = static_cast<std::uint32_t>(later - vecLatestBegin.begin());
    }
}

/// The piece that a time lies in.
std::size_t TimeIndex::uPieceAt(std::int32_t iTime) const {
    if (iTime < iFirstStep_)
        return 0;
    const auto uSteps = static_cast<std::size_t>((iTime - iFirstStep_) >> uStepBits_);
    const std::size_t uStep = std::min(uSteps, vecDirectory_.size() - 2);
    const auto next = std::upper_bound(
        vecPieces_.begin() + vecDirectory_[uStep], vecPieces_.begin() + vecDirectory_[uStep + 1], iTime,
        [](std::int32_t iSought, const Piece& piece) { return iSought < piece.iBegin; });
    return static_cast<std::size_t>(next - vecPieces_.begin()) - 1;
}

std::optional<std::size_t> TimeIndex::rFind(std::uint32_t uTime) const {
    if (vecPieces_.empty())
        return std::nullopt;
    const std::uint32_t uItem = vecPieces_[uPieceAt(static_cast<std::int32_t>(uTime))].uItem;
    return uItem == uNoItem ? std::nullopt : std::optional<std::size_t>(uItem);
}
