// Time cut into rows, as text is cut into lines.
#ifndef XTTML_TOOLS_XTTML_TIMELINE_TIME_ROWS_H
#define XTTML_TOOLS_XTTML_TIMELINE_TIME_ROWS_H

#include "tools/xttml/text/media_time.h"

#include <algorithm>
#include <cstddef>

namespace xttml {

/// How much time is in a row, in ms.
struct TimeScale {
    MediaTime row;
    MediaTime tick; ///< between two marks of it
};

/// Rows of equal length that hold a span of time.
class TimeRows {
public:
    /// Rows that people can count in, at most 61 of them; one alone for less than a minute.
    /// @param begin, end ms, at most 2^31 apart; the end is not in the span and not before the begin
    TimeRows(MediaTime begin, MediaTime end);

    const TimeScale& Scale() const { return scale_; }
    /// At least 1.
    std::size_t Count() const { return count_; }
    MediaTime BeginOf(std::size_t row) const { return begin_ + static_cast<MediaTime>(row) * scale_.row; }
    /// The row of a time in the span.
    std::size_t RowOf(MediaTime time) const { return static_cast<std::size_t>((time - begin_) / scale_.row); }

    /// Calls visit(row, begin, end) for each row's part of a span inside this one.
    template <class Visit>
    void VisitParts(MediaTime begin, MediaTime end, Visit&& visit) const {
        while (begin < end) {
            const std::size_t row = RowOf(begin);
            const MediaTime partEnd = std::min(end, BeginOf(row + 1));
            visit(row, begin, partEnd);
            begin = partEnd;
        }
    }

private:
    TimeScale scale_;
    MediaTime begin_;
    std::size_t count_;
};

} // namespace xttml

#endif
