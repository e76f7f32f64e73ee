// Lines can only be read one after the other, so that line 3 is found by reading 1 to 4: 2 is kept as the one before, 3
// as the line, 4 as the one after, and nothing behind it is read. Without a line 3 all have been read, and are counted.
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
