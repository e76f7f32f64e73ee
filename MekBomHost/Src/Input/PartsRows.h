// Turns the records of a parts list into data rows, checking every cell on the way.
//
//   rows.add(reader);      for each record
//   rows.finish();
//
// A cell becomes a tuple of its column's type; an empty cell becomes nothing. Cells of columns that nobody wants are
// checked too, so that whether a parts list is sound does not depend on the template.
#pragma once

#include "ContentColumn.h"
#include "CsvReader.h"
#include "FaultList.h"
#include "PartsColumn.h"
#include "RowBatch.h"

#include "VorBomData.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class PartsRows
{
public:
    // Neither is owned; both outlive this. The rows are appended to `data`, which owns them.
    PartsRows(const std::vector<PartsColumn>& columns, VorBomData& data);

    // Rows get room for that many more tuples: the evaluation adds one for each formula.
    void reserveTuples(int numTuples) { m_rows.reserveTuples(numTuples); }

    // Each row gets its number, from 1, as its handle: for data that bring none.
    void numberRows(const VorString& handleToken);

    // Makes a row of the record that `reader` read last.
    void add(const CsvReader& reader);

    // Completes the rows once all are added. Throws a Fault with what was wrong in any of them.
    void finish();

private:
    bool checkNumFields(const CsvReader& reader);
    void readCell(const CsvReader& reader, std::size_t column, std::string_view text);
    void readWhole(const CsvReader& reader, std::size_t column, std::string_view text);
    void readNumber(const CsvReader& reader, std::size_t column, std::string_view text);
    void readText(std::size_t column, std::string_view text);
    void readHandle(std::size_t column, std::string_view text);
    bool readQuantity(const CsvReader& reader, std::size_t column, double& value);
    void addFault(const CsvReader& reader, std::size_t column, const std::string& expected);
    void addNumberAsHandle();

    const std::vector<PartsColumn>& m_columns;
    VorBomData& m_data;
    FaultList m_faults;
    RowBatch m_rows;                             // those that are not in the data yet
    std::vector<ContentColumn> m_contentColumns; // one for each column, used where the type is still open
    VorString m_numberToken;                     // empty when rows are not numbered
    int m_numRows = 0;
};
}
