#include "tools/xttml/commands/commands.h"

#include "tools/xttml/document/screen.h"
#include "tools/xttml/output/item_text.h"
#include "tools/xttml/output/json_output.h"

#include <algorithm>
#include <chrono>
#include <fmt/format.h>
#include <functional>
#include <thread>
#include <tuple>
#include <utility>

namespace xttml {

namespace {

/// An item that comes on screen or goes.
struct Change {
    MediaTime time;
    bool comes;
    const DisplayItem* item;
};

/// In the order in which they are told: at a time what has gone, then what has come.
using Changes = std::vector<Change>;
/// The line of a change; the item as a text.
using ChangeText = std::function<std::string(const Change&, const std::string& item)>;
using ItemText = std::function<std::string(const DisplayItem&)>;

std::string ToLine(const Change& change, const std::string& item) {
    return FormatTime(change.time) + (change.comes ? "  +  " : "  -  ") + item + '\n';
}

std::string ToJsonLine(const Change& change, const std::string& item) {
    return fmt::format("{{\"time\":{},\"change\":\"{}\",\"item\":{}}}\n", change.time,
                       change.comes ? "comes" : "goes", item);
}

/// What happens to all that is on screen, from a time on.
Changes ChangesOfAll(const DisplaySequence& sequence, MediaTime from) {
    Changes changes;
    for (const DisplayItem* const item : sequence.Items()) {
        const std::optional<Appearance> appearance = sequence.AppearanceOf(*item);
        if (!appearance || appearance->goes.value_or(from + 1) <= from)
            continue;
        changes.push_back({std::max(appearance->comes, from), true, item});
        if (appearance->goes)
            changes.push_back({*appearance->goes, false, item});
    }
    std::stable_sort(changes.begin(), changes.end(), [](const Change& left, const Change& right) {
        return std::tie(left.time, left.comes) < std::tie(right.time, right.comes);
    });
    return changes;
}

void AppendMissing(const ItemList& items, const ItemList& others, const Change& change, Changes& changes) {
    for (const DisplayItem* const item : items)
        if (std::find(others.begin(), others.end(), item) == others.end())
            changes.push_back({change.time, change.comes, item});
}

/// What happens to what a player sees that asks by time, from a time on.
Changes ChangesOfFirst(const DisplaySequence& sequence, MediaTime from) {
    Changes changes;
    ItemList previous;
    for (std::optional<MediaTime> time = from; time; time = sequence.NextChange(*time)) {
        ItemList items = LookAt(sequence, *time, Query::FIRST).items;
        AppendMissing(previous, items, {*time, false, nullptr}, changes);
        AppendMissing(items, previous, {*time, true, nullptr}, changes);
        previous = std::move(items);
    }
    return changes;
}

/// Writes changes, in real time when asked to.
class ChangeWriter {
public:
    ChangeWriter(StandardOutput& output, ChangeText toText, ItemText itemText,
                 std::optional<MediaTime> realtimeFrom)
        : output_(output), toText_(std::move(toText)), itemText_(std::move(itemText)),
          realtimeFrom_(realtimeFrom), start_(std::chrono::steady_clock::now()) {}

    void Write(const Change& change) {
        if (realtimeFrom_)
            WaitUntil(change.time);
        output_.Write(toText_(change, TextOf(change.item)));
    }

private:
    /// Most items go before another comes.
    const std::string& TextOf(const DisplayItem* item) {
        if (std::exchange(item_, item) != item)
            text_ = itemText_(*item);
        return text_;
    }
    void WaitUntil(MediaTime time) {
        if (std::exchange(now_, time) == time)
            return;
        output_.Flush();
        std::this_thread::sleep_until(start_ + std::chrono::milliseconds(time - *realtimeFrom_));
    }

    StandardOutput& output_;
    ChangeText toText_;
    ItemText itemText_;
    const DisplayItem* item_ = nullptr;
    std::string text_; // of that item
    std::optional<MediaTime> realtimeFrom_;
    std::chrono::steady_clock::time_point start_;
    std::optional<MediaTime> now_;
};

/// The first time at which something is on screen, or where the document's time line begins.
MediaTime StartOf(const DisplaySequence& sequence, MediaTime origin) {
    return sequence.OnScreen(origin).empty() ? sequence.NextChange(origin).value_or(origin) : origin;
}

std::optional<MediaTime> TimeOf(const std::optional<WrittenTime>& time, Document& document) {
    return time ? std::optional(document.TimeOf(*time)) : std::nullopt;
}

} // namespace

void RunCommand(const PlayOptions& options, const Input& input, StandardOutput& output) {
    Document document(input);
    const DisplaySequence& sequence = document.Sequence();
    const MediaTime from = TimeOf(options.from, document).value_or(StartOf(sequence, input.offset));
    const std::optional<MediaTime> to = TimeOf(options.to, document);
    const ItemOrigins origins = options.json ? document.Origins() : ItemOrigins();
    JsonItems items(sequence, origins, options.detail);
    const ItemText itemText = [&](const DisplayItem& item) {
        return options.json ? items.ToText(item) : ScreenLine(item, sequence.Images());
    };
    ChangeWriter writer(output, options.json ? ToJsonLine : ToLine, itemText,
                        options.realtime ? std::optional(from) : std::nullopt);
    const Changes changes =
        options.query == Query::ALL ? ChangesOfAll(sequence, from) : ChangesOfFirst(sequence, from);
    const auto end = std::find_if(changes.begin(), changes.end(),
                                  [&to](const Change& change) { return to && change.time > *to; });
    std::for_each(changes.begin(), end, [&writer](const Change& change) { writer.Write(change); });
    if (end == changes.begin() && !options.json)
        output.Write("nothing comes on screen\n");
}

} // namespace xttml
