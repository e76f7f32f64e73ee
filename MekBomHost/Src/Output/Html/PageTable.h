// The table of a page: headings and lines of every page in its head and foot, all other lines in bodies.
//
//   PageTable table(report, survey, page);
//   table.writeHead();
//   ReportLines lines = report.lines();
//   for (ReportLine line; lines.next(line);)
//       table.write(line);
//   table.writeFoot();
//
//   <table class="list" data-deepest="2">
//   <thead><tr><th scope="col">Profile<th scope="col" data-numeric>Length [mm]</tr>
//   <tbody>
//   <tr class="h1"><th scope="rowgroup">HEA200<td></tr>
//   <tr><td><td>2400</tr>
//   <tr class="f1"><th scope="row">Total<td>2400</tr>
//
// The class of a row says which level it opens (h), closes (f) or both (s); the script and the style go by it. A line of
// the deepest level has none. Cells are closed by what follows them: a long list is a fifth shorter.
#pragma once

#include "EvaluatedReport.h"
#include "ListSurvey.h"

#include <cstddef>
#include <string>

namespace mekbom
{
class PageTable
{
public:
    // Lists of more lines have columns of fixed widths, so that a browser lays out only what is near its window. Measured
    // in Chromium: to load 2,000 lines took it 0.6 s of processor time all at once and 0.2 s in pieces, 20,000 lines
    // 4.7 s and 0.5 s.
    static constexpr std::size_t kMostLinesAtOnce = 2000;

    // Rows of one body; the script has the same numbers.
    static constexpr std::size_t kMostRows = 200;
    static constexpr std::size_t kLeastRowsOfLongList = 100;

    // `report` has values, and `survey` is its own. What is written is appended to `page`, which may be emptied between
    // two calls. None is owned; all three must outlive the table.
    PageTable(const EvaluatedReport& report, const ListSurvey& survey, std::string& page);

    // To be called in this order: head, lines, foot.
    void writeHead();
    void write(const ReportLine& line);
    void writeFoot();

    // The style of the columns: how they are aligned, and what stands before their values where there are no headings.
    std::string style() const;

    // Whether the list is too wide for sheets that are held upright.
    bool isAcross() const;

private:
    bool isLong() const { return m_survey.numLines() > kMostLinesAtOnce; }
    void writeHeadings();
    void writePageLines(bool areFooters);
    void beginBodyFor(char kind);
    void endBody();
    void appendRow(std::string& rows, const ReportLine& line) const;
    void appendCell(std::string& rows, const ReportLine& line, std::size_t column) const;
    std::string numberAttributes(const ReportLine& line, std::size_t column) const;
    char kindOf(const LinePlace& place) const;
    std::string widths() const;
    bool isWide() const;
    std::size_t width() const;
    std::size_t widthOf(std::size_t column) const;

    const EvaluatedReport& m_report;
    const ListSurvey& m_survey;
    std::string& m_page;
    std::string m_rows; // of the body that is being written
    std::size_t m_numRows = 0;
    char m_lastKind = 0; // of its last row
};
}
