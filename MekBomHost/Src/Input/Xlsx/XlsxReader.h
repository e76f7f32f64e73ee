// The records of a sheet of a workbook.
//
//   Parts!A4   Mark   Profile   Weight [kg]
//   Parts!A5   B1     HEA200          134.4       ->   B1 | HEA200 | 134.4
//
// The header row is the first one with two filled cells, so that titles above it are passed over; of a sheet without
// such a row it is the first that is not empty. Its filled cells are the columns of the records, and a cell in another
// column ends the reading with a Fault, as do cells that are merged over several rows of the table: which of these have
// its value nobody knows. Empty rows are passed over, hidden rows and columns are read. What a cell gives is told by
// SheetRows.
#pragma once

#include "ByteSource.h"
#include "FindingList.h"
#include "RecordSource.h"
#include "SheetRows.h"
#include "Workbook.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
class XlsxReader : public RecordSource
{
public:
    // Reads all of `source`, which is not needed afterwards, and the rows up to the header row. `sheet` is the name of
    // the sheet; empty for the first one that is not hidden. Which one that is, where there are others, and which rows
    // stand above the header row is told to `notes`. Throws a Fault of status kWrongUsage when there is no such sheet.
    XlsxReader(ByteSource& source, const std::string& sheet, FindingList& notes);

    const std::string& name() const override { return m_workbook.name(); }
    const Record* next() override;

    // The name of the record's first cell, and that of the cell: "Parts!C7", as the finding's path.
    void placeRecord(Finding& finding) const override;
    void placeCell(std::size_t index, Finding& finding) const override;

private:
    const Workbook::Sheet& choose(const std::string& sheet, FindingList& notes) const;
    [[noreturn]] void failWithoutSheet(const std::string& sheet) const;
    void openSheet();
    void findHeader(FindingList& notes);
    void noteRowsAbove(int firstRow, FindingList& notes) const;
    [[noreturn]] void failWithoutHeader() const;
    void takeColumns();
    void fillRecord();
    void requireUnmerged() const;
    bool hasHeading(const SheetRows::Block& block) const;
    [[noreturn]] void failWithoutHeading(const SheetRows::Cell& cell) const;

    Workbook m_workbook;
    const Workbook::Sheet& m_sheet;
    std::unique_ptr<ByteSource> m_pPart;
    std::unique_ptr<SheetRows> m_pRows; // reads the part
    int m_headerRow = 0;
    bool m_isHeaderNext = true; // the row read last is the header row, and nobody has seen it
    std::vector<int> m_columns; // of the sheet, by those of the records
    std::vector<int> m_indices; // the reverse; kNoColumn where a column has no heading
    Record m_record;
};
}
