#include "VorBomRanks.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <numeric>
#include <random>
#include <utility>

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

namespace
{
template <class Number>
Column columnOf(std::initializer_list<Number> numbers)
{
    std::vector<VorBomDataTuple> tuples;
    for (const Number number : numbers)
        tuples.push_back(datum(number));
    return Column(std::move(tuples));
}

// Random numbers and rows without one, ranked and sorted by a stable sort, in both directions.
template <class Number, class Source>
void expectAsAStableSort(Source next, int numRows, std::mt19937& random)
{
    std::vector<VorBomDataTuple> tuples;
    for (int i = 0; i < numRows; ++i)
        tuples.push_back(datum(static_cast<Number>(next())));
    std::vector<const VorBomDataTuple*> pointers;
    for (const VorBomDataTuple& tuple : tuples)
        pointers.push_back(random() % 7 == 0 ? nullptr : &tuple);
    VorBomRanks ranks;
    ASSERT_EQ(1, ranks.create(pointers, VorBomDataToken::kSortNumeric));

    for (const int sign : { 1, -1 })
    {
        std::vector<std::uint32_t> rows(pointers.size());
        std::iota(rows.begin(), rows.end(), 0U);
        std::shuffle(rows.begin(), rows.end(), random);
        std::vector<std::uint32_t> expected = rows;
        std::stable_sort(expected.begin(), expected.end(),
                         [&](std::uint32_t a, std::uint32_t b)
                         { return sign * VorBomDataTuple::compareValues(pointers[a], pointers[b]) < 0; });

        ranks.sortStably(rows, sign > 0);

        ASSERT_EQ(expected, rows);
    }
}
}

TEST(VorBomRanksTest, NegativeDoublesComeBeforePositiveOnes)
{
    EXPECT_EQ("3025146",
              columnOf({ -1.5, 0.25, -0.25, -1e300, 1.5, 0.0, 1e300 }).sorted(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("6415203",
              columnOf({ -1.5, 0.25, -0.25, -1e300, 1.5, 0.0, 1e300 }).sorted(VorBomDataToken::kSortNumeric, false));
}

TEST(VorBomRanksTest, BothZerosAreEqualAndKeepTheirOrder)
{
    const Column column = columnOf({ 0.0, -0.0, 1.0, -0.0, 0.0, -1.0 });

    EXPECT_EQ("501342", column.sorted(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("201345", column.sorted(VorBomDataToken::kSortNumeric, false));
}

TEST(VorBomRanksTest, InfinitiesStandAtTheEndsAndEqualThemselves)
{
    const Column column = columnOf<double>({ INFINITY, 1e308, -INFINITY, -1e308, INFINITY, -INFINITY, 0.0 });

    EXPECT_EQ("2536104", column.sorted(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("0416325", column.sorted(VorBomDataToken::kSortNumeric, false));
}

TEST(VorBomRanksTest, TheLargestAndSmallestIntegersAreRanked)
{
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    const Column column = columnOf({ largest, 0, smallest, -1, largest - 1, smallest + 1, 1, smallest });

    EXPECT_EQ("27531640", column.sorted(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("04613527", column.sorted(VorBomDataToken::kSortNumeric, false));
}

TEST(VorBomRanksTest, NumbersSmallerThanTheToleranceCannotBeToldFromZero)
{
    const double smallest = std::numeric_limits<double>::denorm_min();

    EXPECT_FALSE(columnOf({ 0.0, smallest }).canBeRanked(VorBomDataToken::kSortNumeric));
    EXPECT_FALSE(columnOf({ -smallest, 5.0, smallest }).canBeRanked(VorBomDataToken::kSortNumeric));
    EXPECT_TRUE(columnOf({ smallest, smallest }).canBeRanked(VorBomDataToken::kSortNumeric));
}

TEST(VorBomRanksTest, ManyEqualNumbersKeepTheirOrder)
{
    std::mt19937 random(11);
    for (const unsigned int numDifferent : { 1U, 2U, 3U })
    {
        expectAsAStableSort<int>([&] { return random() % numDifferent; }, 3000, random);
        expectAsAStableSort<double>([&] { return -0.5 * static_cast<int>(random() % numDifferent); }, 3000, random);
    }
}

TEST(VorBomRanksTest, RandomIntegersComeOutAsFromAStableSort)
{
    std::mt19937 random(12);
    for (int round = 0; round < 30; ++round)
    {
        const unsigned int shift = random() % 32;
        expectAsAStableSort<int>([&] { return static_cast<std::int32_t>(random()) / (1LL << shift); }, 400, random);
    }
}

TEST(VorBomRanksTest, RandomDoublesComeOutAsFromAStableSort)
{
    std::mt19937 random(13);
    const auto ofAnySize = [&random]
    {
        const double number =
            std::ldexp(1.0 + static_cast<int>(random() % 8) / 8.0, static_cast<int>(random() % 1030) - 8);
        return random() % 2 == 0 ? number : -number;
    };
    for (int round = 0; round < 30; ++round)
    {
        expectAsAStableSort<double>(ofAnySize, 400, random);
        expectAsAStableSort<double>([&] { return static_cast<std::int32_t>(random()) / 1024.0; }, 400, random);
    }
}
