// Data looked up in many rows: a list of tokens, and what a row has for each.
//
//   VorBomColumns columns(positions, { L"%Material", L"%Weight" });
//   const VorBomColumns::Found found = columns.find(row);
//   found[1]   ->  the row's first tuple "%Weight", or null
//
// Finds what VorBomItemBase::getTupleAt finds. What was found is valid until the row gets further tuples, or two other
// rows were looked up by anyone who shares the positions (VorBomTuplePositions).
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

    // The tuples of one row, by the number of the column. Small, to be kept in registers while a row is gone through.
    class Found
    {
    public:
        VorBomDataTuple* operator[](int column) const
        {
            const int position = m_pPositions[m_pNumbers[column]];
            return position < 0 ? nullptr : m_pTuples + position;
        }

    private:
        friend class VorBomColumns;
        Found(const int* pNumbers, const int* pPositions, VorBomDataTuple* pTuples)
            : m_pNumbers(pNumbers), m_pPositions(pPositions), m_pTuples(pTuples)
        {
        }

        const int* m_pNumbers;   // of each token
        const int* m_pPositions; // in the row, by number
        VorBomDataTuple* m_pTuples;
    };

    // Looks all tokens up in `row`.
    Found find(VorBomItemBase& row) { return Found(m_numbers.data(), m_pAsked->in(row), row.getData().begin()); }

    int count() const { return static_cast<int>(m_numbers.size()); }

private:
    std::shared_ptr<VorBomTuplePositions> m_pAsked;
    std::vector<int> m_numbers; // of each token
};
