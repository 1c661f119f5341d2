#include "parser/time_index.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <stdexcept>
#include <vector>

namespace {

/// A sequence of items with given times.
class Sequence {
public:
    void vAdd(int iBegin, int iEnd) {
        owned_.push_back(std::make_unique<DisplayItem>());
        owned_.back()->vSetTime(iBegin, iEnd);
        items.push_back(owned_.back().get());
    }
    /// The plain walk: the first on screen, else the first that begins later, compared as unsigned.
    std::optional<std::size_t> rWalk(std::uint32_t uTime) const {
        const std::vector<std::size_t> vecFound = vecOnScreen(static_cast<int>(uTime));
        if (!vecFound.empty())
            return vecFound.front();
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (static_cast<std::uint32_t>(items[i]->iGetBeginTime()) > uTime)
                return i;
        }
        return std::nullopt;
    }
    std::vector<std::size_t> vecOnScreen(int iTime) const {
        std::vector<std::size_t> vecFound;
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (items[i]->fgCheckTimeInfo(iTime))
                vecFound.push_back(i);
        }
        return vecFound;
    }
    /// All begins and ends, the ms before and after each, and the extremes.
    std::set<int> setTimes() const {
        std::set<int> times = {INT_MIN, -1, 0, 1, INT_MAX};
        for (const DisplayItem* pItem : items) {
            for (const int iTime : {pItem->iGetBeginTime(), pItem->iGetEndTime()}) {
                for (const unsigned int uStep : {UINT_MAX, 0U, 1U})
                    times.insert(static_cast<int>(static_cast<unsigned int>(iTime) + uStep));
            }
        }
        return times;
    }

    std::vector<DisplayItem*> items;

private:
    std::vector<std::unique_ptr<DisplayItem>> owned_;
};

/// Compares the index with the walk wherever the answers can change.
void vCompare(const Sequence& sequence) {
    TimeIndex index;
    index.vBuild(sequence.items);
    const std::set<int> times = sequence.setTimes();
    std::optional<int> iChange;
    for (auto time = times.rbegin(); time != times.rend(); ++time) {
        const auto onScreen = sequence.vecOnScreen(*time);
        std::vector<std::size_t> vecVisited;
        index.vVisitOnScreen(*time, [&](std::size_t uItem) { vecVisited.push_back(uItem); });
        ASSERT_EQ(vecVisited, onScreen) << "at " << *time;
        ASSERT_EQ(index.rFind(static_cast<unsigned>(*time)), sequence.rWalk(static_cast<unsigned>(*time)));
        ASSERT_EQ(index.rFindNextChange(*time), iChange) << "after " << *time;
        if (*time > INT_MIN && sequence.vecOnScreen(*time - 1) != onScreen)
            iChange = *time;
    }
}

TEST(TimeIndex, AnswersAsTheWalkDoes) {
    std::mt19937 random(20261122);
    const auto iBetween = [&](int iLow, int iHigh) {
        return std::uniform_int_distribution<int>(iLow, iHigh)(random);
    };
    vCompare({});
    for (int i = 0; i < 3000; ++i) {
        Sequence sequence;
        const bool fgWide = i % 3 == 0;
        const int iLow = fgWide ? INT_MIN : -20;
        const int iHigh = fgWide ? INT_MAX : 60;
        for (int iItems = iBetween(1, i % 20 == 0 ? 200 : 12); iItems > 0; --iItems)
            sequence.vAdd(iBetween(iLow, iHigh), iBetween(iLow, iHigh));
        vCompare(sequence);
    }
}

TEST(TimeIndex, AnswersForTheExtremesOfTime) {
    Sequence sequence;
    sequence.vAdd(INT_MAX, INT_MAX);
    sequence.vAdd(INT_MIN, INT_MIN);
    sequence.vAdd(INT_MIN, INT_MAX);
    sequence.vAdd(5, 4);
    vCompare(sequence);
}

// Short items come and go, few or many at a time, under some that last.
TEST(TimeIndex, ListsLongSequences) {
    for (const int iShown : {0, 7, 40, 1000}) {
        Sequence sequence;
        for (int i = 0; i < 400; ++i) {
            const int iBegin = i * 83 % 400 * 10;
            sequence.vAdd(iBegin, iBegin + iShown);
            if (i % 100 == 0)
                sequence.vAdd(-5, INT_MAX);
        }
        vCompare(sequence);
    }
}

TEST(TimeIndex, IsCompletedWhenAnExceptionPasses) {
    Sequence sequence;
    TimeIndex index;
    try {
        const TimeIndexCompletion completion(index, sequence.items);
        sequence.vAdd(3, 4);
        throw std::runtime_error("in a paragraph");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(index.uGetItemCount(), 1U);
    EXPECT_EQ(index.rFindNextChange(3), 5);
}

} // namespace
