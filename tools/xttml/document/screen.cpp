#include "tools/xttml/document/screen.h"

#include <utility>

namespace xttml {

namespace {

Screen LookAtAll(const DisplaySequence& sequence, MediaTime time) {
    Screen screen{sequence.OnScreen(time)};
    if (!screen.items.empty())
        return screen;
    const std::optional<MediaTime> change = sequence.NextChange(time);
    const ItemList coming = change ? sequence.OnScreen(*change) : ItemList();
    screen.next = coming.empty() ? nullptr : coming.front();
    return screen;
}

// The library announces with the same answer that it gives for what is on screen.
Screen LookAtFirst(const DisplaySequence& sequence, MediaTime time) {
    ItemList answer = sequence.PlainAnswer(time);
    if (answer.empty())
        return {};
    if (sequence.IsOnScreen(*answer.front(), time))
        return {std::move(answer)};
    return {{}, answer.front()};
}

} // namespace

Screen LookAt(const DisplaySequence& sequence, MediaTime time, Query query) {
    return query == Query::ALL ? LookAtAll(sequence, time) : LookAtFirst(sequence, time);
}

} // namespace xttml
