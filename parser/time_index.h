// Answers a query by time without walking the sequence, exactly as the walk would.
//
// The time line is cut where an item begins or has ended, so that the answer is the same all through a piece
// of it. A directory of equal steps leads to the few pieces around a time.
#ifndef XTTML_PARSER_TIME_INDEX_H
#define XTTML_PARSER_TIME_INDEX_H

#include "parser/display_item.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

class TimeIndex {
public:
    /// Takes in a whole sequence; its items must keep their times.
    void vBuild(const std::vector<DisplayItem*>& vecItems);
    void vClear();
    /// How many items the index knows.
    std::size_t uGetItemCount() const { return uItemCount_; }

    /// The position of the first item on screen at `uTime` ms, else of the first that begins later (compared
    /// as unsigned), else nothing. Allocates nothing.
    std::optional<std::size_t> rFind(std::uint32_t uTime) const;

private:
    /// The times of an item.
    struct Span {
        std::int32_t iBegin;
        std::int32_t iEnd;
    };
    /// A stretch of time up to the next piece's begin.
    struct Piece {
        std::int32_t iBegin;
        std::uint32_t uItem; // the answer
    };

    void vCutTimeLine(const std::vector<Span>& vecSpans);
    void vAssignItemsOnScreen(const std::vector<Span>& vecSpans);
    void vAssignItemsToCome(const std::vector<Span>& vecSpans);
    void vMakeDirectory();
    std::size_t uPieceAt(std::int32_t iTime) const;

    std::size_t uItemCount_ = 0;
    std::vector<Piece> vecPieces_;            // ascending, from the smallest time on
    std::vector<std::uint32_t> vecDirectory_; // of each step: the first piece that begins in it or later;
                                              // at last the end of the pieces
    std::int64_t iFirstStep_ = 0;             // where the steps begin
    unsigned int uStepBits_ = 0;              // a step is 2^uStepBits_ ms long
};

#endif
