// What a page has to know of all lines of a list before it writes the first one.
//
//   const ListSurvey survey(report);
//   survey.numLines()             ->  3, of this list: HEA200 and two lengths, IPE360 and one
//   survey.column(1).decimals     ->  2, of the numbers 478.25 and 12 in it
//   survey.numFooters(1)          ->  2, the totals of the two profiles
//
// A value, but for the lines of pages: the report must outlive them.
#pragma once

#include "EvaluatedReport.h"

#include <cstddef>
#include <vector>

namespace mekbom
{
struct SurveyedColumn
{
    std::size_t width = 0;          // of its widest text, in columns of a terminal
    int decimals = 0;               // the most that a decimal number in it has
    bool areAllNumbersPlain = true; // as ShownNumber::isPlain has it
};

// Whether the cell held a number, whatever its text.
bool isNumber(const VorBomTypedValue& value);

class ListSurvey
{
public:
    // Reads all lines once. `report` has values.
    explicit ListSurvey(const EvaluatedReport& report);

    const SurveyedColumn& column(std::size_t index) const { return m_columns[index]; }

    // All lines, those that open and close groups too.
    std::size_t numLines() const { return m_numLines; }

    // Lines that close a group of that level, with those that open it as well.
    std::size_t numFooters(int level) const { return m_levels[static_cast<std::size_t>(level)].numFooters; }

    // Whether the line stands on every page and in no other place: the template calls it one of a page, and the whole
    // list has one such line.
    bool isOnEveryPage(const LinePlace& place) const;

    // These lines, in their order.
    const std::vector<ReportLine>& pageLines() const { return m_pageLines; }

private:
    struct Level
    {
        std::size_t numHeaders = 0;
        std::size_t numFooters = 0;
        bool isHeaderOfPage = false;
        bool isFooterOfPage = false;
    };

    void take(const ReportLine& line);
    static void take(SurveyedColumn& column, const ShownText& text, const VorBomTypedValue& value);

    std::vector<SurveyedColumn> m_columns;
    std::vector<Level> m_levels;
    std::vector<ReportLine> m_pageLines;
    std::size_t m_numLines = 0;
};
}
