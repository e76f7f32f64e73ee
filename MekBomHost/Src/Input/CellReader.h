// Reads the cells of a parts list's records, each as its column has it: every record becomes the values of a row.
//
//   CellReader cells(columns, source);
//   while (cells.read(batch))
//       rows.build(batch);                           // a RowBuilder, which appends them to the data
//   const PartsFacts facts = cells.finish(data);
//
// A cell becomes a datum of its column's type; an empty cell becomes nothing:
//
//   columns                  %Name      %Length in ft     %Quantity
//   record                   HEA200     7.5               (nothing)
//   row                      [%Name:HEA200][%Length:2286]
//
// Cells of columns that nobody wants are not looked at: what a report does not use must not keep it from being made.
//
// One reader is for one thread at a time: batches may be read on one thread, and finish() be called on another one when
// that has come to its end.
#pragma once

#include "CellParser.h"
#include "FindingList.h"
#include "HandleCheck.h"
#include "InputColumn.h"
#include "NumberNotation.h"
#include "PartsFacts.h"
#include "RecordSource.h"
#include "RowBatch.h"
#include "UntypedCells.h"

#include "VorBomData.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class CellReader
{
public:
    // `columns` and `source` are not owned and outlive the reader.
    CellReader(const std::vector<InputColumn>& columns, RecordSource& source);

    // How numbers are written in cells that are texts; the plain way where nobody says it. To be called before the first
    // read().
    void setNotation(const NumberNotation& notation);

    // Each row gets its number, from 1, as its handle: for data that bring none.
    void numberRows(const VorString& handleToken) { m_numberToken = handleToken; }

    // A row that does not say how many pieces it stands for gets a 1 with this token.
    void countPieces(const VorString& piecesToken) { m_piecesToken = piecesToken; }

    // Fills `batch`, whatever it held, from the next records of the source, and notes what is wrong with them; false
    // when none is left. Throws what the source throws.
    bool read(RowBatch& batch);

    // Completes the rows in `data` once all records are read and all batches built there, and tells what is known of
    // them. Throws a Fault with what was wrong in any of them.
    PartsFacts finish(VorBomData& data);

    // What was found. Once finish() has returned, none of it is an error.
    const std::vector<Finding>& findings() const { return m_findings.all(); }

private:
    // What is noted of a column while its cells come in.
    struct Notes
    {
        int numFilled = 0;
        int numDecimals = 0;
        bool isWithoutUnit = false; // a number has no unit, which is said once
        bool isUnclear = false;     // a number may be two, which is said once, too
    };

    void read(const Record& record);
    bool checkNumCells(const Record& record);
    int piecesOf(const Record& record);
    void readCell(std::size_t column, const RecordCell& cell);
    void readWhole(std::size_t column, const RecordCell& cell);
    void readNumber(std::size_t column, const RecordCell& cell);
    bool divideByPieces(double& value) const;
    void readText(std::size_t column, const RecordCell& cell);
    void readUntyped(std::size_t column, const RecordCell& cell);
    void readHandle(std::size_t column, std::string_view text);
    void addRefusal(std::size_t column);
    void addTotalOfNoPieces(std::size_t column, const RecordCell& cell);
    void noteGroups(std::size_t column);
    void addFinding(Finding finding, std::size_t column);
    void addNumberAsHandle();
    void addHandleFindings();
    void fillOpenColumns(VorBomData& data);
    PartsFacts facts() const;

    const std::vector<InputColumn>& m_columns;
    RecordSource& m_source;
    CellParser m_parser;
    FindingList m_findings;
    RowBatch* m_pBatch = nullptr;             // the one that is being filled; not owned
    std::vector<UntypedCells> m_untypedCells; // one for each column, used where the type is still open
    std::vector<Notes> m_notes;               // one for each column
    std::vector<std::size_t> m_columnsToRead; // those that are wanted, and that of the handle
    std::size_t m_handleColumn;               // that of the pieces as well: the number of columns where there is none
    std::size_t m_piecesColumn;
    bool m_dividesRowTotals = false;
    HandleCheck m_handles;
    VorString m_numberToken; // empty when rows are not numbered
    VorString m_piecesToken; // empty when pieces need not be counted
    int m_numRows = 0;
    int m_numEmptyRows = 0;   // passed over
    int m_numPieces = 1;      // of the row that is being read; looked at only where row totals are divided
    bool m_hasGroups = false; // digits in groups, which is said of the first number
};
}
