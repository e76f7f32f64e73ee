// Bodies are what a printer keeps together and what a browser lays out at once. Of a list of profiles each has one:
//
//   h1  HEA200        a body begins with what opens a group, outer groups with their first inner one
//       2400
//   f1  Total         nothing but what closes outer groups joins it
//   h1  IPE360        the next one begins
//
// In a long list they have at least a hundred rows, since browsers do not like thousands of small ones either.
#include "PageTable.h"

#include "HtmlText.h"
#include "NumberText.h"
#include "ShownNumber.h"
#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
// What a row is to the groups of its list: see PageTable.h.
const char kOpens = 'h';
const char kCloses = 'f';
const char kOpensAndCloses = 's';
const char kIsLine = 0;

const char* const kRowEnd = "</tr>\n"; // a line break within the last cell would be text

const std::size_t kMostOfTextColumn = 40; // characters; longer texts go on below
const std::size_t kMostUpright = 110;     // characters that stand side by side on a sheet of paper
const std::size_t kMostAcross = 165;      // and on one held across

// The column whose cell names the line: that of its label, else the first that shows anything. One past the last where a
// line has no such cell.
std::size_t namingColumn(const ReportLine& line, char kind)
{
    if (line.labelColumn >= 0)
        return static_cast<std::size_t>(line.labelColumn);
    if (kind == kCloses || kind == kIsLine)
        return line.texts.size();
    const auto isShown = [](const ShownText& text) { return text.length > 0; };
    return static_cast<std::size_t>(std::find_if(line.texts.begin(), line.texts.end(), isShown) - line.texts.begin());
}

// Ordinary lines end with the last cell that holds anything, though they have one; others are bands across the list.
std::size_t numCells(const ReportLine& line, char kind)
{
    std::size_t number = line.texts.size();
    while (kind == kIsLine && number > 1 && line.texts[number - 1].length == 0 &&
           static_cast<int>(number) - 1 != line.labelColumn)
        --number;
    return number;
}

// "tr>:nth-child(3)" for the third column.
std::string cellsOf(const char* element, std::size_t column)
{
    return std::string(".list ") + element + ":nth-child(" + std::to_string(column + 1) + ")";
}

std::size_t longestWord(const std::string& heading)
{
    std::size_t longest = 0;
    for (std::size_t begin = 0; begin < heading.size();)
    {
        const std::size_t end = std::min(heading.find(' ', begin), heading.size());
        const int width = Utf8::displayWidth(std::string_view(heading).substr(begin, end - begin));
        longest = std::max(longest, static_cast<std::size_t>(width));
        begin = end + 1;
    }
    return longest;
}
}

PageTable::PageTable(const EvaluatedReport& report, const ListSurvey& survey, std::string& page)
    : m_report(report), m_survey(survey), m_page(page)
{
}

void PageTable::writeHead()
{
    m_page.append("<table class=\"list").append(isLong() ? " long" : "").append(isWide() ? " wide" : "");
    m_page += "\" data-deepest=\"" + std::to_string(m_report.layout().levels().size() - 1) + "\">\n<thead>\n";
    writeHeadings();
    writePageLines(false);
}

void PageTable::writeHeadings()
{
    m_page += "<tr>";
    for (std::size_t i = 0; i < m_report.columns().size(); ++i)
    {
        const ReportColumn& column = m_report.columns()[i];
        m_page += "<th scope=\"col\"";
        m_page += column.isNumeric && m_survey.column(i).areAllNumbersPlain ? " data-numeric>" : ">";
        HtmlText::append(m_page, column.heading());
    }
    m_page += kRowEnd;
}

void PageTable::writePageLines(bool areFooters)
{
    for (const ReportLine& line : m_survey.pageLines())
        if (line.place.hasFooter == areFooters)
            appendRow(m_page, line);
}

void PageTable::write(const ReportLine& line)
{
    if (m_survey.isOnEveryPage(line.place))
        return;
    beginBodyFor(kindOf(line.place));
    appendRow(m_rows, line);
    ++m_numRows;
}

// A reader of one of many sheets is not to take the totals at its foot for those of the sheet.
void PageTable::writeFoot()
{
    endBody();
    const std::string note = "<tr class=\"on-paper\"><td colspan=\"" + std::to_string(m_report.columns().size()) +
                             "\">Of the whole list, not of this page" + kRowEnd;
    const std::size_t before = m_page.size();
    writePageLines(true);
    if (m_page.size() > before)
        m_page.insert(before, "<tfoot>\n").append(note);
    m_page += "</table>\n";
}

void PageTable::beginBodyFor(char kind)
{
    const bool isSeam = (kind == kOpens && m_lastKind != kOpens) || (m_lastKind == kCloses && kind != kCloses);
    const std::size_t least = isLong() ? kLeastRowsOfLongList : 1;
    if (m_numRows >= kMostRows || (isSeam && m_numRows >= least))
        endBody();
    m_lastKind = kind;
}

void PageTable::endBody()
{
    if (m_numRows > 0)
        m_page += (isLong() ? "<tbody style=\"--lines:" + std::to_string(m_numRows) + "\">\n" : "<tbody>\n") + m_rows;
    m_rows.clear();
    m_numRows = 0;
}

char PageTable::kindOf(const LinePlace& place) const
{
    const bool isDeepest = static_cast<std::size_t>(place.level) + 1 == m_report.layout().levels().size();
    if (!place.hasHeader)
        return kCloses;
    if (isDeepest)
        return kIsLine;
    return place.hasFooter ? kOpensAndCloses : kOpens;
}

void PageTable::appendRow(std::string& rows, const ReportLine& line) const
{
    const char kind = kindOf(line.place);
    rows += "<tr";
    if (kind != kIsLine)
        rows.append(" class=\"").append(1, kind).append(std::to_string(line.place.level)).append("\"");
    rows += '>';
    const std::size_t naming = namingColumn(line, kind);
    const std::size_t number = numCells(line, kind);
    for (std::size_t i = 0; i < number; ++i)
    {
        if (i != naming)
            rows += "<td";
        else
            rows += kind == kOpens ? "<th scope=\"rowgroup\"" : "<th scope=\"row\"";
        appendCell(rows, line, i);
    }
    rows += kRowEnd;
}

// What follows the name of its element. A label that no column of its line has room for stands above the first text.
void PageTable::appendCell(std::string& rows, const ReportLine& line, std::size_t column) const
{
    rows.append(numberAttributes(line, column)).append(">");
    if (!line.label.empty() && line.labelColumn < 0 && column == 0)
    {
        rows += "<b>";
        HtmlText::append(rows, line.label);
        rows += "</b>";
    }
    HtmlText::append(rows, line.labelColumn == static_cast<int>(column) ? line.label : line.texts[column].view());
}

// Numbers of a column are sorted by what they show or by their values, never some by the one and some by the other: these
// are in other units. What their texts lack to the point and decimals of the others fills the cell up.
std::string PageTable::numberAttributes(const ReportLine& line, std::size_t column) const
{
    if (!isNumber(line.values[column]))
        return std::string();
    const ReportColumn& shown = m_report.columns()[column];
    const SurveyedColumn& surveyed = m_survey.column(column);
    std::string attributes;
    if (!shown.isNumeric || !surveyed.areAllNumbersPlain)
        attributes = " data-value=\"" + numberText(line.values[column].number) + "\"";
    const std::string fill = ShownNumber::fill(line.texts[column].view(), surveyed.decimals);
    if (shown.isAlignedRight && !fill.empty())
        attributes += " data-fill=\"" + fill + "\"";
    return attributes;
}

// On a phone texts stand left, below headings of their own, and so they do on paper that is too narrow for the list.
std::string PageTable::style() const
{
    std::string aligned;
    std::string named;
    for (std::size_t i = 0; i < m_report.columns().size(); ++i)
    {
        const ReportColumn& column = m_report.columns()[i];
        named += cellsOf("td", i) + "::before{content:" + HtmlText::inStyle(column.heading()) + "}\n";
        if (column.isAlignedRight)
            aligned += cellsOf("tr>", i) + "{text-align:right}\n" + cellsOf("td", i) + "{white-space:nowrap}\n";
    }
    const char* const besideTables = isWide() ? "" : "print,";
    const char* const besideCards = isWide() ? "print," : "";
    return std::string("@media ") + besideTables + "screen and (min-width:40.01rem){\n" + aligned + "}\n@media " +
           besideCards + "screen and (max-width:40rem){\n" + named + "}\n" + widths();
}

// Of a long list the widths of its columns.
std::string PageTable::widths() const
{
    if (!isLong())
        return std::string();
    std::string style = ".long{--columns:";
    for (std::size_t i = 0; i < m_report.columns().size(); ++i)
        style += " calc(" + std::to_string(widthOf(i)) + "ch + 1.7rem)";
    return style + "}\n";
}

bool PageTable::isAcross() const
{
    return width() > kMostUpright;
}

bool PageTable::isWide() const
{
    return width() > kMostAcross;
}

std::size_t PageTable::width() const
{
    const std::size_t between = 2;
    std::size_t width = 0;
    for (std::size_t i = 0; i < m_report.columns().size(); ++i)
        width += widthOf(i) + between;
    return width;
}

// In characters as wide as a digit. Most letters of a text are not, but its capitals are wider.
std::size_t PageTable::widthOf(std::size_t column) const
{
    const std::size_t width = m_survey.column(column).width;
    const std::size_t ofTexts =
        m_report.columns()[column].isNumeric ? width : std::min(width + width / 8, kMostOfTextColumn);
    const std::size_t sign = 2; // that says how the list is sorted
    return std::max(ofTexts, longestWord(m_report.columns()[column].heading()) + sign);
}
}
