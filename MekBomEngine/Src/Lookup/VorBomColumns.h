// Data looked up in many rows: a list of tokens, and where the row at hand has them.
//
//   VorBomColumns columns(positions, { L"%Material", L"%Weight" });
//   columns.find(row);
//   columns[1]   ->  the row's first tuple "%Weight", or null
//
// Finds what VorBomItemBase::getTupleAt finds. What columns[] answers is valid until the row gets further tuples, or two
// other rows were looked up by anyone who shares the positions (VorBomTuplePositions).
#pragma once

#include "VorBomItemBase.h"
#include "VorBomTuplePositions.h"

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <memory>
#include <vector>

class VorBomColumns
{
public:
    VorBomColumns(std::shared_ptr<VorBomTuplePositions> pPositions, const std::vector<VorString>& tokens);

    // Takes `column` for one that no row has.
    void leaveOut(int column) { m_numbers[static_cast<std::size_t>(column)] = VorBomTuplePositions::kNotAsked; }

    // Looks all tokens up in `row`.
    void find(VorBomItemBase& row)
    {
        m_pTuples = row.getData().begin();
        m_pPositions = m_pAsked->in(row);
    }

    int count() const { return static_cast<int>(m_numbers.size()); }

    VorBomDataTuple* operator[](int column) const
    {
        const int position = m_pPositions[m_numbers[static_cast<std::size_t>(column)]];
        return position < 0 ? nullptr : m_pTuples + position;
    }

private:
    std::shared_ptr<VorBomTuplePositions> m_pAsked;
    std::vector<int> m_numbers; // of each token

    // The row that find() was called for last: the position in it for each number, and its tuples.
    const int* m_pPositions = nullptr;
    VorBomDataTuple* m_pTuples = nullptr;
};
