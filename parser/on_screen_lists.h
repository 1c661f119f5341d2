// Which items are on screen at a time, in sequence order.
//
// The time line is cut into windows, and each has a list of all items that are on screen at any time in it. A
// window ends before its list would be longer than twice the fewest items on screen at a time in it, and a
// few more. So a walk over the list costs no more than the answer is long; lists that are filled in sequence
// order need no sorting; and together they are at most four times as long as the sequence, since a window
// that begins with many items lasts until a good part of them have gone or as many have come.
#ifndef XTTML_PARSER_ON_SCREEN_LISTS_H
#define XTTML_PARSER_ON_SCREEN_LISTS_H

#include "parser/time_line.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// The times of an item, in ms; both belong to the span.
struct TimeSpan {
    std::int32_t iBegin;
    std::int32_t iEnd;

    bool fgHolds(std::int32_t iTime) const { return iTime >= iBegin && iTime <= iEnd; }
    /// An item that ends before it begins is never on screen.
    bool fgIsEmpty() const { return iEnd < iBegin; }
};

class OnScreenLists {
public:
    /// Takes in how many items begin at a time and how many have ended right before it; times ascend.
    void vAddChange(std::int32_t iTime, std::uint32_t uBegun, std::uint32_t uEnded);
    /// Lists the items that the changes were counted of. To be called once.
    void vFill(const std::vector<TimeSpan>& vecSpans);

    /// Calls `visit` with the position of each item on screen at a time, in sequence order. Allocates
    /// nothing.
    template <class Visit>
    void vVisit(std::int32_t iTime, Visit visit) const {
        if (windows_.uGetSize() == 0)
            return;
        const Window& window = windows_[windows_.uFind(iTime)];
        for (std::size_t i = window.uFirst; i < window.uEnd; ++i) {
            if (vecListed_[i].span.fgHolds(iTime))
                visit(vecListed_[i].uItem);
        }
    }

private:
    /// A stretch of time and the place of its list.
    struct Window {
        std::int32_t iBegin;
        std::uint32_t uFirst;
        std::uint32_t uEnd;
    };
    /// An item in a list, with its times at hand.
    struct Listed {
        TimeSpan span;
        std::uint32_t uItem;
    };

    TimeLine<Window> windows_;
    std::vector<Listed> vecListed_;
    std::uint32_t uOnScreen_ = 0;     // items on screen after the last change
    std::uint32_t uFewest_ = 0;       // the fewest at any time in the last window
    std::uint32_t uListed_ = 0;       // the length of its list
    std::uint32_t uListedBefore_ = 0; // the length of all lists before it
};

#endif
