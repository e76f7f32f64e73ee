// Numbers are ranked by sorting them with their rows, texts by sorting the few that differ. Told on a column with the
// values 2.5, none, 1.0, 2.5 in rows 0 to 3:
//   sorted by the bytes of their keys      1.0 of row 2, 2.5 of row 0, 2.5 of row 3
//   do comparisons tell the same?          yes: neighbours are equal, or further apart than what counts as equal
//   ranks of rows 0 to 3                   2 0 1 2
//   rows 0 to 3, ascending by these        1 2 0 3: counted per rank, then each put in its place
//
// Between 2.5 and 2.5000001 the answer would be no. Comparing calls the two equal, and three such values in a row may
// have equal neighbours but unequal ends: there is no order to rank by, and create() leaves it to comparisons.
#include "VorBomRanks.h"

#include "VorBomDistinctTexts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <utility>

namespace
{
bool isMissing(const VorBomDataTuple* pTuple)
{
    return pTuple == nullptr;
}

// The kind of all values there are; kUnknownData when they are of several kinds, or one is empty.
VorBomDataValue::eBomDataValueType commonType(const std::vector<const VorBomDataTuple*>& tuples)
{
    VorBomDataValue::eBomDataValueType common = VorBomDataValue::kUnknownData;
    for (const VorBomDataTuple* pTuple : tuples)
    {
        if (pTuple == nullptr)
            continue;
        const VorBomDataValue::eBomDataValueType type = pTuple->value().type();
        if (type == VorBomDataValue::kUnknownData || (common != VorBomDataValue::kUnknownData && common != type))
            return VorBomDataValue::kUnknownData;
        common = type;
    }
    return common;
}

const VorString& textOf(const VorBomDataTuple& tuple)
{
    return *static_cast<const VorString*>(tuple.value().data());
}

bool isNan(int)
{
    return false;
}

bool isNan(double number)
{
    return std::isnan(number);
}

bool canFollow(int, int)
{
    return true;
}

// Whether a double may rank right after a smaller or equal one: when comparing them tells the same.
bool canFollow(double smaller, double larger)
{
    return smaller == larger || VorBomDataValue::compareDoubles(smaller, larger) != 0;
}

// A number with its row, and whole numbers that are in the order of the numbers.
template <class Number>
struct NumberOfRow
{
    Number number;
    std::uint32_t row;
};

// The smallest int becomes 0. The upper four bytes of every key are 0, so that sorting passes over them.
std::uint64_t sortKey(int number)
{
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(number) - std::numeric_limits<int>::min());
}

// The bits of a positive double are in its order, those of a negative one against it. Both zeros give one key.
std::uint64_t sortKey(double number)
{
    constexpr std::uint64_t kSign = std::uint64_t{ 1 } << 63;
    const double withoutNegativeZero = number + 0.0;
    std::uint64_t bits = 0;
    std::memcpy(&bits, &withoutNegativeZero, sizeof bits);
    return (bits & kSign) != 0 ? ~bits : bits | kSign;
}

template <class Number>
using NumbersOfRows = std::vector<NumberOfRow<Number>>;

// Byte by byte of the keys from the lowest, each time stably; a byte that all keys share is passed over.
template <class Number>
void sortByKeys(NumbersOfRows<Number>& numbers)
{
    // All bytes are counted in one pass over the numbers: how often a byte occurs does not depend on their order.
    constexpr std::size_t kNumBytes = sizeof(std::uint64_t);
    std::array<std::array<std::size_t, 256>, kNumBytes> places = {};
    for (const NumberOfRow<Number>& entry : numbers)
    {
        std::uint64_t key = sortKey(entry.number);
        for (std::size_t byte = 0; byte < kNumBytes; ++byte, key >>= 8)
            ++places[byte][key & 255];
    }
    NumbersOfRows<Number> sorted(numbers.size());
    for (std::size_t byte = 0; byte < kNumBytes; ++byte)
    {
        const auto valueOf = [byte](const NumberOfRow<Number>& e) { return (sortKey(e.number) >> (8 * byte)) & 255; };
        std::array<std::size_t, 256>& place = places[byte];
        if (numbers.empty() || place[valueOf(numbers.front())] == numbers.size())
            continue;
        // Counts 2, 0, 3 become the first places 0, 2, 2.
        std::size_t begin = 0;
        for (std::size_t& count : place)
            begin += std::exchange(count, begin);
        for (const NumberOfRow<Number>& entry : numbers)
            sorted[place[valueOf(entry)]++] = entry;
        numbers.swap(sorted);
    }
}

// The numbers in ascending order with their rows; nothing when one is a NaN, which no sort can take.
template <class Number>
NumbersOfRows<Number> sortedNumbers(const std::vector<const VorBomDataTuple*>& tuples)
{
    NumbersOfRows<Number> numbers;
    numbers.reserve(tuples.size());
    for (std::size_t row = 0; row < tuples.size(); ++row)
    {
        if (tuples[row] == nullptr)
            continue;
        const Number number = *static_cast<const Number*>(tuples[row]->value().data());
        if (isNan(number))
            return {};
        numbers.push_back({ number, static_cast<std::uint32_t>(row) });
    }
    sortByKeys(numbers);
    return numbers;
}

// Whether comparing any two neighbours tells what their sorted order tells; then it does so for all pairs.
template <class Number>
bool compareAsTheyAreSorted(const NumbersOfRows<Number>& numbers)
{
    for (std::size_t i = 1; i < numbers.size(); ++i)
        if (!canFollow(numbers[i - 1].number, numbers[i].number))
            return false;
    return true;
}
}

int VorBomRanks::create(const std::vector<const VorBomDataTuple*>& tuples, VorBomDataToken::eSortType sortType)
{
    // Rank 0 is there even where every row has the datum, and no row has it then.
    m_nNumRanks = 1;
    if (std::all_of(tuples.begin(), tuples.end(), isMissing))
    {
        m_ranks.assign(tuples.size(), 0);
        return 1;
    }
    const bool isNatural = sortType == VorBomDataToken::kSortAlphanumeric;
    // Numbers in natural order, and values of several kinds, are what comparing reports; ranking them would hide it.
    switch (commonType(tuples))
    {
        case VorBomDataValue::kStringData: return rankTexts(tuples, isNatural);
        case VorBomDataValue::kIntData: return isNatural ? 0 : rankNumbers<int>(tuples);
        case VorBomDataValue::kDoubleData: return isNatural ? 0 : rankNumbers<double>(tuples);
        default: return 0;
    }
}

// Counts how many rows have each rank, then puts the rows in their places, from the first on.
void VorBomRanks::sortStably(std::vector<std::uint32_t>& rows, bool isAscending) const
{
    // Descending mirrors the ranks instead of reversing the rows, which would turn round rows of equal rank, too.
    const auto placeOf = [&](std::uint32_t row) { return isAscending ? m_ranks[row] : m_nNumRanks - 1 - m_ranks[row]; };
    std::vector<std::uint32_t> next(m_nNumRanks + 1);
    for (const std::uint32_t row : rows)
        ++next[placeOf(row) + 1];
    for (std::uint32_t rank = 0; rank < m_nNumRanks; ++rank)
        next[rank + 1] += next[rank];

    std::vector<std::uint32_t> sorted(rows.size());
    for (const std::uint32_t row : rows)
        sorted[next[placeOf(row)]++] = row;
    rows = std::move(sorted);
}

// Equal texts are found by their characters first: a column has far fewer texts than rows, and only those are compared.
int VorBomRanks::rankTexts(const std::vector<const VorBomDataTuple*>& tuples, bool naturally)
{
    // Until the ranks are known m_ranks holds the number of each row's text.
    VorBomDistinctTexts distinct;
    m_ranks.assign(tuples.size(), 0);
    for (std::size_t row = 0; row < tuples.size(); ++row)
        if (!isMissing(tuples[row]))
            m_ranks[row] = distinct.indexOf(textOf(*tuples[row]));
    const std::vector<const VorString*>& texts = distinct.texts();

    const auto compare = naturally ? &VorString::compareWithNumbers
                                   : static_cast<int (*)(const VorString&, const VorString&)>(&VorString::compare);
    std::vector<std::uint32_t> order(texts.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(),
              [&](std::uint32_t a, std::uint32_t b) { return compare(*texts[a], *texts[b]) < 0; });
    std::vector<std::uint32_t> rankOfText(texts.size());
    for (const std::uint32_t text : order)
        rankOfText[text] = m_nNumRanks++;

    for (std::size_t row = 0; row < tuples.size(); ++row)
        if (!isMissing(tuples[row]))
            m_ranks[row] = rankOfText[m_ranks[row]];
    return 1;
}

// Equal numbers stand side by side once they are sorted, and a new rank begins where two differ.
template <class Number>
int VorBomRanks::rankNumbers(const std::vector<const VorBomDataTuple*>& tuples)
{
    const NumbersOfRows<Number> numbers = sortedNumbers<Number>(tuples);
    if (numbers.empty() || !compareAsTheyAreSorted(numbers))
        return 0;

    m_ranks.assign(tuples.size(), 0);
    for (std::size_t i = 0; i < numbers.size(); ++i)
    {
        if (i > 0 && numbers[i - 1].number != numbers[i].number)
            ++m_nNumRanks;
        m_ranks[numbers[i].row] = m_nNumRanks;
    }
    ++m_nNumRanks;
    return 1;
}
