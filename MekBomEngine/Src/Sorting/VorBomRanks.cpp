// Numbers are ranked by sorting them with their rows, texts by sorting the few that differ. Told on a column with the
// values 2.5, none, 1.0, 2.5 in rows 0 to 3:
//   sorted by the bytes of their keys      1.0 of row 2, 2.5 of row 0, 2.5 of row 3
//   do comparisons tell the same?          yes: neighbours are equal, or further apart than what counts as equal
//   ranks of rows 0 to 3                   2 0 1 2
//   rows 0 to 3, ascending by these        1 2 0 3: counted per rank, then each put in its place
//
// 2.5 and 2.5000001 would get one rank: comparing calls the two equal. With a third value that is equal to the second, but
// not to the first, all three get one still, but an unordered one.
#include "VorBomRanks.h"

#include "VorBomDistinctTexts.h"
#include "VorBomTextKeys.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
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

// Numbers in ascending order are equal to those beside them, or less than all that follow. Differences of doubles grow
// with the distance, also when rounded: where the ends of a stretch are equal, so are all within it.
bool areEqual(int first, int second)
{
    return first == second;
}

bool areEqual(double first, double second)
{
    return VorBomDataValue::compareDoubles(first, second) == 0;
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

// The indices of different texts in their order.
std::vector<std::uint32_t> inOrder(const std::vector<const VorString*>& texts, bool naturally)
{
    struct KeyedText
    {
        std::uint64_t key;
        std::uint32_t index;
    };
    const VorBomTextKeys keys(texts, naturally);
    std::vector<KeyedText> sorted;
    sorted.reserve(texts.size());
    for (const VorString* pText : texts)
        sorted.push_back({ keys.of(*pText), static_cast<std::uint32_t>(sorted.size()) });
    const auto compare = naturally ? &VorString::compareWithNumbers
                                   : static_cast<int (*)(const VorString&, const VorString&)>(&VorString::compare);
    std::sort(sorted.begin(), sorted.end(),
              [&](const KeyedText& a, const KeyedText& b)
              { return a.key != b.key ? a.key < b.key : compare(*texts[a.index], *texts[b.index]) < 0; });

    std::vector<std::uint32_t> order;
    order.reserve(sorted.size());
    for (const KeyedText& text : sorted)
        order.push_back(text.index);
    return order;
}
}

VorBomRanks::VorBomRanks(const std::vector<const VorBomDataTuple*>& tuples, VorBomDataToken::eSortType sortType,
                         const VorBomValueOrder& order)
    : m_ranks(tuples.size(), kWithoutDatum)
{
    if (std::all_of(tuples.begin(), tuples.end(), isMissing))
        return;
    const bool isNatural = sortType == VorBomDataToken::kSortAlphanumeric;
    const VorBomDataValue::eBomDataValueType type = commonType(tuples);
    if (type == VorBomDataValue::kStringData)
        rankTexts(tuples, isNatural, order);
    else if (type == VorBomDataValue::kIntData && !isNatural)
        rankNumbers<int>(tuples);
    else if (type == VorBomDataValue::kDoubleData && !isNatural)
        rankNumbers<double>(tuples);
    else
        rankAllAlike(tuples); // numbers in natural order, and several kinds, are what comparing reports
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
void VorBomRanks::rankTexts(const std::vector<const VorBomDataTuple*>& tuples, bool naturally,
                            const VorBomValueOrder& order)
{
    // Until the ranks are known m_ranks holds the number of each row's text.
    VorBomDistinctTexts distinct;
    for (std::size_t row = 0; row < tuples.size(); ++row)
        if (!isMissing(tuples[row]))
            m_ranks[row] = distinct.indexOf(textOf(*tuples[row]));
    const std::vector<const VorString*>& texts = distinct.texts();

    std::vector<std::uint32_t> rankOfText(texts.size());
    std::vector<std::uint32_t> sorted = inOrder(texts, naturally);
    if (!order.isEmpty())
        std::stable_sort(sorted.begin(), sorted.end(),
                         [&](std::uint32_t a, std::uint32_t b)
                         { return order.placeOf(*texts[a]) < order.placeOf(*texts[b]); });
    for (const std::uint32_t text : sorted)
        rankOfText[text] = m_nNumRanks++;
    for (std::size_t row = 0; row < tuples.size(); ++row)
        if (!isMissing(tuples[row]))
            m_ranks[row] = rankOfText[m_ranks[row]];
}

// Once they are sorted, numbers that count as equal stand side by side. 2.0, 2.0000008 and 2.0000016 are one such stretch
// as each is equal to the next; its ends are not, so it is unordered.
template <class Number>
void VorBomRanks::rankNumbers(const std::vector<const VorBomDataTuple*>& tuples)
{
    const NumbersOfRows<Number> numbers = sortedNumbers<Number>(tuples);
    if (numbers.empty())
        return rankAllAlike(tuples);
    auto begin = numbers.begin();
    while (begin != numbers.end())
    {
        const auto end = std::adjacent_find(begin, numbers.end(),
                                            [](const auto& smaller, const auto& larger)
                                            { return !areEqual(smaller.number, larger.number); });
        const auto last = end == numbers.end() ? end - 1 : end;
        for (auto entry = begin; entry <= last; ++entry)
            m_ranks[entry->row] = m_nNumRanks;
        if (!areEqual(begin->number, last->number))
            markUnordered(m_nNumRanks);
        ++m_nNumRanks;
        begin = last + 1;
    }
}

void VorBomRanks::rankAllAlike(const std::vector<const VorBomDataTuple*>& tuples)
{
    for (std::size_t row = 0; row < tuples.size(); ++row)
        if (!isMissing(tuples[row]))
            m_ranks[row] = m_nNumRanks;
    markUnordered(m_nNumRanks++);
}

void VorBomRanks::markUnordered(std::uint32_t rank)
{
    m_isUnordered.resize(m_ranks.size() + 1); // at most as many ranks as rows, and the one without datum
    m_isUnordered[rank] = 1;
}
