// Answers a question by time without walking the sequence, exactly as the walk would.
//
// The time line is cut where an item begins or has ended, so that the first item to answer with is the same
// all through a piece of it.
#ifndef XTTML_PARSER_TIME_INDEX_H
#define XTTML_PARSER_TIME_INDEX_H

#include "parser/display_item.h"
#include "parser/on_screen_lists.h"
#include "parser/time_line.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

class TimeIndex {
public:
    /// Takes in a whole sequence; its items must keep their times. Empty after an exception.
    void vBuild(const std::vector<DisplayItem*>& vecItems);
    void vClear() { *this = TimeIndex(); }
    /// How many items the index knows.
    std::size_t uGetItemCount() const { return uItemCount_; }

    // The questions allocate nothing and throw nothing.

    /// The position of the first item on screen at `uTime` ms, else of the first that begins later (compared
    /// as unsigned), else nothing.
    std::optional<std::size_t> rFind(std::uint32_t uTime) const;
    /// Calls `visit` with the position of each item on screen at a time in ms, in sequence order.
    template <class Visit>
    void vVisitOnScreen(std::int32_t iTime, Visit visit) const {
        onScreen_.vVisit(iTime, visit);
    }
    /// The first ms after `iAfter` at which an item begins or has just ended; nothing: never.
    std::optional<std::int32_t> rFindNextChange(std::int32_t iAfter) const;

private:
    /// A stretch of time up to the next piece's begin.
    struct Piece {
        std::int32_t iBegin;
        std::uint32_t uItem; // the answer
    };
    /// Pieces that follow one another and begin without a change on screen.
    struct QuietPieces {
        std::size_t uFirst;
        std::size_t uEnd;
    };

    void vCutTimeLine(const std::vector<TimeSpan>& vecSpans);
    void vAddPiece(std::int32_t iBegin, bool fgChange);
    void vAssignItemsOnScreen(const std::vector<TimeSpan>& vecSpans);
    void vAssignItemsToCome(const std::vector<TimeSpan>& vecSpans);

    std::size_t uItemCount_ = 0;
    TimeLine<Piece> pieces_;
    std::vector<QuietPieces> vecQuiet_; // ascending
    OnScreenLists onScreen_;
};

/// Sees to it that an index is not left behind its sequence by an exception, which would make every question
/// a walk. Without memory for the index it is left behind all the same.
class TimeIndexCompletion {
public:
    /// Both are borrowed.
    TimeIndexCompletion(TimeIndex& index, const std::vector<DisplayItem*>& vecItems)
        : index_(index), vecItems_(vecItems) {}
    ~TimeIndexCompletion();
    TimeIndexCompletion(const TimeIndexCompletion&) = delete;
    TimeIndexCompletion& operator=(const TimeIndexCompletion&) = delete;

private:
    TimeIndex& index_;
    const std::vector<DisplayItem*>& vecItems_;
};

#endif
