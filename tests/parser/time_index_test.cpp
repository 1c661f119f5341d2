#include "parser/time_index.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <optional>
#include <random>
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
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (items[i]->fgCheckTimeInfo(static_cast<int>(uTime)))
                return i;
        }
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (static_cast<std::uint32_t>(items[i]->iGetBeginTime()) > uTime)
                return i;
        }
        return std::nullopt;
    }

    std::vector<DisplayItem*> items;

private:
    std::vector<std::unique_ptr<DisplayItem>> owned_;
};

/// Compares the index with the walk at, before and after every begin and end and at the extremes.
void vCompare(const Sequence& sequence) {
    TimeIndex index;
    index.vBuild(sequence.items);
    std::vector<std::uint32_t> times = {0, 1, INT_MAX, 1U + INT_MAX, UINT_MAX};
    for (const DisplayItem* pItem : sequence.items) {
        for (const int iTime : {pItem->iGetBeginTime(), pItem->iGetEndTime()}) {
            for (const unsigned int uStep : {UINT_MAX, 0U, 1U})
                times.push_back(static_cast<unsigned int>(iTime) + uStep);
        }
    }
    for (const std::uint32_t uTime : times)
        ASSERT_EQ(index.rFind(uTime), sequence.rWalk(uTime)) << "at " << uTime;
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
        for (int iItems = iBetween(1, 12); iItems > 0; --iItems)
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

} // namespace
