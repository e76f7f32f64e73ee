#include "LineNeighbours.h"

namespace mekbom
{
LineNeighbours::LineNeighbours(const EvaluatedReport& report, int number)
{
    ReportLines lines = report.lines();
    ReportLine line;
    while (m_numLines <= number && lines.next(line))
    {
        ++m_numLines;
        if (m_numLines == number - 1)
            m_before = line;
        else if (m_numLines == number)
            m_line = line;
        else if (m_numLines == number + 1)
            m_after = line;
    }
}
}
