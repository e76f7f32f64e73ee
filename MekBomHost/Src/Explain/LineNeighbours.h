// One line of a list with those before and after it. Lines are the printed sections, counted from 1: title, headings,
// rules and blank lines are none, and a line whose texts go on in the next is one.
//
//   const LineNeighbours found(report, 3);
//   found.line()        ->  the third line, or null when there are fewer
//   found.numLines()    ->  how many there are, when the third is none of them
#pragma once

#include "EvaluatedReport.h"
#include "ReportLine.h"

#include <optional>

namespace mekbom
{
class LineNeighbours
{
public:
    // Looks for the line with that number, from 1. The lines refer to what the report keeps, and are good as long as
    // that.
    LineNeighbours(const EvaluatedReport& report, int number);

    const ReportLine* line() const { return pointerTo(m_line); }
    const ReportLine* before() const { return pointerTo(m_before); } // null for the first line
    const ReportLine* after() const { return pointerTo(m_after); }   // null for the last one

    // How many lines the report has; of use only when line() is null, since the search ends behind a line that it
    // finds.
    int numLines() const { return m_numLines; }

private:
    static const ReportLine* pointerTo(const std::optional<ReportLine>& line) { return line ? &*line : nullptr; }

    std::optional<ReportLine> m_before;
    std::optional<ReportLine> m_line;
    std::optional<ReportLine> m_after;
    int m_numLines = 0;
};
}
