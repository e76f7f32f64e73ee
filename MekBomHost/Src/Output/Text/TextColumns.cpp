// Where the packed texts of a column say that all of them are printable ASCII and none is longer than its limit, its
// width is known from the longest of them, without a look at each:
//
//   %Name      "HEA200", "L50"        longest 6, all plain             ->   6
//   %Material  "S235", "Träger S3"    not all plain                    ->   all lines are read: 9
//
// That spares most reports a reading of all lines, which is a twelfth of all the instructions of a report of 100,000.
#include "TextColumns.h"

#include "Utf8.h"
#include "WordWrap.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace mekbom::TextColumns
{
namespace
{
// Half a unit would be another unit: the column has room for it, as it has for its numbers.
int limitOf(const ReportColumn& column)
{
    const int unitWidth = column.unitSymbol.empty() ? 0 : Utf8::displayWidth("[" + column.unitSymbol + "]");
    return column.width == 0 ? 0 : std::max(column.width, unitWidth);
}

void makeRoom(TextColumn& column, std::string_view text, int limit)
{
    for (const std::string& line : WordWrap::wrap(text, limit))
        column.width = std::max(column.width, Utf8::displayWidth(line));
}

void makeRoomForText(TextColumn& column, const ShownText& text)
{
    if (column.takesAsIs(text))
        column.width = std::max(column.width, static_cast<int>(text.length));
    else
        makeRoom(column, text.view(), column.textLimit);
}

// The column as wide as its heading needs. A template's width limits the heading and labels in every column, other
// texts only where these are not numbers.
TextColumn describe(const ReportColumn& described)
{
    TextColumn column;
    column.heading = described.heading();
    column.isAlignedRight = described.isAlignedRight;
    column.labelLimit = limitOf(described);
    column.textLimit = described.isNumeric ? 0 : column.labelLimit;
    column.width = std::max(column.labelLimit, 1);
    makeRoom(column, column.heading, column.labelLimit);
    return column;
}

void makeRoomForLabels(const EvaluatedReport& report, std::vector<TextColumn>& columns)
{
    for (const SectionPlace place : report.placesWithLines())
    {
        const SectionLayout& section = report.layout().section(place);
        if (section.label.empty() || section.labelColumn < 0)
            continue;
        TextColumn& column = columns[static_cast<std::size_t>(section.labelColumn)];
        makeRoom(column, section.label, column.labelLimit);
    }
}

// Makes room by what is known of all texts together; false where each one has to be looked at.
bool makeRoomForLongest(TextColumn& column, TextExtent extent)
{
    const ShownText longest = { nullptr, extent.longest, extent.areAllPlain };
    if (!column.takesAsIs(longest))
        return false;
    makeRoomForText(column, longest);
    return true;
}

// However many columns have to be measured, the lines are read once.
void makeRoomForTexts(const EvaluatedReport& report, std::vector<TextColumn>& columns)
{
    const std::vector<TextExtent> extents = report.textExtents();
    std::vector<std::size_t> toMeasure;
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (!makeRoomForLongest(columns[i], extents[i]))
            toMeasure.push_back(i);
    if (toMeasure.empty())
        return;
    ReportLines lines = report.lines();
    ReportLine line;
    while (lines.next(line))
        for (const std::size_t index : toMeasure)
            makeRoomForText(columns[index], line.texts[index]);
}
}

std::vector<TextColumn> of(const EvaluatedReport& report)
{
    std::vector<TextColumn> columns;
    for (const ReportColumn& column : report.columns())
        columns.push_back(describe(column));
    makeRoomForLabels(report, columns);
    makeRoomForTexts(report, columns);
    return columns;
}
}
