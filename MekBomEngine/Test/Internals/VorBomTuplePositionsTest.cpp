#include "VorBomTuplePositions.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>
#include <string>
#include <vector>

namespace
{
const VorString kName(L"%Name");
const VorString kWeight(L"%Weight");
const VorString kLength(L"%Length");
constexpr int kNone = VorBomTuplePositions::kNone;

void addTokens(VorBomDataRow& row, std::initializer_list<VorString> tokens)
{
    for (const VorString& token : tokens)
        row.addData(VorBomDataTuple(token, 0));
}

VorString tokenNumbered(int number)
{
    return VorString((L"%T" + std::to_wstring(number)).c_str());
}
}

TEST(VorBomTuplePositionsTest, EachTokenAskedForIsFoundAtItsFirstTuple)
{
    VorBomDataRow row;
    addTokens(row, { kLength, kWeight, kName, kWeight });
    VorBomTuplePositions positions;
    const int name = positions.ask(kName);
    const int weight = positions.ask(kWeight);
    const int nobody = positions.ask(L"%Nobody");

    EXPECT_EQ(2, positions.in(row)[name]);
    EXPECT_EQ(1, positions.in(row)[weight]);
    EXPECT_EQ(kNone, positions.in(row)[nobody]);
    EXPECT_EQ(kNone, positions.in(row)[VorBomTuplePositions::kNotAsked]);
}

TEST(VorBomTuplePositionsTest, EqualTokensHaveOneNumberAndAreFoundInTextsOfTheirOwn)
{
    VorBomDataRow row;
    addTokens(row, { kLength, VorString(kName.getStringW()) });
    VorBomTuplePositions positions;
    const int name = positions.ask(kName);

    EXPECT_EQ(name, positions.ask(VorString(kName.getStringW())));
    EXPECT_EQ(1, positions.in(row)[name]);
}

TEST(VorBomTuplePositionsTest, TokenAskedForLateIsFoundInRowsMetBefore)
{
    VorBomDataRow row;
    addTokens(row, { kName, kWeight });
    VorBomTuplePositions positions;
    const int name = positions.ask(kName);
    ASSERT_EQ(0, positions.in(row)[name]);

    const int weight = positions.ask(kWeight);

    EXPECT_EQ(1, positions.in(row)[weight]);
    EXPECT_EQ(0, positions.in(row)[name]);
}

TEST(VorBomTuplePositionsTest, TwoRowsStayValidWhileTheyTakeTurns)
{
    VorBomDataRow first, second, third;
    addTokens(first, { kName });
    addTokens(second, { kWeight, kName });
    addTokens(third, { kWeight, kLength, kName });
    VorBomTuplePositions positions;
    const int name = positions.ask(kName);

    const int* pFirst = positions.in(first);
    const int* pSecond = positions.in(second);
    EXPECT_EQ(0, pFirst[name]);
    EXPECT_EQ(1, pSecond[name]);
    EXPECT_EQ(pFirst, positions.in(first));
    EXPECT_EQ(2, positions.in(third)[name]);
    EXPECT_EQ(0, pFirst[name]) << "asked about since the second was";
    EXPECT_EQ(0, positions.in(first)[name]);
    EXPECT_EQ(1, positions.in(second)[name]);
}

TEST(VorBomTuplePositionsTest, TokensBehindAllThatAreAskedForMakeNoDifference)
{
    VorBomDataRow first, longer, shorter, moved;
    addTokens(first, { kName, kWeight, kLength });
    addTokens(longer, { kName, kWeight, L"%Phase", kName, kWeight });
    addTokens(shorter, { kName });
    addTokens(moved, { kName, kLength, kWeight });
    VorBomTuplePositions positions;
    const int name = positions.ask(kName);
    const int weight = positions.ask(kWeight);
    ASSERT_EQ(1, positions.in(first)[weight]);

    EXPECT_EQ(0, positions.in(longer)[name]);
    EXPECT_EQ(1, positions.in(longer)[weight]);
    EXPECT_EQ(kNone, positions.in(shorter)[weight]) << "a row that ends before them";
    EXPECT_EQ(1, positions.in(first)[weight]);
    EXPECT_EQ(2, positions.in(moved)[weight]);
    EXPECT_EQ(0, positions.in(moved)[name]);
}

TEST(VorBomTuplePositionsTest, RowThatGrowsIsLookedAtFromThereOn)
{
    VorBomDataRow row;
    addTokens(row, { kName });
    VorBomTuplePositions positions;
    const int name = positions.ask(kName);
    const int weight = positions.ask(kWeight);
    ASSERT_EQ(kNone, positions.in(row)[weight]);

    addTokens(row, { kLength, kWeight, kName });

    EXPECT_EQ(2, positions.in(row)[weight]);
    EXPECT_EQ(0, positions.in(row)[name]);
}

TEST(VorBomTuplePositionsTest, RowThatShrinksIsLookedAtAnew)
{
    VorBomDataRow row;
    addTokens(row, { kName, kWeight });
    VorBomTuplePositions positions;
    const int weight = positions.ask(kWeight);
    ASSERT_EQ(1, positions.in(row)[weight]);

    VorBomDataTupleArray one;
    one.append(VorBomDataTuple(kWeight, 0));
    row.setData(one);
    EXPECT_EQ(0, positions.in(row)[weight]);
    row.setData(VorBomDataTupleArray());
    EXPECT_EQ(kNone, positions.in(row)[weight]);
}

// More texts than are remembered: each is told by its characters then.
TEST(VorBomTuplePositionsTest, TokensInAnyNumberOfTextsAreFound)
{
    VorBomTuplePositions positions;
    std::vector<int> numbers;
    for (int i = 0; i < 100; ++i)
        numbers.push_back(positions.ask(tokenNumbered(i)));
    for (int round = 0; round < 100; ++round)
    {
        VorBomDataRow row;
        for (int i = 199; i >= 0; --i)
            addTokens(row, { tokenNumbered(i) });
        const int* pPositions = positions.in(row);
        for (int i = 0; i < 100; ++i)
            ASSERT_EQ(199 - i, pPositions[numbers[static_cast<std::size_t>(i)]]);
    }
    const VorBomDataRow empty;
    EXPECT_EQ(kNone, positions.in(empty)[numbers[0]]);
}

TEST(VorBomTuplePositionsTest, RandomRowsThatComeGrowAndGoAreReadAsLookingUpEachTokenDoes)
{
    const VorString tokens[] = { kName, kWeight, kLength, VorString(), L"%A", L"%B" };
    std::mt19937 random(3);
    VorBomTuplePositions positions;
    const int numbers[] = { positions.ask(kName), positions.ask(kLength), positions.ask(VorString()) };
    const VorString asked[] = { kName, kLength, VorString() };
    std::vector<VorBomDataRow> rows(5);
    for (int step = 0; step < 20000; ++step)
    {
        VorBomDataRow& row = rows[random() % rows.size()];
        if (random() % 3 == 0 && row.getData().length() < 6)
            for (auto numMore = 1 + random() % 2; numMore > 0; --numMore)
                addTokens(row, { tokens[random() % 6] });
        else if (random() % 8 == 0)
            row.setData(VorBomDataTupleArray());
        const int* pPositions = positions.in(row);

        for (int i = 0; i < 3; ++i)
        {
            const VorBomDataTuple* pExpected = row.getTupleAt(asked[i]);
            ASSERT_EQ(pExpected,
                      pPositions[numbers[i]] == kNone ? nullptr : row.getData().begin() + pPositions[numbers[i]])
                << "step " << step;
        }
    }
}
