// Answers a query by time without walking the sequence, exactly as the walk would.
//
// The time line is cut where an item begins or has ended; each piece knows the first item, in sequence order,
// that is on screen during it. For the gaps there is the largest begin, compared as unsigned, of the items
// up to each one: the first that exceeds the time belongs to the first item that begins later.
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
    std::size_t uGetItemCount() const { return vecLatestBegin_.size(); }

    /// The position of the first item on screen at `uTime` ms, else of the first that begins later, else
    /// nothing. Allocates nothing.
    std::optional<std::size_t> rFind(std::uint32_t uTime) const;

private:
    void vCutTimeLine(const std::vector<DisplayItem*>& vecItems);
    void vAssignPieces(const std::vector<DisplayItem*>& vecItems);

    std::vector<std::int64_t> vecCuts_;         // ascending; piece i begins at cut i and ends before the next
    std::vector<std::uint32_t> vecFirstItem_;   // of each piece; uNoItem in a gap
    std::vector<std::uint32_t> vecLatestBegin_; // of the items up to each one
};

#endif
