#include "VorBomColumns.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <type_traits>
#include <utility>

namespace
{
const VorString kName(L"%Name");
const VorString kWeight(L"%Weight");

// What `columns` finds in the row, as texts with blanks between; "-" for nothing.
VorString found(VorBomColumns& columns, VorBomItemBase& row)
{
    const VorBomColumns::Found tuples = columns.find(row);
    VorString text;
    for (int i = 0; i < columns.count(); ++i)
    {
        text += i == 0 ? L"" : L" ";
        text += tuples[i] == nullptr ? VorString(L"-") : tuples[i]->value().asString();
    }
    return text;
}

VorBomColumns nameAndWeight()
{
    return VorBomColumns(std::make_shared<VorBomTuplePositions>(), { kName, kWeight });
}
}

TEST(VorBomColumnsTest, TheFirstTupleOfEachTokenIsFound)
{
    VorBomDataRow row;
    addTuples(row, { VorBomDataTuple(kWeight, 1), VorBomDataTuple(kName, 2), VorBomDataTuple(kWeight, 3) });
    VorBomColumns columns = nameAndWeight();

    EXPECT_EQ(VorString(L"2 1"), found(columns, row));
    EXPECT_EQ(row.getTupleAt(kWeight), columns.find(row)[1]) << "the row's own tuple, not a copy";
}

TEST(VorBomColumnsTest, WhatIsLeftOutIsFoundInNoRow)
{
    VorBomDataRow row;
    addTuples(row, { VorBomDataTuple(kWeight, 1), VorBomDataTuple(kName, 2) });
    VorBomColumns columns = nameAndWeight();
    columns.leaveOut(0);

    EXPECT_EQ(VorString(L"- 1"), found(columns, row));
    row.addData(VorBomDataTuple(kName, 3));
    EXPECT_EQ(VorString(L"- 1"), found(columns, row)) << "after it has grown neither";
}

TEST(VorBomColumnsTest, WhatWasFoundForOneRowIsNotTakenForAnother)
{
    VorBomDataRow nameFirst;
    VorBomDataRow weightFirst;
    VorBomDataRow weightOnly;
    VorBomDataRow nothing;
    addTuples(nameFirst, { VorBomDataTuple(kName, 1), VorBomDataTuple(kWeight, 2) });
    addTuples(weightFirst, { VorBomDataTuple(kWeight, 4), VorBomDataTuple(kName, 3) });
    addTuples(weightOnly, { VorBomDataTuple(kWeight, 6) });
    VorBomColumns columns = nameAndWeight();

    for (int round = 0; round < 2; ++round)
    {
        EXPECT_EQ(VorString(L"1 2"), found(columns, nameFirst));
        EXPECT_EQ(VorString(L"3 4"), found(columns, weightFirst));
        EXPECT_EQ(VorString(L"- 6"), found(columns, weightOnly));
        EXPECT_EQ(VorString(L"- -"), found(columns, nothing));
    }
}

TEST(VorBomColumnsTest, EqualTokensInTextsOfTheirOwnAreFound)
{
    VorBomDataRow row;
    addTuples(row, { tuple(L"%Weight", 1), tuple(L"%Name", 2) });
    VorBomColumns columns = nameAndWeight();

    EXPECT_EQ(VorString(L"2 1"), found(columns, row));
}

TEST(VorBomColumnsTest, TupleAppendedSinceTheLastLookUpIsFound)
{
    VorBomDataRow row;
    row.addData(VorBomDataTuple(kName, 1));
    VorBomColumns columns = nameAndWeight();
    ASSERT_EQ(VorString(L"1 -"), found(columns, row));

    row.addData(VorBomDataTuple(kWeight, 2));

    EXPECT_EQ(VorString(L"1 2"), found(columns, row));
}

TEST(VorBomColumnsTest, EmptyTokenFindsATupleWithoutOne)
{
    VorBomDataRow row;
    addTuples(row, { VorBomDataTuple(kName, 1), VorBomDataTuple(VorString(), 2) });
    VorBomColumns columns(std::make_shared<VorBomTuplePositions>(), { VorString() });

    EXPECT_EQ(VorString(L"2"), found(columns, row));
}

TEST(VorBomColumnsTest, ColumnsThatShareTheirPositionsFindTheirOwnTokens)
{
    VorBomDataRow row;
    addTuples(row, { VorBomDataTuple(kName, 1), VorBomDataTuple(kWeight, 2) });
    const auto pPositions = std::make_shared<VorBomTuplePositions>();
    VorBomColumns names(pPositions, { kName });
    VorBomColumns weights(pPositions, { kWeight });

    EXPECT_EQ(VorString(L"1"), found(names, row));
    EXPECT_EQ(VorString(L"2"), found(weights, row));
}

TEST(VorBomColumnsTest, RandomRowsAreReadAsLookingUpTokenByTokenDoes)
{
    std::mt19937 random(5);
    const VorString tokens[] = { kName, kWeight, L"%A", L"%B", L"%C", L"", L"%Weigh", L"%D" };
    VorBomColumns columns(std::make_shared<VorBomTuplePositions>(), { kName, kWeight, L"%B", L"", kName });
    const VorString asked[] = { kName, kWeight, L"%B", L"", kName };
    std::vector<VorBomDataRow> rows(3000);
    for (int step = 0; step < 20000; ++step)
    {
        VorBomDataRow& row = rows[step < 10000 ? random() % 4 : random() % rows.size()];
        if (row.getData().length() < 8 && random() % 3 == 0)
        {
            const VorString& token = tokens[random() % 8];
            row.addData(VorBomDataTuple(random() % 8 == 0 ? VorString(token.getStringW()) : token, step));
        }

        const VorBomColumns::Found tuples = columns.find(row);

        for (int i = 0; i < columns.count(); ++i)
            ASSERT_EQ(row.getTupleAt(asked[i]), tuples[i]) << step;
    }
}

TEST(VorBomColumnsTest, ColumnsThatWereMovedGoOnFinding)
{
    static_assert(std::is_nothrow_move_constructible<VorBomColumns>::value, "lists of columns grow by moving");
    VorBomDataRow row;
    addTuples(row, { VorBomDataTuple(kWeight, 1), VorBomDataTuple(kName, 2) });
    VorBomColumns columns = nameAndWeight();
    ASSERT_EQ(VorString(L"2 1"), found(columns, row));

    VorBomColumns moved(std::move(columns));

    EXPECT_EQ(VorString(L"2 1"), found(moved, row));
}
