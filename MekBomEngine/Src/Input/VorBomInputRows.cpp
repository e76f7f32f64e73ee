// Whether rows are still the same is told by their places, which are written into them: a chain of as many rows, each
// with the place under which it is known here, has every one of them.
#include "VorBomInputRows.h"

#include <algorithm>
#include <utility>

VorBomInputRows::VorBomInputRows(VorBomData& data)
{
    for (VorBomItemBase* pItem = data.child(); pItem != nullptr; pItem = pItem->next())
    {
        auto* pRow = static_cast<VorBomDataRow*>(pItem);
        const VorBomDataTupleArray& tuples = pRow->getData();
        for (int tuple = 0; tuple < tuples.length(); ++tuple)
            if (tuples.begin()[tuple].used() != 0)
                m_usedTuples.push_back({ m_rows.size(), tuple, tuples.begin()[tuple].used() });
        pRow->m_nInputPlace = static_cast<int>(m_rows.size());
        m_rows.push_back({ pRow, tuples.length(), pRow->getUseThisDataForSums() });
    }
}

int VorBomInputRows::restore(VorBomData& data) const
{
    if (!hasThose(data))
        return 0;
    relink(data);
    for (const Row& row : m_rows)
    {
        restoreTuples(row);
        row.pRow->setUseThisDataForSums(row.useForSums);
    }
    for (const UsedTuple& used : m_usedTuples)
        if (VorBomDataTupleArray& tuples = m_rows[used.row].pRow->getData(); used.tuple < tuples.length())
            tuples[used.tuple].setUsed(used.used);
    return 1;
}

bool VorBomInputRows::hasThose(const VorBomData& data) const
{
    std::size_t numRows = 0;
    for (const VorBomItemBase* pItem = data.child(); pItem != nullptr; pItem = pItem->next(), ++numRows)
    {
        const auto place = static_cast<std::size_t>(static_cast<const VorBomDataRow*>(pItem)->m_nInputPlace);
        if (place >= m_rows.size() || m_rows[place].pRow != pItem)
            return false;
    }
    return numRows == m_rows.size();
}

// The last child is the last of the chain again, so that rows may be appended.
void VorBomInputRows::relink(VorBomData& data) const
{
    VorBomItemBase* pNext = nullptr;
    for (auto row = m_rows.rbegin(); row != m_rows.rend(); ++row)
    {
        row->pRow->setNext(pNext);
        pNext = row->pRow;
    }
    data.setChildren(pNext, m_rows.empty() ? nullptr : m_rows.back().pRow);
}

// Results of formulas go; what the host has appended meanwhile stays.
void VorBomInputRows::restoreTuples(const Row& row)
{
    VorBomDataTupleArray& tuples = row.pRow->getData();
    for (VorBomDataTuple& tuple : tuples)
        tuple.setUsed(0);
    int numKept = std::min(row.numTuples, tuples.length());
    for (int tuple = numKept; tuple < tuples.length(); ++tuple)
        if (VorBomDataToken::isFormula(tuples[tuple].token().token()) == 0)
            std::swap(tuples[numKept++], tuples[tuple]);
    tuples.setLogicalLength(numKept);
}
