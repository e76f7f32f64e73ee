// The rows that a footer counts, in their order: those of its group that have getUseThisDataForSums(), so neither rows
// that a host took out nor rows whose line was merged into the one before.
//
//   double total = 0;
//   for (const VorBomDataRow& row : footer.countedRows)
//       total += weightOf(row);
//
// Of rows of 2.5, 1.5 and 4 kg, the second of which was merged into the first, the total is 6.5.
//
// Looks at the group's own list of rows: valid as long as the call that it was handed to.
//
// A sink gets one with each footer; with headers and lines it is empty. Nothing is copied: the object is two pointers,
// and whether a row counts is read from the row at the moment the loop reaches it. There is no count():
// how many rows count is known only after a walk past all of them, and a caller should see that it pays for one.
//
// Walking costs one step for each row of the group, counted or not. It is for the thread that evaluates, within the
// call that the rows were handed to: after it the group's list is emptied and used for the next group.
#pragma once

#include "VorBomDataRow.h"

class VorBomCountedRows
{
public:
    // What a range-based for needs, and no more. Steps over rows that are not counted.
    // A forward walk only: it has no postfix form and compares with != alone, which is all that the loop asks for. The
    // walk ends at end(); an iterator that stands there must be neither read nor advanced. Iterators of two lists may
    // not be compared. Copies are independent, and as short-lived as the object that they come from.
    class Iterator
    {
    public:
        // Stands at the first counted row from `pRow` on, or at `pEnd` when there is none.
        Iterator(VorBomDataRow* const* pRow, VorBomDataRow* const* pEnd) : m_pRow(pRow), m_pEnd(pEnd) { skip(); }

        // The row is the caller's to read and not to change; it lives as long as the data that it hangs in.
        const VorBomDataRow& operator*() const { return **m_pRow; }
        Iterator& operator++()
        {
            ++m_pRow;
            skip();
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_pRow != other.m_pRow; }

    private:
        // Every iterator stands at a counted row or at the end, so reading one needs no check. Any flag but 0 counts.
        void skip()
        {
            while (m_pRow != m_pEnd && (*m_pRow)->getUseThisDataForSums() == 0)
                ++m_pRow;
        }

        VorBomDataRow* const* m_pRow;
        VorBomDataRow* const* m_pEnd;
    };

    // No rows: what headers and lines have.
    VorBomCountedRows() = default;

    // The rows of `rows` that count when they are read. The list is not owned, must not change, and holds no null.
    //   VorArray<VorBomDataRow*> group;
    //   group.append(pRow);
    //   pRow->setUseThisDataForSums(0);
    //   const VorBomCountedRows counted(group);
    //   counted.begin() != counted.end()   ->  false
    explicit VorBomCountedRows(const VorArray<VorBomDataRow*>& rows) : m_pBegin(rows.begin()), m_pEnd(rows.end()) {}

    // Each begin() starts anew at the group's first counted row, so the rows may be walked as often as the caller
    // likes.
    Iterator begin() const { return Iterator(m_pBegin, m_pEnd); }
    Iterator end() const { return Iterator(m_pEnd, m_pEnd); }

private:
    VorBomDataRow* const* m_pBegin = nullptr;
    VorBomDataRow* const* m_pEnd = nullptr;
};
