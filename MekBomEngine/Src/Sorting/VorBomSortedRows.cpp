#include "VorBomSortedRows.h"

#include "VorBomColumns.h"
#include "VorBomRanks.h"
#include "VorBomTokenCatalogue.h"
#include "VorStableMergeSort.h"

#include <memory>
#include <numeric>

int VorBomSortedRows::KeyComparison::compare(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond)
{
    const int order = compareValues(pFirst, pSecond);
    return m_isAscending ? order : -order;
}

int VorBomSortedRows::KeyComparison::compareValues(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond)
{
    const bool bothHaveIt = pFirst != nullptr && pSecond != nullptr;
    if (bothHaveIt && !m_knowsSortType)
    {
        m_isNatural = VorBomDataToken::getSortType(m_token) == VorBomDataToken::kSortAlphanumeric;
        m_knowsSortType = true;
    }
    if (bothHaveIt && m_isNatural)
        return pFirst->value().compareAlphanumeric(pSecond->value());
    return VorBomDataTuple::compareValues(pFirst, pSecond);
}

VorBomSortedRows::VorBomSortedRows(VorBomData& data, const VorStringArray& tokens, const VorArray<int>& orders)
    : m_columns(static_cast<std::size_t>(tokens.length()))
{
    for (int i = 0; i < tokens.length(); ++i)
        m_keys.emplace_back(tokens[i], orders[i]);
    for (VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        m_rows.push_back(pRow);
    for (Column& column : m_columns)
        column.resize(m_rows.size());
    VorBomColumns columns(std::make_shared<VorBomRowLayouts>(), std::vector<VorString>(tokens.begin(), tokens.end()));
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
    std::vector<VorBomRanks> ranks(m_keys.size());
    for (std::size_t key = 0; key < m_keys.size(); ++key)
    {
        const VorBomTokenCatalogue::Entry* pEntry = VorBomTokenCatalogue::find(m_keys[key].token());
        if (pEntry == nullptr || !ranks[key].create(m_columns[key], pEntry->sort))
            return false;
    }
    for (std::size_t key = m_keys.size(); key-- > 0;)
        ranks[key].sortStably(indices, m_keys[key].isAscending());
    return true;
}

int VorBomSortedRows::compareRows(std::uint32_t first, std::uint32_t second)
{
    for (std::size_t key = 0; key < m_keys.size(); ++key)
        if (const int order = m_keys[key].compare(m_columns[key][first], m_columns[key][second]))
            return order;
    return 0;
}
