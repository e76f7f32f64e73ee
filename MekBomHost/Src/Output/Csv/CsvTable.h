// An evaluated report as CSV: a record of headings, then a record for each line of the deepest level that is printed.
//
//   Profile,Material,Length [mm],Pieces,Each [kg],Weight [kg]
//   IPE360,S355J2,2400,12,68.52,822.24
//   HEA200,S355J2,6161,4,260.61,1042.44
//
// CsvColumns says which fields there are. Totals are no records. The sink is given whole records in UTF-8.
#pragma once

#include "CsvColumns.h"
#include "EvaluatedReport.h"
#include "OutputChoices.h"
#include "TextSink.h"

#include "VorBomTypedValue.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class CsvTable
{
public:
    // `report` was evaluated with values. Neither it nor `sink` is owned; both must outlive the table.
    CsvTable(const EvaluatedReport& report, const OutputChoices& choices, char delimiter, TextSink& sink);

    // Writes the whole table into the sink and finishes that. To be called once.
    void write();

private:
    // What a field shows, kept until the line that ends the record.
    struct Cell
    {
        ShownText text;
        VorBomTypedValue value;
    };

    void writeHeadings();
    void take(const ReportLine& line);
    void writeRecord();
    void writeCell(const CsvColumn& column, const Cell& cell);
    void writeNumber(const ReportColumn& column, const Cell& cell);
    void writeText(std::string_view text);
    void writeFoot();
    void writeAlone(const std::string& text);
    void beginField(std::size_t index);
    void endRecord(std::size_t begin);
    void passOn(std::size_t least);

    const EvaluatedReport& m_report;
    const OutputChoices& m_choices;
    char m_delimiter;
    TextSink& m_sink;
    const CsvColumns m_fields;
    std::vector<Cell> m_cells;                           // one for each field
    std::vector<std::vector<std::size_t>> m_headerCells; // by level: the fields that its header fills
    std::vector<std::size_t> m_footerCells;              // those that the footer of the records fills
    std::string m_text;                                  // what has been written but not passed on to the sink
};
}
