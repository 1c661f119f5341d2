#include "tools/xttml/commands/commands.h"

#include "tools/xttml/document/screen.h"
#include "tools/xttml/output/item_text.h"
#include "tools/xttml/output/json_output.h"

#include <algorithm>
#include <chrono>
#include <fmt/format.h>
#include <functional>
#include <iterator>
#include <thread>
#include <utility>

namespace xttml {

namespace {

/// An item that comes on screen or goes.
struct Change {
    MediaTime time;
    bool comes;
    const DisplayItem& item;
};

using ChangeText = std::function<std::string(const Change&)>;

std::string ToLine(const Change& change, const DisplaySequence& sequence) {
    return FormatTime(change.time) + (change.comes ? "  +  " : "  -  ") +
           ScreenLine(change.item, sequence.Images()) + '\n';
}

std::string ToJsonLine(const Change& change, JsonItems& items) {
    return fmt::format("{{\"time\":{},\"change\":\"{}\",\"item\":{}}}\n", change.time,
                       change.comes ? "comes" : "goes", items.ToText(change.item));
}

/// What is on screen over time.
class Screens {
public:
    Screens(const DisplaySequence& sequence, Query query) : sequence_(sequence), query_(query) {}

    /// Moves to a time, a later one each time.
    void MoveTo(MediaTime time) {
        previousTime_ = std::exchange(time_, time);
        previous_ = std::exchange(items_, LookAt(sequence_, time, query_).items);
    }
    /// What has come since the last time and what has gone.
    ItemList Come() const { return Missing(items_, previous_, previousTime_); }
    ItemList Gone() const { return Missing(previous_, items_, time_); }

private:
    /// The items that are not among the others, which are on screen at a time.
    ItemList Missing(const ItemList& items, const ItemList& others, std::optional<MediaTime> time) const {
        const auto isAmongOthers = [&](const DisplayItem* item) {
            return query_ == Query::ALL ? time && sequence_.IsOnScreen(*item, *time)
                                        : std::find(others.begin(), others.end(), item) != others.end();
        };
        ItemList missing;
        std::remove_copy_if(items.begin(), items.end(), std::back_inserter(missing), isAmongOthers);
        return missing;
    }

    const DisplaySequence& sequence_;
    Query query_;
    std::optional<MediaTime> previousTime_, time_;
    ItemList previous_, items_;
};

/// Writes what comes and goes, in real time when asked to.
class ChangeWriter {
public:
    ChangeWriter(StandardOutput& output, ChangeText toText, std::optional<MediaTime> realtimeFrom)
        : output_(output), toText_(std::move(toText)), realtimeFrom_(realtimeFrom),
          start_(std::chrono::steady_clock::now()) {}

    void Write(MediaTime time, const ItemList& gone, const ItemList& come) {
        if (gone.empty() && come.empty())
            return;
        anyChange_ = true;
        WaitUntil(time);
        for (const DisplayItem* const item : gone)
            output_.Write(toText_({time, false, *item}));
        for (const DisplayItem* const item : come)
            output_.Write(toText_({time, true, *item}));
        if (realtimeFrom_)
            output_.Flush();
    }

    bool AnyChange() const { return anyChange_; }

private:
    void WaitUntil(MediaTime time) const {
        if (realtimeFrom_)
            std::this_thread::sleep_until(start_ + std::chrono::milliseconds(time - *realtimeFrom_));
    }

    StandardOutput& output_;
    ChangeText toText_;
    std::optional<MediaTime> realtimeFrom_;
    std::chrono::steady_clock::time_point start_;
    bool anyChange_ = false;
};

/// The first time at which something is on screen, or where the document's time line begins.
MediaTime StartOf(const DisplaySequence& sequence, MediaTime origin) {
    return sequence.OnScreen(origin).empty() ? sequence.NextChange(origin).value_or(origin) : origin;
}

void Play(const DisplaySequence& sequence, Query query, MediaTime from, std::optional<MediaTime> to,
          ChangeWriter& writer) {
    Screens screens(sequence, query);
    for (std::optional<MediaTime> time = from; time && time <= to.value_or(*time);
         time = sequence.NextChange(*time)) {
        screens.MoveTo(*time);
        writer.Write(*time, screens.Gone(), screens.Come());
    }
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
    const ChangeText toText = [&](const Change& change) {
        return options.json ? ToJsonLine(change, items) : ToLine(change, sequence);
    };
    ChangeWriter writer(output, toText, options.realtime ? std::optional(from) : std::nullopt);
    Play(sequence, options.query, from, to, writer);
    if (!writer.AnyChange() && !options.json)
        output.Write("nothing comes on screen\n");
}

} // namespace xttml
