#include "VorBomSortedRows.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <utility>
#include <vector>

namespace
{
VorArray<int> orders(std::initializer_list<int> directions)
{
    VorArray<int> array;
    for (const int direction : directions)
        array.append(direction);
    return array;
}

// By the orders of the catalogue.
VorBomSortKeys keysOf(const VorStringArray& tokens, const VorArray<int>& directions)
{
    VorArray<int> sortTypes;
    for (int i = 0; i < tokens.length(); ++i)
        sortTypes.append(VorBomSortKeys::kByCatalogue);
    return VorBomSortKeys(tokens, directions, sortTypes);
}

// The handles of the rows in sorted order, blanks between.
VorString sorted(VorBomData& data, const VorBomSortKeys& keys)
{
    VorString text;
    for (const VorBomItemBase* pRow : VorBomSortedRows(data, keys).sorted())
    {
        text += text.isEmpty() ? L"" : L" ";
        text += static_cast<const VorBomDataRow*>(pRow)->objectHandle();
    }
    return text;
}

VorString sorted(VorBomData& data, const VorStringArray& tokens, const VorArray<int>& directions)
{
    return sorted(data, keysOf(tokens, directions));
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

// Merges runs of 1, 2, 4 ... rows from the left, of two that may stand before each other the left one first.
template <class IsNotAfter>
void mergeFromTheLeft(std::vector<VorBomItemBase*>& rows, IsNotAfter isNotAfter)
{
    for (std::size_t runLength = 1; runLength < rows.size(); runLength *= 2)
    {
        std::vector<VorBomItemBase*> merged;
        for (std::size_t begin = 0; begin < rows.size(); begin += 2 * runLength)
        {
            const std::size_t middle = std::min(begin + runLength, rows.size());
            const std::size_t end = std::min(middle + runLength, rows.size());
            std::size_t left = begin, right = middle;
            while (left < middle || right < end)
                if (left < middle && (right == end || isNotAfter(rows[left], rows[right])))
                    merged.push_back(rows[left++]);
                else
                    merged.push_back(rows[right++]);
        }
        rows = merged;
    }
}

// The order that merging all rows gives, the two rows' tuples looked up in every comparison.
std::vector<VorBomItemBase*> sortedByComparing(VorBomData& data, const VorBomSortKeys& sortKeys)
{
    std::vector<VorBomItemBase*> rows;
    for (VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        rows.push_back(pRow);
    VorBomSortKeys keys = sortKeys;
    mergeFromTheLeft(rows,
                     [&](const VorBomItemBase* pFirst, const VorBomItemBase* pSecond)
                     {
                         return keys.compare([&](std::size_t key) { return pFirst->getTupleAt(keys.token(key)); },
                                             [&](std::size_t key)
                                             { return pSecond->getTupleAt(keys.token(key)); }) <= 0;
                     });
    return rows;
}

// What was reported since the last clearing, with how often.
std::vector<std::pair<int, long long>> reportsByLine()
{
    std::vector<std::pair<int, long long>> reports;
    for (const VorAssertReport& report : VorAssert::reports())
        reports.emplace_back(report.line, report.count);
    VorAssert::clearReports();
    std::sort(reports.begin(), reports.end());
    return reports;
}

void expectAsMerged(VorBomData& data, const VorBomSortKeys& keys)
{
    VorAssert::clearReports();
    const std::vector<VorBomItemBase*> expected = sortedByComparing(data, keys);
    const auto expectedReports = reportsByLine();

    EXPECT_EQ(expected, VorBomSortedRows(data, keys).sorted());
    EXPECT_EQ(expectedReports, reportsByLine());
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

TEST(VorBomSortedRowsTest, TokenThatTheCatalogueLacksIsSortedAsItsOrderIsSet)
{
    BomTree<VorBomData> data;
    for (const wchar_t* const zone : { L"Z10", L"Z2", L"Z1" })
        addRow(data, zone, { tuple(L"%Zone", zone) });
    VorArray<int> natural, plain;
    natural.append(VorBomDataToken::kSortAlphanumeric);
    plain.append(VorBomDataToken::kSortString);
    AssertLog log;

    EXPECT_EQ(VorString(L"Z1 Z2 Z10"), sorted(data, VorBomSortKeys(arrayOf({ L"%Zone" }), orders({ 1 }), natural)));
    EXPECT_EQ(VorString(L"Z1 Z10 Z2"), sorted(data, VorBomSortKeys(arrayOf({ L"%Zone" }), orders({ 1 }), plain)));
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
        VorArray<int> directions, sortTypes;
        for (auto key = 1 + random() % 3; key > 0; --key)
        {
            keys.append(VorString(kTokens[random() % 5]));
            directions.append(static_cast<int>(random() % 2));
            sortTypes.append(static_cast<int>(random() % 4) - 1); // kByCatalogue or one of the three
        }
        VorBomSortKeys sortKeys(keys, directions, sortTypes);
        for (std::size_t key = 0; key < sortKeys.count(); ++key)
            if (random() % 4 == 0) // texts that the values have, some twice, and others
                sortKeys.setValueOrder(key, VorBomValueOrder(arrayOf({ L"B10", L"b", L"B2", L"B10", L"none" })));
        expectAsMerged(data, sortKeys);
    }
}

// Lengths in steps of 0.3 to 0.9e-6 are equal to some neighbours only; a few rows have none, a NaN or a whole number.
TEST(VorBomSortedRowsTest, ChainsOfNearlyEqualLengthsComeOutAsMergingAllRowsLeavesThem)
{
    std::mt19937 random(18);
    for (int round = 0; round < 400; ++round)
    {
        BomTree<VorBomData> data;
        const double step = 1e-7 * static_cast<double>(3 + random() % 7);
        const unsigned long oddOnes = round % 4 == 0 ? 15UL : ~0UL; // one row in so many
        for (auto row = random() % 300; row > 0; --row)
        {
            VorBomDataRow* pRow = newRow({ tuple(L"%Quantity", static_cast<int>(random() % 4)) });
            const double length = 1000.0 + static_cast<double>(random() % 3) + step * static_cast<double>(random() % 8);
            const unsigned long kind = random() % oddOnes;
            if (kind != 0)
                pRow->addData(VorBomDataTuple(VorString(L"%Length"), kind == 1   ? VorBomDataValue(1001)
                                                                     : kind == 2 ? VorBomDataValue(std::nan(""))
                                                                                 : VorBomDataValue(length)));
            pRow->addData(VorBomDataTuple(VorString(L"%Weight"), VorBomDataValue(static_cast<double>(random() % 5))));
            data.addChild(pRow);
        }
        const int firstDirection = static_cast<int>(random() % 2);

        expectAsMerged(data,
                       keysOf(arrayOf({ L"%Quantity", L"%Length", L"%Weight" }), orders({ firstDirection, 0, 1 })));
        expectAsMerged(data, keysOf(arrayOf({ L"%Length", L"%Quantity" }), orders({ 1, firstDirection })));
    }
}

TEST(VorBomSortedRowsTest, OfAChainEachRowIsComparedOnlyWithThoseThatTieBefore)
{
    BomTree<VorBomData> data;
    addRow(data, L"a", { tuple(L"%Material", L"S235"), tuple(L"%Length", 1.0000016) });
    addRow(data, L"b", { tuple(L"%Material", L"S355"), tuple(L"%Length", 1.0) });
    addRow(data, L"c", { tuple(L"%Material", L"S235"), tuple(L"%Length", 1.0) });
    addRow(data, L"d", { tuple(L"%Material", L"S235"), tuple(L"%Length", 1.0000008) });

    EXPECT_EQ(VorString(L"c a d b"), sorted(data, arrayOf({ L"%Material", L"%Length" }), orders({ 1, 1 })));
    EXPECT_EQ(VorString(L"b c a d"), sorted(data, arrayOf({ L"%Length" }), orders({ 1 })));
}

// Two reports: that the token has no type, and that it has no order.
TEST(VorBomSortedRowsTest, UnknownTokenIsReportedOnlyWhereTwoValuesUnderItAreCompared)
{
    BomTree<VorBomData> data;
    addRow(data, L"a", { tuple(L"%Material", L"S355"), tuple(L"%Zone", L"Z2") });
    addRow(data, L"b", { tuple(L"%Material", L"S235"), tuple(L"%Zone", L"Z1") });
    addRow(data, L"c", { tuple(L"%Material", L"S235") });
    const VorStringArray tokens = arrayOf({ L"%Material", L"%Zone" });
    VorAssert::clearReports();

    EXPECT_EQ(VorString(L"c b a"), sorted(data, tokens, orders({ 1, 1 })));
    EXPECT_TRUE(VorAssert::reports().empty());

    addRow(data, L"d", { tuple(L"%Material", L"S355"), tuple(L"%Zone", L"Z10") });
    EXPECT_EQ(VorString(L"c b d a"), sorted(data, tokens, orders({ 1, 1 })));
    EXPECT_EQ(2u, VorAssert::reports().size());
    VorAssert::clearReports();
}
