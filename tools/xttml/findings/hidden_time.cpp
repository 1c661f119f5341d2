#include "tools/xttml/findings/hidden_time.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <unordered_map>

namespace xttml {

namespace {

constexpr MediaTime endOfTime = MediaTime{std::numeric_limits<std::int32_t>::max()} + 1;

/// A span between two changes and the items that are answered in it, which follow each other; none when
/// nothing is on screen.
struct Piece {
    MediaTime begin;
    std::size_t first;
    std::size_t count;

    bool Answers(std::size_t item) const { return item >= first && item - first < count; }
};

/// The pieces of the time line in their order.
std::vector<Piece> PiecesOf(const DisplaySequence& sequence) {
    std::unordered_map<const DisplayItem*, std::size_t> positions;
    for (const DisplayItem* const item : sequence.Items())
        positions.emplace(item, positions.size());
    std::vector<Piece> pieces;
    for (std::optional<MediaTime> time = 0; time; time = sequence.NextChange(*time)) {
        const ItemList answer = sequence.PlainAnswer(*time);
        const bool isOnScreen = !answer.empty() && sequence.IsOnScreen(*answer.front(), *time);
        pieces.push_back(
            {*time, isOnScreen ? positions.at(answer.front()) : 0, isOnScreen ? answer.size() : 0});
    }
    return pieces;
}

/// How long each item is answered.
std::vector<MediaTime> AnsweredTimes(const std::vector<Piece>& pieces, std::size_t items) {
    std::vector<MediaTime> times(items);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const MediaTime end = i + 1 < pieces.size() ? pieces[i + 1].begin : endOfTime;
        for (std::size_t item = pieces[i].first; pieces[i].Answers(item); ++item)
            times[item] += end - pieces[i].begin;
    }
    return times;
}

/// What is answered in the first piece from a time on in which an item is not; there is one.
std::size_t FindHiding(const std::vector<Piece>& pieces, MediaTime begin, std::size_t item) {
    auto piece = std::lower_bound(pieces.begin(), pieces.end(), begin,
                                  [](const Piece& left, MediaTime right) { return left.begin < right; });
    while (piece->Answers(item))
        ++piece;
    return piece->first;
}

} // namespace

std::vector<HiddenTime> FindHiddenTimes(const DisplaySequence& sequence) {
    const std::vector<Piece> pieces = PiecesOf(sequence);
    const std::vector<MediaTime> answered = AnsweredTimes(pieces, sequence.Items().size());
    std::vector<HiddenTime> times(answered.size());
    for (std::size_t i = 0; i < times.size(); ++i) {
        const TimeSpan span = sequence.SpanOf(*sequence.Items()[i]);
        const MediaTime begin = std::max<MediaTime>(span.begin.value_or(0), 0);
        times[i].onScreen = span.end ? std::max<MediaTime>(*span.end - begin + 1, 0) : 0;
        times[i].hidden = times[i].onScreen - answered[i];
        if (times[i].hidden > 0)
            times[i].by = FindHiding(pieces, begin, i);
    }
    return times;
}

} // namespace xttml
