#include "LineNeighbours.h"

namespace mekbom
{
LineNeighbours::LineNeighbours(const EvaluatedReport& report, int number)
{
    ReportLines lines = report.lines();
    ReportLine line;
    while ((m_numLines <= number || number < 1) && lines.next(line))
    {
        ++m_numLines;
        if (m_numLines + 1 == number)
            m_before = line;
        else if (m_numLines == number)
            m_line = line;
        else if (m_numLines - 1 == number && number > 0)
            m_after = line;
    }
}
}
