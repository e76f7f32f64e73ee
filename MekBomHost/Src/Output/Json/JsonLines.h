// Some of the lines of an evaluated report, in JSON, for a window that shows a screenful of them. One after the other, and
// not in groups as in a JsonList:
//
//   JsonLines lines(report);
//   const std::string twoLines = lines.textOf(0, 2);
//
//   header    [{"line": 0, "level": 0, "role": "header", "values": ["S235"], "shown": ["S235"]},
//   line       {"line": 1, "level": 1, "role": "line", "values": [7.5], "shown": ["7.5"], "handles": ["2A0"]}]
//
// Roles are "header", "footer", "group" for a header and its footer on one line, and "line". Who goes on where the last
// range ended pays for the new lines alone; any other range is walked to from the first line on.
#pragma once

#include "EvaluatedReport.h"
#include "JsonLine.h"

#include <cstddef>
#include <optional>
#include <string>

namespace mekbom
{
class JsonLines
{
public:
    // `report` was evaluated with values and rows; it is not owned and outlives the lines.
    explicit JsonLines(const EvaluatedReport& report);

    // How many lines the report has.
    std::size_t count() const { return m_count; }

    // An array of `numLines` lines from line `first`, counted from 0; of fewer where the report ends before.
    std::string textOf(std::size_t first, std::size_t numLines);

    // The handles of the rows behind a line: of a total those that it counts, of the header of a group that of the row
    // which opened it; none for a line that there is not.
    //   {"handles": ["2A0"], "mergedHandles": ["2A4"]}       the second only where rows were merged away
    std::string handlesOf(std::size_t line);

private:
    void goTo(std::size_t line);
    bool isOrdinary() const;
    void append(std::string& text);
    const char* role() const;

    const EvaluatedReport& m_report;
    JsonLine m_json;
    std::optional<ReportLines> m_lines; // always there: begun anew for a range before the last one
    ReportLine m_line;                  // read last
    std::size_t m_next = 0;
    std::size_t m_count = 0;
    int m_deepest; // the level of the ordinary lines
};
}
