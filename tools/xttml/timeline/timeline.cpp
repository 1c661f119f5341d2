#include "tools/xttml/timeline/timeline.h"

#include "tools/xttml/output/item_text.h"
#include "tools/xttml/text/text_encoding.h"
#include "tools/xttml/timeline/lanes.h"
#include "tools/xttml/timeline/time_rows.h"

#include <algorithm>
#include <fmt/ranges.h>
#include <iterator>
#include <utility>
#include <vector>

namespace xttml {

namespace {

using render::Box;

// Everything in px.
constexpr double left = 90; // for the times
constexpr double rowWidth = 1200;
constexpr double gap = 6;
constexpr double headHeight = 2 * (chartLineHeight + gap);
constexpr double leastBar = 2;
constexpr double leastBarWithText = 16;
constexpr double narrowestLetter = 2.5;

constexpr std::size_t longestTitle = 300; // characters
constexpr std::size_t mostNumbersNamed = 30;

struct LegendEntry {
    Mark mark;
    const char* text;
    double width;
};
constexpr LegendEntry legend[] = {
    {Mark::ITEM, "on screen", 60}, {Mark::FORCED, "forced", 60}, {Mark::UNSEEN, "nothing visible", 90}};

Mark MarkOf(const DisplayItem& item) {
    if (IsSeen(item))
        return item.fgForcedDisplay ? Mark::FORCED : Mark::ITEM;
    return item.fgForcedDisplay ? Mark::UNSEEN_FORCED : Mark::UNSEEN;
}

std::string Plural(std::size_t count) {
    return fmt::format("{} item{}", count, count == 1 ? "" : "s");
}

/// What a bar has room for of an item.
std::string BarText(const DisplayItem& item) {
    return x_ttml_item_get_kind(&item) == X_TTML_IMAGE_ITEM
               ? "image"
               : OnOneLine(VisibleText(item, render::WhiteSpace::COLLAPSED));
}

struct Unit {
    MediaTime milliseconds;
    const char* name;
};
constexpr Unit units[] = {{3600000, "h"}, {60000, "min"}, {1000, "s"}};

/// "+30 s", in the unit of the ticks.
std::string TickText(MediaTime time, MediaTime tick) {
    const auto* const unit = std::find_if(std::begin(units), std::prev(std::end(units)),
                                          [tick](const Unit& each) { return tick >= each.milliseconds; });
    return fmt::format("+{} {}", time / unit->milliseconds, unit->name);
}

bool IsCrowded(const Stay& stay) {
    return stay.lane == mostLanes - 1;
}

TimeRows RowsOf(const std::vector<Stay>& stays, MediaTime origin) {
    if (stays.empty())
        return {origin, origin};
    const auto last = std::max_element(stays.begin(), stays.end(),
                                       [](const Stay& a, const Stay& b) { return a.end < b.end; });
    return {stays.front().begin, last->end};
}

/// Draws from top to bottom.
class TimelineBuilder {
public:
    TimelineBuilder(const DisplaySequence& sequence, MediaTime origin)
        : sequence_(sequence), stays_(StaysOf(sequence, origin)), rows_(RowsOf(stays_.onScreen, origin)),
          tops_(rows_.Count() + 1) {
        PlaceRows();
    }

    Chart Build() {
        Add(Mark::PAPER, {0, 0, left + rowWidth + gap, 0}, "");
        AddHead();
        for (std::size_t row = 0; row < rows_.Count(); ++row)
            AddRow(row);
        for (const Stay& stay : stays_.onScreen)
            AddBars(stay);
        AddNotes();
        Box& paper = chart_.shapes.front().box;
        paper.bottom = top_ + gap;
        chart_.size = {static_cast<std::int32_t>(paper.right), static_cast<std::int32_t>(paper.bottom)};
        return std::move(chart_);
    }

private:
    void Add(Mark mark, const Box& box, std::string text, std::string title = {}) {
        chart_.shapes.push_back({mark, box, std::move(text), std::move(title)});
    }
    void AddLine(double begin, double top, const std::string& text) {
        Add(Mark::LABEL, {begin, top, left + rowWidth, top + chartLineHeight}, text);
    }

    /// What of a stay is shown in which rows.
    template <class Visit>
    void VisitParts(const Stay& stay, Visit&& visit) const {
        const MediaTime endOfRow = rows_.BeginOf(rows_.RowOf(stay.begin) + 1);
        rows_.VisitParts(stay.begin, IsCrowded(stay) ? std::min(stay.end, endOfRow) : stay.end, visit);
    }

    void PlaceRows() {
        std::vector<std::size_t> lanes(rows_.Count(), 1);
        for (const Stay& stay : stays_.onScreen) {
            VisitParts(stay, [&](std::size_t row, MediaTime, MediaTime) {
                lanes[row] = std::max(lanes[row], stay.lane + 1);
            });
        }
        top_ = headHeight;
        for (std::size_t row = 0; row < rows_.Count(); ++row) {
            tops_[row] = top_;
            top_ += static_cast<double>(lanes[row]) * chartLineHeight + gap;
        }
        tops_.back() = top_;
    }

    double XOf(std::size_t row, MediaTime time) const {
        return left + rowWidth * static_cast<double>(time - rows_.BeginOf(row)) /
                          static_cast<double>(rows_.Scale().row);
    }

    void AddHead() {
        double x = gap;
        for (const LegendEntry& entry : legend) {
            Add(entry.mark, {x, gap, x + entry.width, gap + chartLineHeight}, entry.text);
            x += entry.width + gap;
        }
        const TimeSpan span = sequence_.WholeSpan();
        AddLine(x, gap, Plural(sequence_.Items().size()) + ", " + SpanText(span));
        for (MediaTime tick = 0; tick < rows_.Scale().row; tick += rows_.Scale().tick)
            AddLine(XOf(0, rows_.BeginOf(0) + tick), headHeight - chartLineHeight,
                    TickText(tick, rows_.Scale().tick));
    }

    void AddRow(std::size_t row) {
        const double bottom = tops_[row + 1] - gap;
        Add(Mark::ROW, {left, tops_[row], left + rowWidth, bottom}, "");
        for (MediaTime tick = 0; tick < rows_.Scale().row; tick += rows_.Scale().tick) {
            const double x = XOf(row, rows_.BeginOf(row) + tick);
            Add(Mark::TICK, {x, tops_[row], x + 1, bottom}, "");
        }
        AddLine(gap, tops_[row], FormatTime(rows_.BeginOf(row)));
    }

    void AddBars(const Stay& stay) {
        const DisplayItem& item = *sequence_.Items()[stay.item];
        const std::string text = BarText(item);
        const std::string title = fmt::format("{}  {}  {}", stay.item + 1, SpanText(sequence_.SpanOf(item)),
                                              ScreenLine(item, sequence_.Images()));
        VisitParts(stay, [&](std::size_t row, MediaTime begin, MediaTime end) {
            const double top = tops_[row] + static_cast<double>(stay.lane) * chartLineHeight;
            const double x = XOf(row, begin);
            const double width = std::max(XOf(row, end) - x, leastBar);
            const auto letters = static_cast<std::size_t>(width / narrowestLetter);
            Add(MarkOf(item), {x, top, x + width, top + chartLineHeight},
                width < leastBarWithText ? "" : Shortened(text, letters), Shortened(title, longestTitle));
        });
    }

    void AddNotes() {
        if (std::any_of(stays_.onScreen.begin(), stays_.onScreen.end(), IsCrowded))
            AddNote(fmt::format("Lane {} holds all that is on screen beside {} others.", mostLanes,
                                mostLanes - 1));
        if (!stays_.never.empty())
            AddNote(NeverText());
    }

    void AddNote(const std::string& text) {
        AddLine(gap, top_, text);
        top_ += chartLineHeight;
    }

    std::string NeverText() const {
        std::vector<std::size_t> numbers(std::min(stays_.never.size(), mostNumbersNamed));
        std::transform(stays_.never.begin(),
                       stays_.never.begin() + static_cast<std::ptrdiff_t>(numbers.size()), numbers.begin(),
                       [](std::size_t item) { return item + 1; });
        return fmt::format("Without an end, or with one before the begin, and so never on screen: {} ({}{})",
                           Plural(stays_.never.size()), fmt::join(numbers, ", "),
                           numbers.size() < stays_.never.size() ? ", ..." : "");
    }

    const DisplaySequence& sequence_;
    Stays stays_;
    TimeRows rows_;
    std::vector<double> tops_; // of the rows, and where the last one ends
    double top_ = 0;           // of what comes next
    Chart chart_;
};

} // namespace

Chart TimelineOf(const DisplaySequence& sequence, MediaTime origin) {
    return TimelineBuilder(sequence, origin).Build();
}

} // namespace xttml
