#include "tests/parser/loaded_parser.h"

#include <array>
#include <random>

namespace {

struct Span {
    int iBegin, iEnd;
};

class DisplayQueries : public LoadedParser {
protected:
    /// Makes items with these times; the label of item i is the number of line breaks in it: i + 1.
    void vMake(const std::vector<Span>& spans, int iOffset = 0) {
        std::string strParagraphs;
        std::string strBreaks;
        for (const Span& span : spans) {
            strBreaks += "<br/>";
            strParagraphs += "<p begin='" + std::to_string(span.iBegin) + "ms' end='" +
                             std::to_string(span.iEnd) + "ms'>" + strBreaks + "</p>";
        }
        vGenerateText(strParagraphs, "", "", iOffset);
    }
    int iIndexOf(const DisplayItem* pItem) const {
        const auto& items = parser.vecGetDisplaySequence();
        const auto found = std::find(items.begin(), items.end(), pItem);
        return found == items.end() ? -1 : static_cast<int>(found - items.begin());
    }
    int iAt(std::uint32_t uTime) { return iIndexOf(parser.rGetDisplayItemByTime(uTime)); }
    std::string strArrayAt(std::uint32_t uTime) const {
        std::array<DisplayItem*, 4> aItems;
        aItems.fill(reinterpret_cast<DisplayItem*>(1));
        parser.vGetDisplayItemArrayByTime(aItems.data(), uTime);
        std::string strIndices;
        for (const DisplayItem* pItem : aItems)
            strIndices += pItem ? std::to_string(iIndexOf(pItem)) : "-";
        return strIndices;
    }
    /// The count, and what the first slots hold: "=" as before.
    std::string strOnScreenAt(std::uint32_t uTime, std::uint32_t uCapacity) const {
        DisplayItem untouched;
        std::array<DisplayItem*, 5> aItems;
        aItems.fill(&untouched);
        std::string strFound =
            std::to_string(parser.uGetDisplayItemsOnScreen(aItems.data(), uCapacity, uTime)) + ":";
        for (const DisplayItem* pItem : aItems)
            strFound += pItem == &untouched ? "=" : std::to_string(iIndexOf(pItem));
        return strFound;
    }
};

TEST_F(DisplayQueries, FindTheItemOnScreenOrTheNext) {
    vMake({{1000, 2000}, {2000, 2500}, {6000, 7000}, {4000, 4500}});
    EXPECT_EQ(iAt(0), 0);
    EXPECT_EQ(iAt(1000), 0);
    EXPECT_EQ(iAt(2000), 0);
    EXPECT_EQ(iAt(2001), 1);
    EXPECT_EQ(iAt(3000), 2) << "the next in sequence order, not in time";
    EXPECT_EQ(iAt(4200), 3);
    EXPECT_EQ(iAt(7001), -1);
    EXPECT_EQ(iAt(4294967295U), -1) << "-1 as a signed time";
}

TEST_F(DisplayQueries, CompareTheNextBeginAsUnsigned) {
    vMake({{0, 100}, {5000, 6000}}, -1000);
    EXPECT_EQ(iAt(4500), 1);
    EXPECT_EQ(iAt(5001), 0) << "a begin of -1000 counts as later than every positive time";
    EXPECT_EQ(iAt(static_cast<std::uint32_t>(-1000)), 0);
}

TEST_F(DisplayQueries, AnItemThatNeverEndsContainsNoTime) {
    vGenerateText("<p begin='1s'>a</p><p end='2s'>b</p>");
    EXPECT_EQ(iAt(1500), 1) << "a begin of -1 lies before every time";
    EXPECT_EQ(iAt(2001), 1) << "and after every time, compared as unsigned";
    EXPECT_EQ(iAt(500), 1);
}

TEST_F(DisplayQueries, FillAnArrayWithAdjacentItemsOfTheSameTimes) {
    vMake({{1000, 2000},
           {1000, 2000},
           {1000, 2000},
           {1000, 2000},
           {1000, 2000},
           {3000, 4000},
           {1000, 2000},
           {5000, 6000},
           {5000, 6001}});
    EXPECT_EQ(strArrayAt(1500), "0123");
    EXPECT_EQ(strArrayAt(2500), "5---");
    EXPECT_EQ(strArrayAt(5500), "7---");
    EXPECT_EQ(strArrayAt(9000), "----");
}

TEST_F(DisplayQueries, TellAllThatIsOnScreenInSequenceOrder) {
    vMake({{3000, 4000}, {0, 10000}, {1000, 2000}, {2000, 3000}, {9000, 8000}});
    EXPECT_EQ(strOnScreenAt(3000, 5), "3:013==");
    EXPECT_EQ(strOnScreenAt(3000, 2), "3:01===") << "the first of them";
    EXPECT_EQ(strOnScreenAt(8500, 5), "1:1====");
    EXPECT_EQ(strOnScreenAt(10001, 5), "0:=====");
    EXPECT_EQ(strOnScreenAt(4294967295U, 5), "0:=====") << "-1 as a signed time";
    EXPECT_EQ(parser.uGetDisplayItemsOnScreen(nullptr, 0, 3000), 3U);
    EXPECT_EQ(parser.uGetDisplayItemsOnScreen(nullptr, 5, 3000), 3U);
}

TEST_F(DisplayQueries, TellTheNextChange) {
    vMake({{5000, 6000}, {1000, 2000}, {2001, 3000}, {2500, 2600}, {9000, 8000}});
    std::vector<std::int32_t> vecChanges;
    for (auto iChange = parser.rGetNextChange(INT32_MIN); iChange; iChange = parser.rGetNextChange(*iChange))
        vecChanges.push_back(*iChange);
    EXPECT_EQ(vecChanges, (std::vector<std::int32_t>{1000, 2001, 2500, 2601, 3001, 5000, 6001}));
}

TEST_F(DisplayQueries, TheArrayQueriesLeaveTheCurrentItem) {
    vMake({{0, 10}, {20, 30}});
    EXPECT_EQ(iIndexOf(parser.rCombineSameTimeItem()), 0) << "before the first query";
    EXPECT_EQ(iAt(25), 1);
    strArrayAt(5);
    strOnScreenAt(5, 1);
    EXPECT_EQ(iIndexOf(parser.rCombineSameTimeItem()), 1);
}

TEST_F(DisplayQueries, CombineTheItemsThatFollowWithTheSameTimes) {
    vMake({{0, 1000}, {0, 1000}, {0, 2000}, {0, 1000}});
    auto* pCurrent = dynamic_cast<TextItem*>(parser.rGetDisplayItemByTime(500));
    ASSERT_EQ(iIndexOf(pCurrent), 0);
    EXPECT_EQ(parser.rCombineSameTimeItem(), pCurrent);
    EXPECT_TRUE(pCurrent->fgCombined);
    EXPECT_EQ(pCurrent->vecContent.size(), 1U + 1U + 2U);
    parser.rCombineSameTimeItem();
    EXPECT_EQ(pCurrent->vecContent.size(), 4U) << "merged once";
    EXPECT_EQ(pCurrent->vecSentence.size(), 1U) << "sentences are not merged";

    auto* pAlone = dynamic_cast<TextItem*>(parser.rGetDisplayItemByTime(1500));
    ASSERT_EQ(iIndexOf(pAlone), 2);
    parser.rCombineSameTimeItem();
    EXPECT_FALSE(pAlone->fgCombined);
}

TEST_F(DisplayQueries, AnswerAnEmptySequence) {
    EXPECT_EQ(parser.rGetDisplayItemByTime(0), nullptr);
    EXPECT_EQ(parser.rCombineSameTimeItem(), nullptr);
    EXPECT_EQ(strArrayAt(0), "----");
    EXPECT_EQ(strOnScreenAt(0, 5), "0:=====");
    EXPECT_EQ(parser.rGetNextChange(INT32_MIN), std::nullopt);
    vMake({{0, 1}, {5, 6}});
    EXPECT_EQ(iAt(5), 1);
    parser.vClearDisplaySequence();
    EXPECT_EQ(parser.rCombineSameTimeItem(), nullptr);
}

} // namespace
