// The rows behind the sections of a report, a list for each section, one list after the other in one array.
//
//   SectionRows rows;
//   rows.beginList();        // of the line of row 1
//   rows.add(row1);
//   rows.add(row2);          // whose line reads the same and was merged into it
//   rows.beginList();        // of a total over row 1, which alone counts
//   rows.add(row1);
//   rows.list(0);            // row 1, row 2
#pragma once

#include "VorBomDataRow.h"

#include <cstddef>
#include <vector>

namespace mekbom
{
// One of the lists, to be read in a loop; empty where nobody asked for rows. It owns no row.
struct RowList
{
    const VorBomDataRow* const* begin() const { return pBegin; }
    const VorBomDataRow* const* end() const { return pEnd; }
    std::size_t size() const { return static_cast<std::size_t>(pEnd - pBegin); }

    const VorBomDataRow* const* pBegin = nullptr;
    const VorBomDataRow* const* pEnd = nullptr;
};

class SectionRows
{
public:
    void beginList() { m_begins.push_back(m_rows.size()); }

    // Adds to the list begun last; there must be one.
    void add(const VorBomDataRow& row) { m_rows.push_back(&row); }

    // Lists count from 0 as they were begun. Valid until something is added.
    RowList list(std::size_t number) const
    {
        const std::size_t end = number + 1 == m_begins.size() ? m_rows.size() : m_begins[number + 1];
        return { m_rows.data() + m_begins[number], m_rows.data() + end };
    }

private:
    std::vector<const VorBomDataRow*> m_rows;
    std::vector<std::size_t> m_begins;
};
}
