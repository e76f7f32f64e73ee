// Told on rows 0 to 2 with S355 100, S235 200, S355 300, by %Material ascending, then %Length descending:
//   columns                        S355 S235 S355 and 100 200 300: every row is looked up once
//   ranks                          2 1 2 and 1 2 3
//   by %Length, descending         2 1 0: the last key goes first
//   by %Material, stably           1 2 0: rows of one material stay in the order of their lengths
#include "VorBomSortedRows.h"

#include "VorBomColumns.h"
#include "VorBomRanks.h"
#include "VorStableMergeSort.h"

#include <memory>
#include <numeric>
#include <utility>

VorBomSortedRows::VorBomSortedRows(VorBomData& data, const VorBomSortKeys& keys)
    : m_keys(keys), m_columns(m_keys.count())
{
    std::vector<VorString> tokens;
    for (std::size_t key = 0; key < m_keys.count(); ++key)
        tokens.push_back(m_keys.token(key));
    for (VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        m_rows.push_back(pRow);
    for (Column& column : m_columns)
        column.resize(m_rows.size());
    // The pointers outlive `columns`: they hold as long as no row gets a tuple, and none does while rows are sorted.
    VorBomColumns columns(std::make_shared<VorBomRowLayouts>(), std::move(tokens));
    for (std::size_t row = 0; row < m_rows.size(); ++row)
    {
        columns.find(*m_rows[row]);
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            m_columns[i][row] = columns[static_cast<int>(i)];
    }
}

std::vector<VorBomItemBase*> VorBomSortedRows::sorted()
{
    std::vector<std::uint32_t> indices(m_rows.size());
    std::iota(indices.begin(), indices.end(), 0U);
    if (!sortByRanks(indices))
        vorStableMergeSort(indices, [this](std::uint32_t a, std::uint32_t b) { return compareRows(a, b) <= 0; });

    std::vector<VorBomItemBase*> rows;
    rows.reserve(indices.size());
    for (const std::uint32_t index : indices)
        rows.push_back(m_rows[index]);
    return rows;
}

// False with `indices` untouched when a column cannot be ranked, or its token is one that comparing reports as unknown.
bool VorBomSortedRows::sortByRanks(std::vector<std::uint32_t>& indices) const
{
    // All columns are ranked before any sorting, so that giving up leaves nothing half sorted.
    std::vector<VorBomRanks> ranks(m_keys.count());
    for (std::size_t key = 0; key < m_keys.count(); ++key)
    {
        const int sortType = m_keys.sortType(key);
        if (sortType == VorBomSortKeys::kByCatalogue ||
            !ranks[key].create(m_columns[key], static_cast<VorBomDataToken::eSortType>(sortType)))
            return false;
    }
    for (std::size_t key = m_keys.count(); key-- > 0;)
        ranks[key].sortStably(indices, m_keys.isAscending(key));
    return true;
}

int VorBomSortedRows::compareRows(std::uint32_t first, std::uint32_t second)
{
    return m_keys.compare([this, first](std::size_t key) { return m_columns[key][first]; },
                          [this, second](std::size_t key) { return m_columns[key][second]; });
}
