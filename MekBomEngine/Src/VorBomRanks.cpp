#include "VorBomRanks.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string_view>
#include <unordered_map>
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
    return smaller == larger || VorBomDataValue(smaller).compare(VorBomDataValue(larger)) != 0;
}

template <class Number>
using NumbersOfRows = std::vector<std::pair<Number, std::uint32_t>>;

// The numbers in ascending order with their rows; nothing when one is a NaN, which no sort can take.
template <class Number>
NumbersOfRows<Number> sortedNumbers(const std::vector<const VorBomDataTuple*>& tuples)
{
    NumbersOfRows<Number> numbers;
    for (std::size_t row = 0; row < tuples.size(); ++row)
    {
        if (tuples[row] == nullptr)
            continue;
        const Number number = *static_cast<const Number*>(tuples[row]->value().data());
        if (isNan(number))
            return {};
        numbers.emplace_back(number, static_cast<std::uint32_t>(row));
    }
    std::sort(numbers.begin(), numbers.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    return numbers;
}

template <class Number>
bool compareAsTheyAreSorted(const NumbersOfRows<Number>& numbers)
{
    for (std::size_t i = 1; i < numbers.size(); ++i)
        if (!canFollow(numbers[i - 1].first, numbers[i].first))
            return false;
    return true;
}
}

int VorBomRanks::create(const std::vector<const VorBomDataTuple*>& tuples, VorBomDataToken::eSortType sortType)
{
    if (std::all_of(tuples.begin(), tuples.end(), isMissing))
    {
        m_ranks.assign(tuples.size(), 0);
        return 1;
    }
    const bool isNatural = sortType == VorBomDataToken::kSortAlphanumeric;
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
    std::unordered_map<std::wstring_view, std::uint32_t> indexOfText;
    std::vector<const VorString*> texts;
    std::vector<std::uint32_t> textOfRow(tuples.size());
    for (std::size_t row = 0; row < tuples.size(); ++row)
    {
        if (isMissing(tuples[row]))
            continue;
        const VorString& text = textOf(*tuples[row]);
        const std::wstring_view characters(text.getStringW(), static_cast<std::size_t>(text.length()));
        const auto [found, isNew] = indexOfText.emplace(characters, static_cast<std::uint32_t>(texts.size()));
        if (isNew)
            texts.push_back(&text);
        textOfRow[row] = found->second;
    }

    const auto compare = naturally ? &VorString::compareWithNumbers
                                   : static_cast<int (*)(const VorString&, const VorString&)>(&VorString::compare);
    std::vector<std::uint32_t> order(texts.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(),
              [&](std::uint32_t a, std::uint32_t b) { return compare(*texts[a], *texts[b]) < 0; });
    std::vector<std::uint32_t> rankOfText(texts.size());
    for (const std::uint32_t text : order)
        rankOfText[text] = m_nNumRanks++;

    m_ranks.assign(tuples.size(), 0);
    for (std::size_t row = 0; row < tuples.size(); ++row)
        if (!isMissing(tuples[row]))
            m_ranks[row] = rankOfText[textOfRow[row]];
    return 1;
}

template <class Number>
int VorBomRanks::rankNumbers(const std::vector<const VorBomDataTuple*>& tuples)
{
    const NumbersOfRows<Number> numbers = sortedNumbers<Number>(tuples);
    if (numbers.empty() || !compareAsTheyAreSorted(numbers))
        return 0;

    m_ranks.assign(tuples.size(), 0);
    for (std::size_t i = 0; i < numbers.size(); ++i)
    {
        if (i > 0 && numbers[i - 1].first != numbers[i].first)
            ++m_nNumRanks;
        m_ranks[numbers[i].second] = m_nNumRanks;
    }
    ++m_nNumRanks;
    return 1;
}
