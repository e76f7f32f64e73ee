// Reads the cells of a parts list's records, each as its column has it, and makes a data row of every record.
//
//   CellReader cells(columns, source, data);
//   while (const Record* const pRecord = source.next())
//       cells.read(*pRecord);
//   cells.finish();
//
// A cell becomes a tuple of its column's type; an empty cell becomes nothing:
//
//   columns                  %Name      %Length in ft     %Quantity
//   record                   HEA200     7.5               (nothing)
//   row                      [%Name:HEA200][%Length:2286]
//
// Cells of columns that nobody wants are checked too, so that whether a parts list is sound does not depend on the
// template.
#pragma once

#include "FindingList.h"
#include "InputColumn.h"
#include "RecordSource.h"
#include "RowBuilder.h"
#include "UntypedCells.h"

#include "VorBomData.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
struct FindingCode;

class CellReader
{
public:
    // `columns`, `source` and `data` are not owned and outlive the reader. The rows go to `data`, which owns them.
    CellReader(const std::vector<InputColumn>& columns, const RecordSource& source, VorBomData& data);

    // Rows get room for that many more tuples: the evaluation adds one for each formula.
    void reserveTuples(int numTuples) { m_rows.reserveTuples(numTuples); }

    // Each row gets its number, from 1, as its handle: for data that bring none.
    void numberRows(const VorString& handleToken);

    // Makes a row of the record that `source` has handed over last, or notes what is wrong with it.
    void read(const Record& record);

    // Completes the rows once all records are read. Throws a Fault with what was wrong in any of them.
    void finish();

private:
    bool checkNumCells(const Record& record);
    void readCell(std::size_t column, const RecordCell& cell);
    std::string_view textOf(const RecordCell& cell);
    void readWhole(std::size_t column, std::string_view text);
    void readNumber(std::size_t column, const RecordCell& cell);
    void readText(std::size_t column, std::string_view text);
    void readHandle(std::size_t column, std::string_view text);
    bool readPlainNumber(std::size_t column, const RecordCell& cell, double& value) const;
    bool readQuantity(std::size_t column, std::string_view text, double& value);
    void addFinding(const FindingCode& code, std::size_t column, std::string_view text, const std::string& expected,
                    const std::string& remedy = std::string());
    void addNumberAsHandle();

    const std::vector<InputColumn>& m_columns;
    const RecordSource& m_source;
    VorBomData& m_data;
    FindingList m_findings;
    RowBuilder m_rows;                        // those that are not in the data yet
    std::vector<UntypedCells> m_untypedCells; // one for each column, used where the type is still open
    VorString m_numberToken;                  // empty when rows are not numbered
    int m_numRows = 0;
    std::string m_numberText; // of the cell that is being read, if it is a number
};
}
