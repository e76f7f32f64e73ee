#include "TableRecords.h"

#include <string_view>

namespace mekbom
{
const Record* TableRecords::next()
{
    if (m_numRead > m_table.numRows())
        return nullptr;
    m_record.clear();
    for (std::size_t column = 0; column < m_table.headings().size(); ++column)
        m_record.push_back(m_numRead == 0 ? RecordCell(std::string_view(m_table.headings()[column]))
                                          : m_table.cell(m_numRead - 1, column));
    ++m_numRead;
    return &m_record;
}

void TableRecords::placeRecord(Finding& finding) const
{
    finding.source = m_table.name();
    if (m_numRead > 1)
        finding.path = "row " + std::to_string(m_numRead - 1);
}

void TableRecords::placeCell(std::size_t, Finding& finding) const
{
    placeRecord(finding);
}
}
