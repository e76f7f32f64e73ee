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

    // The rows' ranks, with "!" behind one that is unordered.
    std::string ranks(VorBomDataToken::eSortType sortType) const
    {
        const VorBomRanks ranks(m_pointers, sortType);
        std::string text;
        for (std::uint32_t row = 0; row < m_pointers.size(); ++row)
            text += std::to_string(ranks.rankOf(row)) + (ranks.isUnordered(row) ? "!" : "");
        return text;
    }

    // The rows' indices after sorting.
    std::string sorted(VorBomDataToken::eSortType sortType, bool isAscending = true) const
    {
        const VorBomRanks ranks(m_pointers, sortType);
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

TEST(VorBomRanksTest, UnlikeOrEmptyValuesShareAnUnorderedRank)
{
    VorBomDataTuple empty = datum(1);
    VorBomDataValue(std::move(empty.value()));

    EXPECT_EQ("1!1!0", Column({ datum(1), datum(1.0), kMissing }).ranks(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("1!01!", Column({ datum(1), kMissing, text(L"1") }).ranks(VorBomDataToken::kSortString));
    EXPECT_EQ("1!", Column({ empty }).ranks(VorBomDataToken::kSortNumeric));
}

TEST(VorBomRanksTest, NumbersHaveNoNaturalOrder)
{
    EXPECT_EQ("1!1!", Column({ datum(1), datum(2) }).ranks(VorBomDataToken::kSortAlphanumeric));
    EXPECT_EQ("1!", Column({ datum(1.0) }).ranks(VorBomDataToken::kSortAlphanumeric));
}

TEST(VorBomRanksTest, DoublesAllWithinTheToleranceOfEachOtherAreEqual)
{
    EXPECT_EQ("11", Column({ datum(1.0), datum(1.0000005) }).ranks(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("11213", Column({ datum(2.0000008), datum(2.0), datum(7.5), datum(2.0000004), datum(8.0) })
                           .ranks(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("01", Column({ datum(1.0), datum(1.0000011) }).sorted(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("01", Column({ datum(0.0), datum(-0.0) }).sorted(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("120", Column({ datum(INFINITY), datum(-INFINITY), datum(1.0) }).sorted(VorBomDataToken::kSortNumeric));
}

TEST(VorBomRanksTest, AChainOfDoublesWhoseEndsDifferIsUnordered)
{
    const Column column({ datum(2.0000008), datum(1.0), datum(2.0), datum(2.0000016), datum(3.0), datum(3.0000009) });

    EXPECT_EQ("2!12!2!33", column.ranks(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("102345", column.sorted(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("450231", column.sorted(VorBomDataToken::kSortNumeric, false));
}

// No sort of the standard may see one.
TEST(VorBomRanksTest, ANaNLeavesAllNumbersUnordered)
{
    std::vector<VorBomDataTuple> tuples;
    for (int i = 0; i < 500; ++i)
        tuples.push_back(datum(i % 3 == 0 ? std::nan("") : 250.0 - i));
    const Column column(std::move(tuples));

    EXPECT_EQ("1!1!1!1!", column.ranks(VorBomDataToken::kSortNumeric).substr(0, 8));
    EXPECT_EQ("1!01!1!",
              Column({ datum(5.0), kMissing, datum(std::nan("")), datum(1.0) }).ranks(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("1!", Column({ datum(std::nan("")) }).ranks(VorBomDataToken::kSortNumeric));
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

        VorBomRanks(pointers, VorBomDataToken::kSortNumeric).sortStably(rows, true);

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
    const VorBomRanks ranks(pointers, VorBomDataToken::kSortNumeric);
    ASSERT_FALSE(ranks.hasUnordered());

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

    EXPECT_EQ("11", columnOf({ 0.0, smallest }).ranks(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("121", columnOf({ -smallest, 5.0, smallest }).ranks(VorBomDataToken::kSortNumeric));
    EXPECT_EQ("11", columnOf({ smallest, smallest }).ranks(VorBomDataToken::kSortNumeric));
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
