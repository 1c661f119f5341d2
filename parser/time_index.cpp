#include "parser/time_index.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace {

constexpr std::uint32_t uNoItem = UINT32_MAX;
constexpr std::size_t uPiecesAStep = 4;

/// The first piece from uPiece on that no item has taken yet; shortens the way for the next call.
std::uint32_t uNextFree(std::vector<std::uint32_t>& vecNext, std::uint32_t uPiece) {
    while (vecNext[uPiece] != uPiece) {
        vecNext[uPiece] = vecNext[vecNext[uPiece]];
        uPiece = vecNext[uPiece];
    }
    return uPiece;
}

} // namespace

void TimeIndex::vBuild(const std::vector<DisplayItem*>& vecItems) {
    vClear();
    std::vector<Span> vecSpans;
    vecSpans.reserve(vecItems.size());
    for (const DisplayItem* pItem : vecItems)
        vecSpans.push_back({pItem->iGetBeginTime(), pItem->iGetEndTime()});
    vCutTimeLine(vecSpans);
    vMakeDirectory();
    vAssignItemsOnScreen(vecSpans);
    vAssignItemsToCome(vecSpans);
    uItemCount_ = vecItems.size();
}

void TimeIndex::vClear() {
    uItemCount_ = 0;
    vecPieces_.clear();
    vecDirectory_.clear();
}

// Cut at 0 as well, where the order of unsigned times begins anew.
void TimeIndex::vCutTimeLine(const std::vector<Span>& vecSpans) {
    std::vector<std::int32_t> vecCuts = {INT32_MIN, 0};
    vecCuts.reserve(2 + 2 * vecSpans.size());
    for (const Span& span : vecSpans) {
        vecCuts.push_back(span.iBegin);
        if (span.iEnd < INT32_MAX)
            vecCuts.push_back(span.iEnd + 1);
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
void TimeIndex::vAssignItemsOnScreen(const std::vector<Span>& vecSpans) {
    std::vector<std::uint32_t> vecNext(vecPieces_.size() + 1); // a free piece points to itself
    std::iota(vecNext.begin(), vecNext.end(), 0U);
    std::uint32_t uItem = 0;
    for (const Span& span : vecSpans) {
        std::uint32_t uPiece = uNextFree(vecNext, static_cast<std::uint32_t>(uPieceAt(span.iBegin)));
        while (uPiece < vecPieces_.size() && vecPieces_[uPiece].iBegin <= span.iEnd) {
            vecPieces_[uPiece].uItem = uItem;
            vecNext[uPiece] = uPiece + 1;
            uPiece = uNextFree(vecNext, uPiece + 1);
        }
        ++uItem;
    }
}

// In the order of unsigned times the first item that begins later can only move on in the sequence.
void TimeIndex::vAssignItemsToCome(const std::vector<Span>& vecSpans) {
    std::uint32_t uItem = 0;
    const auto vAssign = [&](std::size_t uPiece, std::size_t uEnd) {
        for (; uPiece < uEnd; ++uPiece) {
            Piece& piece = vecPieces_[uPiece];
            while (uItem < vecSpans.size() && static_cast<std::uint32_t>(vecSpans[uItem].iBegin) <=
                                                  static_cast<std::uint32_t>(piece.iBegin))
                ++uItem;
            if (piece.uItem == uNoItem && uItem < vecSpans.size())
                piece.uItem = uItem;
        }
    };
    const std::size_t uZero = uPieceAt(0);
    vAssign(uZero, vecPieces_.size());
    vAssign(0, uZero);
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
