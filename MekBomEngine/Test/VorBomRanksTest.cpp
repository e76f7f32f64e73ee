#include "MekBomEngine/Src/VorBomRanks.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <random>

namespace
{
// A column of tuples, null where the row has none, and the order in which its rows come out.
class Column
{
public:
    explicit Column(std::vector<VorBomDataTuple> tuples) : m_tuples(std::move(tuples))
    {
        for (const VorBomDataTuple& tuple : m_tuples)
            m_pointers.push_back(tuple.token().token().isEmpty() ? nullptr : &tuple);
    }

    bool canBeRanked(VorBomDataToken::eSortType sortType) const { return VorBomRanks().create(m_pointers, sortType); }

    // The rows' indices after sorting, "!" when the column cannot be ranked.
    std::string sorted(VorBomDataToken::eSortType sortType, bool isAscending = true) const
    {
        VorBomRanks ranks;
        if (!ranks.create(m_pointers, sortType))
            return "!";
        std::vector<std::uint32_t> rows(m_pointers.size());
        std::iota(rows.begin(), rows.end(), 0U);
        ranks.sortStably(rows, isAscending);
        std::string text;
        for (const std::uint32_t row : rows)
            text += std::to_string(row);
        return text;
    }

private:
    std::vector<VorBomDataTuple> m_tuples;
    std::vector<const VorBomDataTuple*> m_pointers;
};

template <class Value>
VorBomDataTuple datum(const Value& value)
{
    return VorBomDataTuple(VorString(L"%X"), value);
}

VorBomDataTuple text(const wchar_t* value)
{
    return VorBomDataTuple(VorString(L"%X"), VorString(value));
}

const VorBomDataTuple kMissing;
}

TEST(VorBomRanksTest, TextsRankByCharactersOrNaturally)
{
    const Column column({ text(L"B10"), text(L"B2"), text(L"B1"), text(L"B10") });

    EXPECT_EQ("2031", column.sorted(VorBomDataToken::kSortString));
    EXPECT_EQ("2103", column.sorted(VorBomDataToken::kSortAlphanumeric));
}

TEST(VorBomRanksTest, MissingDataRanksLowest)
{
    const Column column({ datum(2), kMissing, datum(1), kMissing });

    EXPECT_EQ("1320", column.sorted(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("0213", column.sorted(VorBomDataToken::kSortNumeric, false));
}

TEST(VorBomRanksTest, EqualValuesKeepTheirOrderInBothDirections)
{
    const Column column({ datum(1.5), datum(0.5), datum(1.5), datum(0.5) });

    EXPECT_EQ("1302", column.sorted(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("0213", column.sorted(VorBomDataToken::kSortNumeric, false));
}

TEST(VorBomRanksTest, EqualTextsInBlocksOfTheirOwnAreEqual)
{
    EXPECT_EQ("0213",
              Column({ text(L"b"), text(L"a"), text(L"b"), text(L"a") }).sorted(VorBomDataToken::kSortString, false));
}

TEST(VorBomRanksTest, ColumnWithoutAnyDataIsAllEqual)
{
    EXPECT_EQ("01", Column({ kMissing, kMissing }).sorted(VorBomDataToken::kSortAlphanumeric));
}

TEST(VorBomRanksTest, UnlikeOrEmptyValuesCannotBeRanked)
{
    VorBomDataTuple empty = datum(1);
    VorBomDataValue(std::move(empty.value()));

    EXPECT_FALSE(Column({ datum(1), datum(1.0) }).canBeRanked(VorBomDataToken::kSortNumeric));
    EXPECT_FALSE(Column({ datum(1), text(L"1") }).canBeRanked(VorBomDataToken::kSortString));
    EXPECT_FALSE(Column({ empty }).canBeRanked(VorBomDataToken::kSortNumeric));
}

TEST(VorBomRanksTest, NumbersHaveNoNaturalOrder)
{
    EXPECT_FALSE(Column({ datum(1), datum(2) }).canBeRanked(VorBomDataToken::kSortAlphanumeric));
    EXPECT_FALSE(Column({ datum(1.0) }).canBeRanked(VorBomDataToken::kSortAlphanumeric));
}

TEST(VorBomRanksTest, DoublesWithinTheToleranceCannotBeRanked)
{
    EXPECT_FALSE(Column({ datum(1.0), datum(1.0000005) }).canBeRanked(VorBomDataToken::kSortNumeric));
    EXPECT_FALSE(Column({ datum(1.0), datum(std::nan("")) }).canBeRanked(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("01", Column({ datum(1.0), datum(1.0000011) }).sorted(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("01", Column({ datum(0.0), datum(-0.0) }).sorted(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("120", Column({ datum(INFINITY), datum(-INFINITY), datum(1.0) }).sorted(VorBomDataToken::kSortNumeric));
}

// No sort of the standard may see one.
TEST(VorBomRanksTest, ColumnsFullOfNaNsCannotBeRanked)
{
    std::vector<VorBomDataTuple> tuples;
    for (int i = 0; i < 500; ++i)
        tuples.push_back(datum(i % 3 == 0 ? std::nan("") : 250.0 - i));

    EXPECT_FALSE(Column(std::move(tuples)).canBeRanked(VorBomDataToken::kSortNumeric));
    EXPECT_FALSE(Column({ datum(std::nan("")) }).canBeRanked(VorBomDataToken::kSortNumeric));
}

TEST(VorBomRanksTest, RankedColumnsComeOutAsComparingThemDoes)
{
    std::mt19937 random(3);
    for (int round = 0; round < 200; ++round)
    {
        std::vector<VorBomDataTuple> tuples;
        std::vector<const VorBomDataTuple*> pointers;
        for (int i = 0; i < 50; ++i)
            tuples.push_back(datum(static_cast<double>(random() % 20) / 8));
        for (const VorBomDataTuple& tuple : tuples)
            pointers.push_back(random() % 5 == 0 ? nullptr : &tuple);
        std::vector<std::uint32_t> rows(50);
        std::iota(rows.begin(), rows.end(), 0U);
        std::vector<std::uint32_t> expected = rows;
        std::stable_sort(expected.begin(), expected.end(),
                         [&](std::uint32_t a, std::uint32_t b)
                         { return VorBomDataTuple::compareValues(pointers[a], pointers[b]) < 0; });

        VorBomRanks ranks;
        ASSERT_EQ(1, ranks.create(pointers, VorBomDataToken::kSortNumeric));
        ranks.sortStably(rows, true);

        EXPECT_EQ(expected, rows);
    }
}
