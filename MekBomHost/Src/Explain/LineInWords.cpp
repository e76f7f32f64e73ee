// A line is told from the outside in: where it stands and what it shows, which rows made it, where its numbers come
// from, and why it is a line of its own. Which rows are told depends on what stands on the line:
//
//   details              "Made by row 1. Merged into it, and in no total: row 3."
//   header               "Opened by row 1."          the group's other rows are those of the lines below it
//   footer               "Counts row 1 and row 2."   without the row that was merged
//   header and footer    both, for a group that is printed without its lines
#include "LineInWords.h"

#include "Fault.h"
#include "Finding.h"
#include "FindingCodes.h"
#include "InQuotes.h"

namespace mekbom
{
namespace
{
[[noreturn]] void refuse(int number, int numLines)
{
    Finding finding = Finding::of(FindingCodes::kNoSuchLine, std::to_string(number),
                                  numLines == 0 ? "another template: the list has no lines"
                                                : "a line of the list, from 1 to " + std::to_string(numLines));
    finding.source = "--line";
    throw Fault(kWrongUsage, finding);
}

const char* sectionOf(const LinePlace& place, bool isDetails)
{
    if (place.hasHeader && place.hasFooter)
        return isDetails ? "details and footer" : "header and footer";
    if (place.hasFooter)
        return "footer";
    return isDetails ? "details" : "header";
}
}

LineInWords::LineInWords(const ExplainedReport& report)
    : m_report(report), m_levels(*report.reportTemplate.pTemplate), m_rowNames(report.rowNumbers), m_cells(report)
{
}

std::string LineInWords::text(int number) const
{
    const LineNeighbours found(m_report.evaluated, number);
    if (found.line() == nullptr)
        refuse(number, found.numLines());
    const ReportLine& line = *found.line();
    std::string text = heading(number, line) + rowsOf(line) + m_cells.ofHeader(line) + m_cells.ofFooter(line);
    if (isDetails(line))
        text += neighbour(line, found.before(), "before it, line " + std::to_string(number - 1)) +
                neighbour(line, found.after(), "after it, line " + std::to_string(number + 1));
    return text;
}

std::string LineInWords::overview() const
{
    std::string text;
    int number = 0;
    ReportLines lines = m_report.evaluated.lines();
    for (ReportLine line; lines.next(line);)
        text += heading(++number, line);
    return text;
}

std::string LineInWords::heading(int number, const ReportLine& line) const
{
    return "Line " + std::to_string(number) + ", level " + std::to_string(line.place.level) + ", " +
           sectionOf(line.place, isDetails(line)) + ": " + contentOf(line) + "\n";
}

// Cells without a text are passed over: a footer would name every column otherwise.
std::string LineInWords::contentOf(const ReportLine& line) const
{
    std::string text = line.label.empty() ? std::string() : inQuotes(line.label);
    for (std::size_t i = 0; i < line.texts.size(); ++i)
        if (line.texts[i].length > 0)
            text += (text.empty() ? "" : ", ") + m_report.evaluated.columns()[i].heading() + " " +
                    inQuotes(line.texts[i].view());
    return text;
}

std::string LineInWords::rowsOf(const ReportLine& line) const
{
    std::string text;
    if (isDetails(line))
        text += rowsOfDetails(line.headerRows);
    else if (line.place.hasHeader)
        text += "Opened by " + m_rowNames.name(**line.headerRows.begin()) + ".\n";
    if (line.place.hasFooter)
        text += "Counts " + (line.footerRows.size() == 0 ? "no row" : m_rowNames.names(line.footerRows)) + ".\n";
    return text;
}

// The first row made the line, and the others read as it does. What became of them depends on the template: "count" has
// added them to the line, and the engine's own way has left them out of all totals.
std::string LineInWords::rowsOfDetails(const RowList& rows) const
{
    const RowList others{ rows.begin() + 1, rows.end() };
    std::string text = "Made by " + m_rowNames.name(**rows.begin()) + ".\n";
    if (others.size() > 0)
        text += (m_report.reportTemplate.equalLines == kCountEqualLines ? "Counted into it: "
                                                                        : "Merged into it, and in no total: ") +
                m_rowNames.names(others) + ".\n";
    return text;
}

// Only details have something that keeps them apart; the line next to one may be a header, a footer, or missing.
std::string LineInWords::neighbour(const ReportLine& line, const ReportLine* pOther, const std::string& name) const
{
    if (pOther == nullptr || !isDetails(*pOther))
        return std::string();
    return "The line " + name + ", " + LinesApart(m_report).text(line, *pOther) + ".\n";
}

bool LineInWords::isDetails(const ReportLine& line) const
{
    return line.place.hasHeader && m_levels.isDeepest(line.place.level);
}
}
