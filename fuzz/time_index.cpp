// Any items at any times: the index answers every query as a walk over the items does.
#include "parser/time_index.h"
#include "fuzz/choices.h"
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "fuzz/item_invariants.h"

#include <memory>
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

void RequireAnswer(const TimeIndex& index, const std::vector<DisplayItem*>& items, std::int32_t signedTime) {
    const auto time = static_cast<std::uint32_t>(signedTime);
    Require(index.rFind(time).value_or(items.size()) == FindByWalking(items, time), "the index as the walk");
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
