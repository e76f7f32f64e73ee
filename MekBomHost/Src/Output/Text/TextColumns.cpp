// Where the packed texts of a column say that all of them are printable ASCII and none is longer than its limit, its
// width is known from the longest of them, without a look at each:
//
//   %Name      "HEA200", "L50"        longest 6, all plain             ->   6
//   %Material  "S235", "Träger S3"    not all plain                    ->   all lines are read: 9
//
// That spares most reports a reading of all lines, which is a twelfth of all the instructions of a report of 100,000.
#include "TextColumns.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "Utf8.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace mekbom::TextColumns
{
namespace
{
const int kLeastForTexts = 8; // arbitrary: narrower ones break most words

// Half a unit would be another unit: the column has room for it, as it has for its numbers.
int limitOf(const ReportColumn& column)
{
    const int unitWidth = column.unitSymbol.empty() ? 0 : Utf8::displayWidth("[" + column.unitSymbol + "]");
    return column.width == 0 ? 0 : std::max(column.width, unitWidth);
}

// The widest of the lines.
int widthOf(const std::vector<std::string>& lines)
{
    int width = 0;
    for (const std::string& line : lines)
        width = std::max(width, Utf8::displayWidth(line));
    return width;
}

// The width of the longest word.
int wordWidthOf(std::string_view text)
{
    int width = 0;
    while (!text.empty())
    {
        const std::string_view word = text.substr(0, text.find(' '));
        width = std::max(width, Utf8::displayWidth(word));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
    }
    return width;
}

// The columns of one table while their widths are found.
class ColumnWidths
{
public:
    ColumnWidths(const EvaluatedReport& report, const OutputChoices& choices)
        : m_report(report), m_cellText(choices), m_textWidths(report.columns().size())
    {
        for (const ReportColumn& column : report.columns())
            m_columns.push_back(describe(column));
    }

    void makeRoomForLabels();
    void makeRoomForTexts();
    void fitInto(int width);
    std::vector<TextColumn> take() { return std::move(m_columns); }

private:
    TextColumn describe(const ReportColumn& described) const;
    void makeRoomForText(std::size_t index, const ShownText& text);
    bool makeRoomForLongest(std::size_t index, TextExtent extent);
    int totalWidth() const;
    void findLeastWidths();
    [[noreturn]] static void failToFit(int width, int least);

    const EvaluatedReport& m_report;
    CellText m_cellText;
    std::vector<TextColumn> m_columns;
    std::vector<int> m_textWidths; // by column: of its widest text, without heading and labels
};

// The column as wide as its heading needs. A template's width limits the heading and labels in every column, other
// texts only where these are not numbers.
TextColumn ColumnWidths::describe(const ReportColumn& described) const
{
    TextColumn column;
    column.heading = described.heading();
    column.isAlignedRight = described.isAlignedRight;
    column.labelLimit = limitOf(described);
    column.textLimit = described.isNumeric ? 0 : column.labelLimit;
    column.width = std::max({ column.labelLimit, 1, widthOf(m_cellText.wrapped(column.heading, column.labelLimit)) });
    return column;
}

void ColumnWidths::makeRoomForLabels()
{
    for (const SectionPlace place : m_report.placesWithLines())
    {
        const SectionLayout& section = m_report.layout().section(place);
        if (section.label.empty() || section.labelColumn < 0)
            continue;
        TextColumn& column = m_columns[static_cast<std::size_t>(section.labelColumn)];
        column.width = std::max(column.width, widthOf(m_cellText.wrapped(section.label, column.labelLimit)));
    }
}

void ColumnWidths::makeRoomForText(std::size_t index, const ShownText& text)
{
    TextColumn& column = m_columns[index];
    const int width = column.takesAsIs(text) ? static_cast<int>(text.length)
                                             : widthOf(m_cellText.fitted(text.view(), column.textLimit));
    m_textWidths[index] = std::max(m_textWidths[index], width);
    column.width = std::max(column.width, width);
}

// Makes room by what is known of all texts together; false where each one has to be looked at.
bool ColumnWidths::makeRoomForLongest(std::size_t index, TextExtent extent)
{
    const ShownText longest = { nullptr, extent.longest, extent.areAllPlain };
    if (!m_columns[index].takesAsIs(longest))
        return false;
    makeRoomForText(index, longest);
    return true;
}

// However many columns have to be measured, the lines are read once.
void ColumnWidths::makeRoomForTexts()
{
    const std::vector<TextExtent> extents = m_report.textExtents();
    std::vector<std::size_t> toMeasure;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (!makeRoomForLongest(i, extents[i]))
            toMeasure.push_back(i);
    if (toMeasure.empty())
        return;
    ReportLines lines = m_report.lines();
    ReportLine line;
    while (lines.next(line))
        for (const std::size_t index : toMeasure)
            makeRoomForText(index, line.texts[index]);
}

// Takes from the widest column until the table fits. Only numbers go on in one line whatever the width.
void ColumnWidths::fitInto(int width)
{
    findLeastWidths();
    while (totalWidth() > width)
    {
        TextColumn* pWidest = nullptr;
        for (TextColumn& column : m_columns)
            if (column.width > column.least && (pWidest == nullptr || column.width > pWidest->width))
                pWidest = &column;
        if (pWidest == nullptr)
            failToFit(width, totalWidth());
        --pWidest->width;
        pWidest->labelLimit = pWidest->width;
    }
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (!m_report.columns()[i].hasNumbers && m_columns[i].labelLimit == m_columns[i].width)
            m_columns[i].textLimit = m_columns[i].width;
}

// What a template has made as narrow as it is stays so.
void ColumnWidths::findLeastWidths()
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        TextColumn& column = m_columns[i];
        const bool hasNumbers = m_report.columns()[i].hasNumbers;
        const int texts = hasNumbers ? m_textWidths[i] : std::min(m_textWidths[i], kLeastForTexts);
        const int heading = wordWidthOf(m_cellText.wrapped(column.heading, 0).front());
        column.least = std::min(column.width, std::max(texts, heading));
    }
}

// Blanks stand between columns and not behind the last one.
int ColumnWidths::totalWidth() const
{
    int width = -kNumBlanksBetween;
    for (const TextColumn& column : m_columns)
        width += column.width + kNumBlanksBetween;
    return width;
}

void ColumnWidths::failToFit(int width, int least)
{
    Finding finding = Finding::of(FindingCodes::kWidthTooSmall, std::to_string(width),
                                  std::to_string(least) + " or more, which numbers and the words of headings need");
    finding.source = "--width";
    throw Fault(kWrongUsage, finding);
}
}

std::vector<TextColumn> of(const EvaluatedReport& report, const OutputChoices& choices)
{
    ColumnWidths widths(report, choices);
    widths.makeRoomForLabels();
    widths.makeRoomForTexts();
    if (choices.width > 0)
        widths.fitInto(choices.width);
    return widths.take();
}
}
