// Turns the records of a parts list into data rows, checking every cell on the way.
//
//   rows.add(record);      // for each record that `source` hands over
//   rows.finish();
//
// A cell becomes a tuple of its column's type; an empty cell becomes nothing. Cells of columns that nobody wants are
// checked too, so that whether a parts list is sound does not depend on the template.
#pragma once

#include "ContentColumn.h"
#include "FindingList.h"
#include "PartsColumn.h"
#include "RecordSource.h"
#include "RowBatch.h"

#include "VorBomData.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
struct FindingCode;

class PartsRows
{
public:
    // Nothing of this is owned; all of it outlives the rows. They are appended to `data`, which owns them.
    PartsRows(const std::vector<PartsColumn>& columns, const RecordSource& source, VorBomData& data);

    // Rows get room for that many more tuples: the evaluation adds one for each formula.
    void reserveTuples(int numTuples) { m_rows.reserveTuples(numTuples); }

    // Each row gets its number, from 1, as its handle: for data that bring none.
    void numberRows(const VorString& handleToken);

    // Makes a row of the record that `source` has handed over last.
    void add(const Record& record);

    // Completes the rows once all are added. Throws a Fault with what was wrong in any of them.
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

    const std::vector<PartsColumn>& m_columns;
    const RecordSource& m_source;
    VorBomData& m_data;
    FindingList m_findings;
    RowBatch m_rows;                             // those that are not in the data yet
    std::vector<ContentColumn> m_contentColumns; // one for each column, used where the type is still open
    VorString m_numberToken;                     // empty when rows are not numbered
    int m_numRows = 0;
    std::string m_numberText; // of the cell that is being read, if it is a number
};
}
