#include "tools/xttml/timeline/lanes.h"

#include <algorithm>
#include <array>
#include <limits>

namespace xttml {

namespace {

void AssignLanes(std::vector<Stay>& stays) {
    std::array<MediaTime, mostLanes> freeFrom;
    freeFrom.fill(std::numeric_limits<MediaTime>::min());
    for (Stay& stay : stays) {
        const auto lane = std::find_if(freeFrom.begin(), freeFrom.end() - 1,
                                       [&](MediaTime time) { return time <= stay.begin; });
        *lane = stay.end;
        stay.lane = static_cast<std::size_t>(lane - freeFrom.begin());
    }
}

} // namespace

Stays StaysOf(const DisplaySequence& sequence, MediaTime origin) {
    Stays stays;
    for (std::size_t item = 0; item < sequence.Items().size(); ++item) {
        const TimeSpan span = sequence.SpanOf(*sequence.Items()[item]);
        const MediaTime begin = span.begin.value_or(origin);
        if (span.end && *span.end >= begin)
            stays.onScreen.push_back({item, begin, *span.end + 1, 0});
        else
            stays.never.push_back(item);
    }
    std::stable_sort(stays.onScreen.begin(), stays.onScreen.end(),
                     [](const Stay& left, const Stay& right) { return left.begin < right.begin; });
    AssignLanes(stays.onScreen);
    return stays;
}

} // namespace xttml
