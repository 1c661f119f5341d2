#include "parser/time_index.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <numeric>

namespace {

constexpr std::uint32_t uNoItem = UINT32_MAX;

/// Times in ascending order, to be taken one after another.
class TimeQueue {
public:
    static constexpr std::int64_t iNever = INT64_MAX;

    void vReserve(std::size_t uTimes) { vecTimes_.reserve(uTimes); }
    void vAdd(std::int32_t iTime) { vecTimes_.push_back(iTime); }
    std::size_t uGetSize() const { return vecTimes_.size(); }
    /// To be called when all times are there.
    void vSort() {
        if (!std::is_sorted(vecTimes_.begin(), vecTimes_.end()))
            std::sort(vecTimes_.begin(), vecTimes_.end());
    }
    std::int64_t iNext() const { return uTaken_ < vecTimes_.size() ? vecTimes_[uTaken_] : iNever; }
    /// Takes all times that equal the given one when it is next.
    /// @return how many there were
    std::uint32_t uTake(std::int64_t iTime) {
        const std::size_t uBefore = uTaken_;
        while (uTaken_ < vecTimes_.size() && vecTimes_[uTaken_] == iTime)
            ++uTaken_;
        return static_cast<std::uint32_t>(uTaken_ - uBefore);
    }

private:
    std::vector<std::int32_t> vecTimes_;
    std::size_t uTaken_ = 0;
};

/// Where the time line is to be cut.
struct Cuts {
    explicit Cuts(const std::vector<TimeSpan>& vecSpans);

    TimeQueue begun; // items
    TimeQueue ended; // items, right before
    TimeQueue other; // nothing changes on screen, but what is to come may
};

// Cut at 0 as well, where the order of unsigned times begins anew.
Cuts::Cuts(const std::vector<TimeSpan>& vecSpans) {
    begun.vReserve(vecSpans.size());
    ended.vReserve(vecSpans.size());
    other.vAdd(INT32_MIN);
    other.vAdd(0);
    for (const TimeSpan& span : vecSpans) {
        (span.fgIsEmpty() ? other : begun).vAdd(span.iBegin);
        if (!span.fgIsEmpty() && span.iEnd < INT32_MAX)
            ended.vAdd(span.iEnd + 1);
    }
    for (TimeQueue* pTimes : {&begun, &ended, &other})
        pTimes->vSort();
}

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
    std::vector<TimeSpan> vecSpans;
    vecSpans.reserve(vecItems.size());
    for (const DisplayItem* pItem : vecItems)
        vecSpans.push_back({pItem->iGetBeginTime(), pItem->iGetEndTime()});
    TimeIndex built;
    built.vCutTimeLine(vecSpans);
    built.vAssignItemsOnScreen(vecSpans);
    built.vAssignItemsToCome(vecSpans);
    built.onScreen_.vFill(vecSpans);
    built.uItemCount_ = vecItems.size();
    *this = std::move(built);
}

void TimeIndex::vCutTimeLine(const std::vector<TimeSpan>& vecSpans) {
    Cuts cuts(vecSpans);
    pieces_.vReserve(cuts.begun.uGetSize() + cuts.ended.uGetSize() + cuts.other.uGetSize());
    for (;;) {
        const std::int64_t iNext = std::min({cuts.begun.iNext(), cuts.ended.iNext(), cuts.other.iNext()});
        if (iNext == TimeQueue::iNever)
            break;
        const auto iTime = static_cast<std::int32_t>(iNext);
        const std::uint32_t uBegun = cuts.begun.uTake(iNext);
        const std::uint32_t uEnded = cuts.ended.uTake(iNext);
        cuts.other.uTake(iNext);
        const bool fgChange = uBegun + uEnded > 0;
        vAddPiece(iTime, fgChange);
        if (fgChange)
            onScreen_.vAddChange(iTime, uBegun, uEnded);
    }
    pieces_.vMakeDirectory();
}

void TimeIndex::vAddPiece(std::int32_t iBegin, bool fgChange) {
    const std::size_t uPiece = pieces_.uGetSize();
    pieces_.vAdd({iBegin, uNoItem});
    if (fgChange)
        return;
    if (vecQuiet_.empty() || vecQuiet_.back().uEnd < uPiece)
        vecQuiet_.push_back({uPiece, uPiece});
    vecQuiet_.back().uEnd = uPiece + 1;
}

// In sequence order, each item takes the pieces of its span that no earlier one has.
void TimeIndex::vAssignItemsOnScreen(const std::vector<TimeSpan>& vecSpans) {
    std::vector<std::uint32_t> vecNext(pieces_.uGetSize() + 1); // a free piece points to itself
    std::iota(vecNext.begin(), vecNext.end(), 0U);
    std::uint32_t uItem = 0;
    for (const TimeSpan& span : vecSpans) {
        std::uint32_t uPiece = uNextFree(vecNext, static_cast<std::uint32_t>(pieces_.uFind(span.iBegin)));
        while (uPiece < pieces_.uGetSize() && pieces_[uPiece].iBegin <= span.iEnd) {
            pieces_[uPiece].uItem = uItem;
            vecNext[uPiece] = uPiece + 1;
            uPiece = uNextFree(vecNext, uPiece + 1);
        }
        ++uItem;
    }
}

// In the order of unsigned times the first item that begins later can only move on in the sequence.
void TimeIndex::vAssignItemsToCome(const std::vector<TimeSpan>& vecSpans) {
    std::uint32_t uItem = 0;
    const auto vAssign = [&](std::size_t uPiece, std::size_t uEnd) {
        for (; uPiece < uEnd; ++uPiece) {
            Piece& piece = pieces_[uPiece];
            while (uItem < vecSpans.size() && static_cast<std::uint32_t>(vecSpans[uItem].iBegin) <=
                                                  static_cast<std::uint32_t>(piece.iBegin))
                ++uItem;
            if (piece.uItem == uNoItem && uItem < vecSpans.size())
                piece.uItem = uItem;
        }
    };
    const std::size_t uZero = pieces_.uFind(0);
    vAssign(uZero, pieces_.uGetSize());
    vAssign(0, uZero);
}

std::optional<std::size_t> TimeIndex::rFind(std::uint32_t uTime) const {
    if (pieces_.uGetSize() == 0)
        return std::nullopt;
    const std::uint32_t uItem = pieces_[pieces_.uFind(static_cast<std::int32_t>(uTime))].uItem;
    return uItem == uNoItem ? std::nullopt : std::optional<std::size_t>(uItem);
}

std::optional<std::int32_t> TimeIndex::rFindNextChange(std::int32_t iAfter) const {
    std::size_t uPiece = pieces_.uFind(iAfter) + 1;
    const auto quiet = std::upper_bound(
        vecQuiet_.begin(), vecQuiet_.end(), uPiece,
        [](std::size_t uSought, const QuietPieces& pieces) { return uSought < pieces.uEnd; });
    if (quiet != vecQuiet_.end() && quiet->uFirst <= uPiece)
        uPiece = quiet->uEnd;
    return uPiece < pieces_.uGetSize() ? std::optional<std::int32_t>(pieces_[uPiece].iBegin) : std::nullopt;
}

TimeIndexCompletion::~TimeIndexCompletion() {
    if (index_.uGetItemCount() == vecItems_.size())
        return;
    try {
        index_.vBuild(vecItems_);
    } catch (const std::bad_alloc&) { // the questions are then answered by a walk
    }
}
