#include "tools/xttml/commands.h"

#include "tools/xttml/item_text.h"
#include "tools/xttml/media_time.h"
#include "tools/xttml/screen.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <thread>

namespace xttml {

namespace {

// Times are 64 bits wide here: the millisecond after the last one is asked for, too.
constexpr std::int64_t never = std::numeric_limits<std::int32_t>::max() + std::int64_t{1};

/// How long to go at most without asking the library. Without the user's choice it grows with the silence,
/// since a silence may last to the end of all times.
std::int64_t Stride(std::optional<std::int32_t> step, std::int64_t silence) {
    constexpr std::int64_t defaultStep = 40;
    return step ? *step : std::max(defaultStep, silence / 1000);
}

/// Writes what comes and goes, in real time when asked to.
class ChangeWriter {
public:
    ChangeWriter(ToolOutput& output, const ImageBlock& images, std::int64_t from, bool realtime)
        : output_(output), images_(images), from_(from), realtime_(realtime),
          start_(std::chrono::steady_clock::now()) {}

    void Show(const Screen& screen, std::int64_t time) {
        if (screen.items == shown_)
            return;
        lastChange_ = time;
        WaitUntil(time);
        WriteMissing(shown_, screen.items, time, "  -  ");
        WriteMissing(screen.items, shown_, time, "  +  ");
        shown_ = screen.items;
        if (realtime_)
            output_.Flush();
    }

    /// The time of the last change; nothing while nothing has come on screen.
    std::optional<std::int64_t> LastChange() const { return lastChange_; }

private:
    using Items = decltype(Screen::items);

    void WaitUntil(std::int64_t time) const {
        if (realtime_)
            std::this_thread::sleep_until(start_ + std::chrono::milliseconds(time - from_));
    }

    void WriteMissing(const Items& items, const Items& others, std::int64_t time, const char* sign) {
        for (const DisplayItem* const item : items)
            if (item && std::find(others.begin(), others.end(), item) == others.end())
                output_.Write(FormatTime(static_cast<std::int32_t>(time)) + sign +
                              ScreenLine(*item, images_) + '\n');
    }

    ToolOutput& output_;
    const ImageBlock& images_;
    std::int64_t from_;
    bool realtime_;
    std::chrono::steady_clock::time_point start_;
    Items shown_{};
    std::optional<std::int64_t> lastChange_;
};

std::int64_t DocumentStart(x_ttml_handle parser) {
    std::int32_t start = 0;
    std::int32_t end = 0;
    x_ttml_get_document_time(parser, &start, &end);
    const bool startsAtZero = !LookAt(parser, 0).Empty(); // an item without begin does not count as a start
    return startsAtZero ? 0 : std::max(start, 0);
}

/// The first millisecond at which nothing is on screen any more; never when an item has no end.
std::int64_t DocumentEnd(x_ttml_handle parser) {
    std::int32_t start = 0;
    std::int32_t end = 0;
    x_ttml_get_document_time(parser, &start, &end);
    return end < 0 ? never - 1 : end + std::int64_t{1};
}

/// The next time at which the library's answer is known to change; never when it is not known.
std::int64_t KnownChange(const Screen& screen, std::int64_t time) {
    if (!screen.Empty())
        return screen.items.front()->iGetEndTime() + std::int64_t{1};
    const std::int64_t begin = screen.next->iGetBeginTime();
    return begin > time ? begin : never;
}

/// Whether nothing is on screen and nothing will be.
bool Finished(const Screen& screen) {
    return screen.Empty() && !screen.next;
}

// The library answers with the first item in sequence order, so an item may come to light only when its time
// is asked for: behind a longer one, or when the sequence is not in time order. Hence the strides, and the
// step back to the begin of what has come up in between.
void Play(x_ttml_handle parser, std::int64_t from, std::int64_t to, std::optional<std::int32_t> step,
          ChangeWriter& writer) {
    std::int64_t asked = from - 1;
    for (std::int64_t time = from; time <= std::min(to, never - 1);) {
        const Screen screen = LookAt(parser, static_cast<std::int32_t>(time));
        const std::int64_t begin = screen.Empty() ? time : screen.items.front()->iGetBeginTime();
        if (begin > asked && begin < time) {
            time = begin;
            continue;
        }
        writer.Show(screen, time);
        if (Finished(screen))
            return;
        asked = time;
        const std::int64_t silence = time - writer.LastChange().value_or(from);
        time = std::min(KnownChange(screen, time), time + Stride(step, silence));
    }
}

} // namespace

void RunCommand(const PlayOptions& options, Document& document, ToolOutput& output) {
    document.Generate(0);
    const x_ttml_handle parser = document.Handle();
    const std::int64_t from = options.from ? *options.from : DocumentStart(parser);
    const std::int64_t to = options.to ? *options.to : DocumentEnd(parser);
    ChangeWriter writer(output, document.Images(), from, options.realtime);
    Play(parser, from, to, options.step, writer);
    if (!writer.LastChange())
        output.Write("nothing comes on screen\n");
}

} // namespace xttml
