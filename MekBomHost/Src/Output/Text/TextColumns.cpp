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
        : m_report(report), m_tableText(choices), m_wholeWidths(report.columns().size())
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
    void makeRoom(std::size_t index, int whole, std::uint32_t decimals);
    int textWidth(std::size_t index) const;
    bool isAligned(std::size_t index) const;
    int totalWidth() const;
    void findLeastWidths();
    [[noreturn]] static void failToFit(int width, int least);

    const EvaluatedReport& m_report;
    TableText m_tableText;
    std::vector<TextColumn> m_columns;
    std::vector<int> m_wholeWidths; // by column: of its widest text up to the decimal point, without heading and labels
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
    column.width = std::max({ column.labelLimit, 1, widthOf(m_tableText.wrapped(column.heading, column.labelLimit)) });
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
        column.width = std::max(column.width, widthOf(m_tableText.wrapped(section.label, column.labelLimit)));
    }
}

void ColumnWidths::makeRoomForText(std::size_t index, const ShownText& text)
{
    TextColumn& column = m_columns[index];
    const int asIs = m_tableText.widthAsIs(text, column.textLimit);
    const int width = asIs != TableText::kNotAsIs ? asIs : widthOf(m_tableText.fitted(text.view(), column.textLimit));
    const std::uint32_t decimals = isAligned(index) ? DecimalPlaces::lengthIn(text.view()) : 0;
    makeRoom(index, width - static_cast<int>(decimals), decimals);
}

// The part of a number up to its point may be the longest of one text, and its decimals those of another.
void ColumnWidths::makeRoom(std::size_t index, int whole, std::uint32_t decimals)
{
    TextColumn& column = m_columns[index];
    column.decimals = std::max(column.decimals, decimals);
    m_wholeWidths[index] = std::max(m_wholeWidths[index], whole);
    column.width = std::max(column.width, textWidth(index));
}

int ColumnWidths::textWidth(std::size_t index) const
{
    return m_wholeWidths[index] + static_cast<int>(m_columns[index].decimals);
}

// Where each number has a unit behind it, the ends of the units stand below each other.
bool ColumnWidths::isAligned(std::size_t index) const
{
    const ReportColumn& column = m_report.columns()[index];
    return column.isNumeric && column.isAlignedRight && !column.hasMixedUnits;
}

// Makes room by what is known of all texts together; false where each one has to be looked at.
bool ColumnWidths::makeRoomForLongest(std::size_t index, TextExtent extent)
{
    const ShownText longest = { nullptr, extent.longest, true };
    if (!extent.areAllPlain || m_tableText.widthAsIs(longest, m_columns[index].textLimit) == TableText::kNotAsIs)
        return false;
    if (isAligned(index))
        makeRoom(index, static_cast<int>(extent.longestWhole), extent.longestDecimals);
    else
        makeRoom(index, static_cast<int>(extent.longest), 0);
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
        const int texts = hasNumbers ? textWidth(i) : std::min(textWidth(i), kLeastForTexts);
        const int heading = wordWidthOf(m_tableText.wrapped(column.heading, 0).front());
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
