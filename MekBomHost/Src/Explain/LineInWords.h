// What a line of a list is made of: its rows, how its totals add up, and what keeps it apart from its neighbours.
//
//   LineInWords(explained).text(2)
//
//   Line 2, level 2, details: Name "IPE360", Weight "2"
//   Made by row 2 (2A4).
//   The line before it, line 1, is in another group: %Material: "S235", here "S355".
//   The line after it, line 3, differs in %Name: "IPE450", here "IPE360".
//
//   LineInWords(explained).text(6)
//
//   Line 6, level 0, footer: "Total", Weight "514"
//   Counts row 1 (2A3), row 2 (2A4) and row 3 (2A5).
//   Weight, %Weight added up: 250 + 250 + 14 = 514 kg
//
// Lines are counted from 1, as LineNeighbours counts them.
#pragma once

#include "CellsInWords.h"
#include "ExplainedReport.h"
#include "LineNeighbours.h"
#include "LinesApart.h"
#include "RowNames.h"
#include "TemplateLevels.h"

#include <string>

namespace mekbom
{
class LineInWords
{
public:
    // Nothing of `report` is copied; it must outlive this object.
    explicit LineInWords(const ExplainedReport& report);

    // In UTF-8, each line with its end. Throws a Fault of status kWrongUsage, which says how many lines there are, for
    // a number that is none of theirs.
    std::string text(int number) const;

    // All lines with their numbers, each as text() begins with it.
    std::string overview() const;

private:
    std::string heading(int number, const ReportLine& line) const;
    std::string contentOf(const ReportLine& line) const;
    std::string rowsOf(const ReportLine& line) const;
    std::string rowsOfDetails(const RowList& rows) const;
    std::string neighbour(const ReportLine& line, const ReportLine* pOther, const std::string& name) const;
    bool isDetails(const ReportLine& line) const;

    const ExplainedReport& m_report;
    TemplateLevels m_levels;
    RowNames m_rowNames;
    CellsInWords m_cells;
};
}
