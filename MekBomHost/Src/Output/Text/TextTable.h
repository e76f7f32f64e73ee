// An evaluated report as a text table: title, headings, one line for each section that shows anything.
//
//   Cutting list
//
//   Profile  Material  Pieces  Weight
//   -------  --------  ------  ------
//   HEA200   S355J2         4  1042.4
//   IPE360   S355J2        16  8127.5
//   -------  --------  ------  ------
//   Total                  20  9169.9
//
//   20 rows read, 20 listed
//
// A blank line sets off groups of several lines, a rule the report's own footer. A column is as wide as its widest
// text, or as the template says: texts that are wider go on in the next line, numbers widen the column and have their
// decimal points below each other. Lines have no blanks at their end. What the list is made of stands below a blank
// line, where it is known. The whole table is in UTF-8, whatever the locale.
#pragma once

#include "EvaluatedReport.h"
#include "OutputChoices.h"
#include "TableText.h"
#include "TextColumns.h"
#include "TextSink.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class TextTable
{
public:
    // Neither `report` nor `sink` is owned; both must outlive the table. Throws a Fault of status kWrongUsage when the
    // table cannot be made as narrow as the choices want it.
    TextTable(const EvaluatedReport& report, const OutputChoices& choices, TextSink& sink);

    // Writes the whole table into the sink and finishes that. To be called once.
    void write();

private:
    void writeTitle();
    void writeOutside(const std::string& text);
    void writeFoot();
    void writeHeading();
    void writeRule();
    void writeSeparation(const LinePlace& place, const LinePlace& previous);
    void writeLine(const ReportLine& line);
    bool writeAsIs(const std::vector<ShownText>& texts);
    char* withRoomFor(std::size_t numBytes, const char* pPlace);
    void wrap(const ReportLine& line);
    std::vector<std::string> textLines(const TextColumn& column, std::string_view text) const;
    void writeWrapped();
    void writeWrappedLine(std::size_t index);
    void endLine();
    std::size_t writeText(const TextColumn& column, const std::string& text, std::size_t numBlanksBefore);
    void passOn(std::size_t least);

    const EvaluatedReport& m_report;
    const TableText m_tableText;
    const int m_width; // that everything has to fit into; 0 for as wide as need be
    TextSink& m_sink;
    const std::vector<TextColumn> m_columns;
    std::size_t m_lineWidth = 0;                     // of all columns, each with the blanks after it
    std::vector<std::vector<std::string>> m_wrapped; // for each column the lines of the cell that is being written
    std::string m_text;                              // what has been written but not passed on to the sink
};
}
