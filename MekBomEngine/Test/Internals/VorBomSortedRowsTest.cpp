#include "VorBomSortedRows.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"
#include "VorStableMergeSort.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace
{
VorArray<int> orders(std::initializer_list<int> directions)
{
    VorArray<int> array;
    for (const int direction : directions)
        array.append(direction);
    return array;
}

// The handles of the rows in sorted order, blanks between.
VorString sorted(VorBomData& data, const VorStringArray& tokens, const VorArray<int>& directions)
{
    VorString text;
    for (const VorBomItemBase* pRow : VorBomSortedRows(data, tokens, directions).sorted())
    {
        text += text.isEmpty() ? L"" : L" ";
        text += static_cast<const VorBomDataRow*>(pRow)->objectHandle();
    }
    return text;
}

void addRow(VorBomData& data, const wchar_t* handle, Tuples tuples)
{
    VorBomDataRow* pRow = newRow(tuples);
    pRow->setObjectHandle(handle);
    data.addChild(pRow);
}

VorBomDataValue randomValue(std::mt19937& random, int kind)
{
    const double kOddDoubles[] = { 1.0, 1.0000006, 1.0000012, -0.0, 0.0, 1e300, -INFINITY, std::nan("") };
    const wchar_t* const kTexts[] = { L"B2", L"B10", L"B02", L"", L"b" };
    switch (kind)
    {
        case 0: return VorBomDataValue(static_cast<int>(random() % 3));
        case 1: return VorBomDataValue(static_cast<double>(random() % 3));
        case 2: return VorBomDataValue(kOddDoubles[random() % 8]);
        case 3: return VorBomDataValue(VorString(kTexts[random() % 5]));
        default: return random() % 9 == 0 ? VorBomDataValue() : randomValue(random, static_cast<int>(random() % 4));
    }
}

// The same order by asking for the two rows' tuples in every comparison.
std::vector<VorBomItemBase*> sortedByComparing(VorBomData& data, const VorStringArray& tokens,
                                               const VorArray<int>& directions)
{
    std::vector<VorBomItemBase*> rows;
    for (VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        rows.push_back(pRow);
    vorStableMergeSort(rows,
                       [&](const VorBomItemBase* pFirst, const VorBomItemBase* pSecond)
                       {
                           VorBomSortKeys keys(tokens, directions);
                           return keys.compare([&](std::size_t key) { return pFirst->getTupleAt(keys.token(key)); },
                                               [&](std::size_t key)
                                               { return pSecond->getTupleAt(keys.token(key)); }) <= 0;
                       });
    return rows;
}
}

TEST(VorBomSortedRowsTest, FirstKeyCountsMostAndEqualRowsKeepTheirOrderInBothDirections)
{
    BomTree<VorBomData> data;
    addRow(data, L"a", { tuple(L"%Material", L"S355"), tuple(L"%Length", 1.0) });
    addRow(data, L"b", { tuple(L"%Material", L"S235"), tuple(L"%Length", 1.0) });
    addRow(data, L"c", { tuple(L"%Length", 2.0), tuple(L"%Material", L"S235") });
    addRow(data, L"d", { tuple(L"%Material", L"S235") });
    addRow(data, L"e", { tuple(L"%Material", L"S235"), tuple(L"%Length", 2.0) });
    const VorStringArray keys = arrayOf({ L"%Material", L"%Length" });

    EXPECT_EQ(VorString(L"d b c e a"), sorted(data, keys, orders({ 1, 1 })));
    EXPECT_EQ(VorString(L"c e b d a"), sorted(data, keys, orders({ 1, 0 })));
    EXPECT_EQ(VorString(L"a d b c e"), sorted(data, keys, orders({ 0, 1 })));
}

TEST(VorBomSortedRowsTest, OfEqualTokensTheFirstOfARowCounts)
{
    BomTree<VorBomData> data;
    addRow(data, L"a", { tuple(L"%Length", 2.0), tuple(L"%Length", 0.0) });
    addRow(data, L"b", { tuple(L"%Length", 1.0), tuple(L"%Length", 5.0) });

    EXPECT_EQ(VorString(L"b a"), sorted(data, arrayOf({ L"%Length" }), orders({ 1 })));
}

TEST(VorBomSortedRowsTest, KeyThatNoRowHasLeavesTheOthersToDecide)
{
    BomTree<VorBomData> data;
    addRow(data, L"a", { tuple(L"%Length", 2.0) });
    addRow(data, L"b", { tuple(L"%Length", 1.0) });
    AssertLog log;

    EXPECT_EQ(VorString(L"b a"), sorted(data, arrayOf({ L"%Nobody", L"", L"%Length" }), orders({ 0, 0, 1 })));
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomSortedRowsTest, TotalsAndFormulasSortByTheValuesUnderTheirWholeText)
{
    BomTree<VorBomData> data;
    addRow(data, L"a", { tuple(L"%Formula:%A*2", 2.0), tuple(L"%SumBy:%Length", 1.0) });
    addRow(data, L"b", { tuple(L"%Formula:%A*2", 1.0), tuple(L"%SumBy:%Length", 2.0) });
    AssertLog log;

    EXPECT_EQ(VorString(L"b a"), sorted(data, arrayOf({ L"%Formula:%A*2" }), orders({ 1 })));
    EXPECT_EQ(VorString(L"b a"), sorted(data, arrayOf({ L"%SumBy:%Length" }), orders({ 0 })));
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorBomSortedRowsTest, RowsAreSortedAsComparingThemOneByOneDoesWhateverTheyHold)
{
    std::mt19937 random(17);
    const wchar_t* const kTokens[] = { L"%Name", L"%Length", L"%Quantity", L"%Material", L"%PosNum" };
    for (int round = 0; round < 1500; ++round)
    {
        BomTree<VorBomData> data;
        int kinds[5];
        for (int& kind : kinds)
            kind = static_cast<int>(random() % 5);
        for (auto row = random() % 40; row > 0; --row)
        {
            VorBomDataRow* pRow = newRow({});
            for (int i = 0; i < 5; ++i)
                if (random() % 6 != 0)
                    pRow->addData(VorBomDataTuple(VorString(kTokens[i]), randomValue(random, kinds[i])));
            data.addChild(pRow);
        }
        VorStringArray keys;
        VorArray<int> directions;
        for (auto key = 1 + random() % 3; key > 0; --key)
        {
            keys.append(VorString(kTokens[random() % 5]));
            directions.append(static_cast<int>(random() % 2));
        }

        EXPECT_EQ(sortedByComparing(data, keys, directions), VorBomSortedRows(data, keys, directions).sorted());
    }
    VorAssert::clearReports(); // of unlike values
}
