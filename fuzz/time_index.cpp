// Any items at any times: the index answers every query as a walk over the items does.
#include "parser/time_index.h"
#include "fuzz/choices.h"
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "fuzz/item_invariants.h"

#include <memory>
#include <optional>
#include <vector>

namespace {

/// Times that meet, overlap and lie at the ends of the range.
std::int32_t ChooseTime(Choices& choices) {
    switch (choices.OneOf(4)) {
    case 0:
        return choices.SignedNumber();
    case 1:
        return INT32_MAX - static_cast<std::int32_t>(choices.OneOf(4));
    case 2:
        return INT32_MIN + static_cast<std::int32_t>(choices.OneOf(4));
    default:
        return static_cast<std::int32_t>(choices.OneOf(32)) - 4;
    }
}

/// Of the walk: the first time after another at which an item begins or has ended.
std::optional<std::int32_t> FindNextChange(const std::vector<DisplayItem*>& items, std::int32_t after) {
    std::optional<std::int64_t> next;
    for (const DisplayItem* item : items) {
        for (const std::int64_t time :
             {std::int64_t{item->iGetBeginTime()}, item->iGetEndTime() + std::int64_t{1}}) {
            if (item->iGetBeginTime() <= item->iGetEndTime() && time > after &&
                time < next.value_or(std::int64_t{INT32_MAX} + 1))
                next = time;
        }
    }
    return next ? std::optional<std::int32_t>(static_cast<std::int32_t>(*next)) : std::nullopt;
}

void RequireAnswer(const TimeIndex& index, const std::vector<DisplayItem*>& items, std::int32_t signedTime) {
    const auto time = static_cast<std::uint32_t>(signedTime);
    Require(index.rFind(time).value_or(items.size()) == FindByWalking(items, time), "the index as the walk");
    std::size_t next = 0;
    const auto findOnScreen = [&] {
        while (next < items.size() && !items[next]->fgCheckTimeInfo(signedTime))
            ++next;
        return next++;
    };
    index.vVisitOnScreen(signedTime, [&](std::size_t item) { Require(item == findOnScreen(), "on screen"); });
    Require(findOnScreen() == items.size(), "all that is on screen");
    Require(index.rFindNextChange(signedTime) == FindNextChange(items, signedTime), "the next change");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Choices choices(bytes, size);
    std::vector<std::unique_ptr<DisplayItem>> owned;
    std::vector<DisplayItem*> items;
    for (unsigned count = choices.Byte(); count > 0 && !choices.IsUsedUp(); --count) {
        owned.push_back(std::make_unique<DisplayItem>());
        items.push_back(owned.back().get());
        const std::int32_t begin = ChooseTime(choices);
        items.back()->vSetTime(begin, ChooseTime(choices));
    }
    TimeIndex index;
    index.vBuild(items);
    Require(index.uGetItemCount() == items.size(), "the index knows the items");
    for (const DisplayItem* item : items) {
        for (const std::int32_t time : {item->iGetBeginTime(), item->iGetEndTime()}) {
            RequireAnswer(index, items, time);
            RequireAnswer(index, items, time < INT32_MAX ? time + 1 : INT32_MIN);
            RequireAnswer(index, items, time > INT32_MIN ? time - 1 : INT32_MAX);
        }
    }
    while (!choices.IsUsedUp())
        RequireAnswer(index, items, ChooseTime(choices));
    return 0;
}
