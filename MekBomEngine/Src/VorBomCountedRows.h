// The rows that a footer counts, in their order: those of its group that have getUseThisDataForSums(), so neither rows
// that a host took out nor rows whose line was merged into the one before.
//
//   double total = 0;
//   for (const VorBomDataRow& row : footer.countedRows)
//       total += weightOf(row);
//
// Looks at the group's own list of rows: valid as long as the call that it was handed to.
#pragma once

#include "VorBomDataRow.h"

class VorBomCountedRows
{
public:
    // What a range-based for needs, and no more. Steps over rows that are not counted.
    class Iterator
    {
    public:
        // Stands at the first counted row from `pRow` on, or at `pEnd` when there is none.
        Iterator(VorBomDataRow* const* pRow, VorBomDataRow* const* pEnd) : m_pRow(pRow), m_pEnd(pEnd) { skip(); }

        const VorBomDataRow& operator*() const { return **m_pRow; }
        Iterator& operator++()
        {
            ++m_pRow;
            skip();
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_pRow != other.m_pRow; }

    private:
        void skip()
        {
            while (m_pRow != m_pEnd && (*m_pRow)->getUseThisDataForSums() == 0)
                ++m_pRow;
        }

        VorBomDataRow* const* m_pRow;
        VorBomDataRow* const* m_pEnd;
    };

    VorBomCountedRows() = default; // none
    // The rows of `rows` that count when they are read. The list is not owned, must not change, and holds no null.
    explicit VorBomCountedRows(const VorArray<VorBomDataRow*>& rows) : m_pBegin(rows.begin()), m_pEnd(rows.end()) {}

    Iterator begin() const { return Iterator(m_pBegin, m_pEnd); }
    Iterator end() const { return Iterator(m_pEnd, m_pEnd); }

private:
    VorBomDataRow* const* m_pBegin = nullptr;
    VorBomDataRow* const* m_pEnd = nullptr;
};
