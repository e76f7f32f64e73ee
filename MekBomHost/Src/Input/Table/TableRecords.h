// The rows of a table in memory as the records of a parts list.
//
//   TableRecords records(table);
//   records.next()   ->  its headings
//   records.next()   ->  its first row
//
// Messages count rows from 1, where those of a file have lines.
#pragma once

#include "RecordSource.h"
#include "RowTable.h"

#include <cstddef>
#include <string>

namespace mekbom
{
class TableRecords : public RecordSource
{
public:
    // The table is not owned, must not change, and outlives the records.
    explicit TableRecords(const RowTable& table) : m_table(table) {}

    const std::string& name() const override { return m_table.name(); }
    const Record* next() override;
    void placeRecord(Finding& finding) const override;
    void placeCell(std::size_t index, Finding& finding) const override;

private:
    const RowTable& m_table;
    std::size_t m_numRead = 0; // the headings included
    Record m_record;
};
}
