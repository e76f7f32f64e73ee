#include "VorBomRowLayouts.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <map>
#include <random>
#include <set>
#include <vector>

namespace
{
const VorString kName(L"%Name");
const VorString kWeight(L"%Weight");
const VorString kLength(L"%Length");

void addTokens(VorBomDataRow& row, std::initializer_list<VorString> tokens)
{
    for (const VorString& token : tokens)
        row.addData(VorBomDataTuple(token, 0));
}
}

TEST(VorBomRowLayoutsTest, RowsWithTheSameTokensInTheSameOrderHaveOneLayout)
{
    VorBomDataRow rows[5];
    addTokens(rows[0], { kName, kWeight });
    addTokens(rows[1], { kWeight, kName });
    addTokens(rows[2], { kName, kWeight });
    addTokens(rows[3], { kName });
    VorBomRowLayouts layouts;

    EXPECT_EQ(0, layouts.layoutOf(rows[0]));
    EXPECT_EQ(1, layouts.layoutOf(rows[1]));
    EXPECT_EQ(0, layouts.layoutOf(rows[2]));
    EXPECT_EQ(2, layouts.layoutOf(rows[3]));
    EXPECT_EQ(3, layouts.layoutOf(rows[4])) << "no tuples are a layout too";
    EXPECT_EQ(1, layouts.layoutOf(rows[1]));
}

TEST(VorBomRowLayoutsTest, RowThatGrewHasAnotherLayout)
{
    VorBomDataRow row;
    VorBomDataRow other;
    addTokens(row, { kName });
    addTokens(other, { kName });
    VorBomRowLayouts layouts;
    ASSERT_EQ(0, layouts.layoutOf(row));
    ASSERT_EQ(0, layouts.layoutOf(other));

    addTokens(row, { kWeight });

    EXPECT_EQ(1, layouts.layoutOf(row));
    EXPECT_EQ(0, layouts.layoutOf(other));
    EXPECT_EQ(1, layouts.layoutOf(row));
}

TEST(VorBomRowLayoutsTest, RowsThatGrowAlikeShareTheLongerLayout)
{
    VorBomDataRow rows[4];
    VorBomRowLayouts layouts;
    for (VorBomDataRow& row : rows)
    {
        addTokens(row, { kName });
        EXPECT_EQ(0, layouts.layoutOf(row));
        addTokens(row, { kWeight });
        EXPECT_EQ(1, layouts.layoutOf(row));
        EXPECT_EQ(1, layouts.layoutOf(row));
    }
}

TEST(VorBomRowLayoutsTest, RowsThatGrowByAnotherTupleThanTheLastHaveAnotherLayout)
{
    VorBomDataRow rows[4];
    VorBomRowLayouts layouts;
    for (int i = 0; i < 4; ++i)
    {
        addTokens(rows[i], { kName });
        EXPECT_EQ(0, layouts.layoutOf(rows[i]));
        addTokens(rows[i], { i % 2 == 0 ? kWeight : kLength });
        EXPECT_EQ(1 + i % 2, layouts.layoutOf(rows[i]));
    }
    EXPECT_EQ(1, layouts.layoutOf(rows[0]));
    EXPECT_EQ(2, layouts.layoutOf(rows[1]));
}

TEST(VorBomRowLayoutsTest, RowsMayGrowBySeveralTuplesAtOnceOrOneAfterTheOther)
{
    VorBomDataRow byTwo;
    VorBomDataRow byOne;
    VorBomDataRow byTwoInstead;
    VorBomRowLayouts layouts;
    addTokens(byTwo, { kName });
    EXPECT_EQ(0, layouts.layoutOf(byTwo));
    addTokens(byTwo, { kWeight, kLength });
    EXPECT_EQ(1, layouts.layoutOf(byTwo));

    addTokens(byOne, { kName });
    EXPECT_EQ(0, layouts.layoutOf(byOne));
    addTokens(byOne, { kWeight });
    EXPECT_EQ(2, layouts.layoutOf(byOne));
    addTokens(byOne, { kLength });
    EXPECT_EQ(1, layouts.layoutOf(byOne));

    addTokens(byTwoInstead, { kName });
    EXPECT_EQ(0, layouts.layoutOf(byTwoInstead));
    addTokens(byTwoInstead, { kLength, kWeight });
    EXPECT_EQ(3, layouts.layoutOf(byTwoInstead)) << "as many tuples as the last one, in another order";
}

TEST(VorBomRowLayoutsTest, RowsThatGrewAndShrinkAgainHaveTheirFirstLayout)
{
    VorBomDataRow row;
    VorBomDataTupleArray few;
    few.append(VorBomDataTuple(kName, 0));
    row.setData(few);
    VorBomRowLayouts layouts;
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(0, layouts.layoutOf(row));
        addTokens(row, { kWeight });
        EXPECT_EQ(1, layouts.layoutOf(row));
        row.setData(few);
    }
    row.setData(VorBomDataTupleArray());
    EXPECT_EQ(2, layouts.layoutOf(row)) << "no tuples are a layout too";
    row.setData(few);
    EXPECT_EQ(0, layouts.layoutOf(row));
}

TEST(VorBomRowLayoutsTest, RowsThatTakeTurnsInGrowingKeepTheirOwnLayouts)
{
    VorBomDataRow first;
    VorBomDataRow second;
    addTokens(first, { kName });
    addTokens(second, { kWeight });
    VorBomRowLayouts layouts;
    ASSERT_EQ(0, layouts.layoutOf(first));
    ASSERT_EQ(1, layouts.layoutOf(second));

    addTokens(first, { kLength }); // not the latest one
    EXPECT_EQ(2, layouts.layoutOf(first));
    EXPECT_EQ(1, layouts.layoutOf(second));
    addTokens(second, { kLength });
    EXPECT_EQ(3, layouts.layoutOf(second));
    EXPECT_EQ(2, layouts.layoutOf(first));
    EXPECT_EQ(3, layouts.layoutOf(second));
}

TEST(VorBomRowLayoutsTest, RowsThatGrowPastTheMostLayoutsHaveNone)
{
    std::vector<VorBomDataRow> rows(VorBomRowLayouts::kMostLayouts);
    VorBomRowLayouts layouts;
    for (VorBomDataRow& row : rows)
    {
        addTokens(row, { VorString(L"%Own") });
        ASSERT_NE(VorBomRowLayouts::kNoLayout, layouts.layoutOf(row));
    }
    for (int i = 0; i < 3; ++i)
    {
        addTokens(rows.back(), { kName });
        EXPECT_EQ(VorBomRowLayouts::kNoLayout, layouts.layoutOf(rows.back()));
    }
    EXPECT_EQ(5, layouts.layoutOf(rows[5]));
}

TEST(VorBomRowLayoutsTest, RowsThatGrowAtRandomHaveOneLayoutPerListOfTokens)
{
    const VorString tokens[] = { kName, kWeight, kLength };
    std::mt19937 random(3);
    std::vector<VorBomDataRow> rows(6);
    std::vector<std::vector<std::size_t>> lists(rows.size());
    std::map<std::vector<std::size_t>, int> expected;
    VorBomRowLayouts layouts;
    for (int step = 0; step < 20000; ++step)
    {
        const std::size_t i = random() % rows.size();
        if (random() % 3 == 0 && lists[i].size() < 4)
        {
            for (std::size_t numMore = 1 + random() % 2; numMore > 0; --numMore)
            {
                lists[i].push_back(random() % 3);
                addTokens(rows[i], { tokens[lists[i].back()] });
            }
        }
        else if (random() % 8 == 0)
        {
            // A row may lose all it had, and what it then gets is asked for from the start.
            lists[i].clear();
            rows[i].setData(VorBomDataTupleArray());
        }
        const auto [it, isNew] = expected.emplace(lists[i], layouts.layoutOf(rows[i]));
        ASSERT_EQ(it->second, layouts.layoutOf(rows[i])) << "step " << step;
    }
    std::set<int> different;
    for (const auto& [list, layout] : expected)
        different.insert(layout);
    EXPECT_EQ(expected.size(), different.size());
}

TEST(VorBomRowLayoutsTest, TokensInTextsOfTheirOwnMakeALayoutOfTheirOwn)
{
    VorBomDataRow row;
    VorBomDataRow other;
    addTokens(row, { kName });
    addTokens(other, { VorString(kName.getStringW()) });
    VorBomRowLayouts layouts;

    EXPECT_NE(layouts.layoutOf(row), layouts.layoutOf(other));
}

TEST(VorBomRowLayoutsTest, PastTheMostLayoutsARowHasNoneAndKnownOnesStay)
{
    std::vector<VorBomDataRow> rows(VorBomRowLayouts::kMostLayouts + 2);
    for (VorBomDataRow& row : rows)
        addTokens(row, { VorString(L"%Own") });
    VorBomRowLayouts layouts;
    for (int i = 0; i < VorBomRowLayouts::kMostLayouts; ++i)
        ASSERT_EQ(i, layouts.layoutOf(rows[static_cast<std::size_t>(i)]));

    EXPECT_EQ(VorBomRowLayouts::kNoLayout, layouts.layoutOf(rows[VorBomRowLayouts::kMostLayouts]));
    EXPECT_EQ(VorBomRowLayouts::kNoLayout, layouts.layoutOf(rows[VorBomRowLayouts::kMostLayouts + 1]));
    EXPECT_EQ(7, layouts.layoutOf(rows[7]));
    EXPECT_EQ(VorBomRowLayouts::kNoLayout, layouts.layoutOf(rows[VorBomRowLayouts::kMostLayouts]));
}
