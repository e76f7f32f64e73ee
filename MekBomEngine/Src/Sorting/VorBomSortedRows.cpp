// Told on rows 0 to 2 with S355 100, S235 200, S355 300, by %Material ascending, then %Length descending:
//   columns                        S355 S235 S355 and 100 200 300: every row is looked up once
//   ranks                          2 1 2 and 1 2 3
//   by %Length, descending         2 1 0: the last key goes first
//   by %Material, stably           1 2 0: rows of one material stay in the order of their lengths
#include "VorBomSortedRows.h"

#include "VorBomColumns.h"
#include "VorStableMergeSort.h"

#include <algorithm>
#include <memory>
#include <numeric>

VorBomSortedRows::VorBomSortedRows(VorBomData& data, const VorBomSortKeys& keys)
    : m_keys(keys), m_columns(m_keys.count())
{
    std::vector<VorString> tokens;
    for (std::size_t key = 0; key < m_keys.count(); ++key)
        tokens.push_back(m_keys.token(key));
    // The pointers outlive `columns`: they hold as long as no row gets a tuple, and none does while rows are sorted.
    VorBomColumns columns(std::make_shared<VorBomTuplePositions>(), tokens);
    // Each row is looked up as soon as it is met, so that waiting for the next one is of some use.
    for (VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
    {
        m_rows.push_back(pRow);
        const VorBomColumns::Found found = columns.find(*pRow);
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            m_columns[i].push_back(found[static_cast<int>(i)]);
    }
}

std::vector<VorBomItemBase*> VorBomSortedRows::sorted()
{
    std::vector<std::uint32_t> indices(m_rows.size());
    std::iota(indices.begin(), indices.end(), 0U);
    const Ranks ranks = rankColumns();
    for (std::size_t key = m_keys.count(); key-- > 0;)
        ranks[key].sortStably(indices, m_keys.isAscending(key));
    mergeUnordered(ranks, indices);
    reportUnknownKeys(ranks, indices);

    std::vector<VorBomItemBase*> rows;
    rows.reserve(indices.size());
    for (const std::uint32_t index : indices)
        rows.push_back(m_rows[index]);
    return rows;
}

// Values are compared where ranks give no order, and then from the first such key on: a column before it is done with. Of
// a million rows a column takes 8 MB, at a time when the process has nearly all that it will ever need.
VorBomSortedRows::Ranks VorBomSortedRows::rankColumns()
{
    Ranks ranks;
    ranks.reserve(m_keys.count());
    bool hasUnordered = false;
    for (std::size_t key = 0; key < m_keys.count(); ++key)
    {
        ranks.emplace_back(m_columns[key], m_keys.sortType(key), m_keys.valueOrder(key));
        hasUnordered = hasUnordered || ranks.back().hasUnordered();
        if (!hasUnordered)
            m_columns[key] = Column();
    }
    return ranks;
}

// Told on %Material and %Length, and rows 0 to 3 with S235 1.0000016, S355 1, S235 1, S235 1.0000008:
//   by ranks     0 2 3 1: the lengths share one rank, an unordered one
//   0 2 3        tie up to %Length, so their lengths are merged. 2 and 3 are equal; 2 is less than 0, but 3 is equal to
//                it: 2 0 3
//   1            ties with no other row
void VorBomSortedRows::mergeUnordered(const Ranks& ranks, std::vector<std::uint32_t>& indices)
{
    const auto hasUnordered = [](const VorBomRanks& column) { return column.hasUnordered(); };
    if (std::none_of(ranks.begin(), ranks.end(), hasUnordered))
        return;
    std::vector<std::uint32_t> buffer(indices.size());
    for (auto begin = indices.begin(); begin != indices.end();)
    {
        const std::uint32_t first = *begin;
        const auto unordered = std::find_if(ranks.begin(), ranks.end(),
                                            [first](const VorBomRanks& column) { return column.isUnordered(first); });
        if (unordered == ranks.end())
        {
            ++begin;
            continue;
        }
        const auto isApart = [&](std::uint32_t row)
        {
            return std::any_of(ranks.begin(), unordered + 1,
                               [first, row](const VorBomRanks& column)
                               { return column.rankOf(row) != column.rankOf(first); });
        };
        const auto end = std::find_if(begin, indices.end(), isApart);
        std::sort(begin, end); // as they came, before the keys behind this one sorted them
        const auto isNotAfter = [this, key = static_cast<std::size_t>(unordered - ranks.begin())](
                                    std::uint32_t a, std::uint32_t b) { return compareRows(a, b, key) <= 0; };
        std::uint32_t* const pBegin = indices.data() + (begin - indices.begin());
        vorStableMergeSort(pBegin, pBegin + (end - begin), buffer.data(), isNotAfter);
        begin = end;
    }
}

// A token that nobody knows is reported when two values under it are compared. Whatever the way of sorting, neighbours
// in the result were: two that have the datum and tie in all keys before it.
void VorBomSortedRows::reportUnknownKeys(const Ranks& ranks, const std::vector<std::uint32_t>& indices)
{
    for (std::size_t key = 0; key < ranks.size(); ++key)
    {
        if (!m_keys.isUnknown(key))
            continue;
        const auto areCompared = [&ranks, key](std::uint32_t first, std::uint32_t second)
        {
            const auto areTied = [first, second](const VorBomRanks& column)
            { return column.rankOf(first) == column.rankOf(second) && !column.isUnordered(first); };
            return ranks[key].hasDatum(first) && ranks[key].hasDatum(second) &&
                   std::all_of(ranks.begin(), ranks.begin() + static_cast<std::ptrdiff_t>(key), areTied);
        };
        if (std::adjacent_find(indices.begin(), indices.end(), areCompared) != indices.end())
            m_keys.reportIfUnknown(key);
    }
}

int VorBomSortedRows::compareRows(std::uint32_t first, std::uint32_t second, std::size_t firstKey)
{
    return m_keys.compare([this, first](std::size_t key) { return m_columns[key][first]; },
                          [this, second](std::size_t key) { return m_columns[key][second]; }, firstKey);
}
