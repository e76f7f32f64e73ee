#include "TableWriter.h"

#include "CellText.h"
#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const int kNumBlanksBetween = 2;
const std::size_t kBlockSize = 1 << 16;

int lengthOf(const TableCell& cell)
{
    return static_cast<int>(cell.text.length);
}

bool isUnsharedFooter(const TablePlace& place)
{
    return place.hasFooter && !place.hasHeader;
}
}

TableWriter::TableWriter(const std::string& title, const TableLayout& layout, const SectionTexts& texts)
    : m_title(title), m_layout(layout), m_texts(texts), m_wrapped(layout.columns().size())
{
}

void TableWriter::write(TextSink& sink)
{
    measure();
    writeHeading();
    TableLines lines(m_layout, m_texts);
    TableLine line;
    for (TablePlace previous; lines.next(line); previous = line.place)
    {
        writeSeparation(line.place, previous);
        writeLooseLabel(line.place);
        writeCells(line.cells);
        passOn(sink, kBlockSize);
    }
    passOn(sink, 0);
    sink.finish();
}

// Column widths: those of the template, and as wide as the widest text where it leaves them open.
void TableWriter::measure()
{
    for (const TableColumn& column : m_layout.columns())
        m_widths.push_back(std::max(column.fixedWidth, 1));
    measureCells(heading());
    if (!measureSections())
        measureLines();
    for (const int width : m_widths)
        m_lineWidth += static_cast<std::size_t>(width + kNumBlanksBetween);
}

// By what was noted when the texts were taken, which spares a look at every line. False where one is needed.
bool TableWriter::measureSections()
{
    for (std::size_t i = 0; i < m_layout.levels().size(); ++i)
    {
        const TableLevel& level = m_layout.levels()[i];
        if (!measureSection(level.header, { static_cast<int>(i), false }) ||
            !measureSection(level.footer, { static_cast<int>(i), true }))
            return false;
    }
    return true;
}

bool TableWriter::measureSection(const TableSection& section, SectionPlace place)
{
    if (!m_texts.hasLineOf(place))
        return true;
    for (std::size_t i = 0; i < section.columns.size(); ++i)
    {
        const auto column = static_cast<std::size_t>(section.columns[i]);
        const TextExtent extent = m_texts.extentOf(place, i);
        const TableCell longest = { { nullptr, extent.longest, extent.areAllPlain }, false };
        if (!isPlain(longest, column))
            return false;
        m_widths[column] = std::max(m_widths[column], lengthOf(longest));
    }
    if (section.labelColumn >= 0 && !section.label.empty())
        measureCell(TableCell::ofLabel(section.label), static_cast<std::size_t>(section.labelColumn));
    return true;
}

void TableWriter::measureLines()
{
    TableLines lines(m_layout, m_texts);
    for (TableLine line; lines.next(line);)
        measureCells(line.cells);
}

void TableWriter::measureCells(const std::vector<TableCell>& cells)
{
    for (std::size_t i = 0; i < cells.size(); ++i)
        measureCell(cells[i], i);
}

void TableWriter::measureCell(const TableCell& cell, std::size_t column)
{
    m_widths[column] =
        std::max(m_widths[column], isPlain(cell, column) ? lengthOf(cell) : wrappedWidthOf(cell, column));
}

int TableWriter::wrappedWidthOf(const TableCell& cell, std::size_t column) const
{
    int width = 0;
    for (const std::string& line : CellText::wrap(cell.text.view(), wrapWidthOf(cell, column)))
        width = std::max(width, Utf8::displayWidth(line));
    return width;
}

// 0 where the text may be as wide as it is.
int TableWriter::wrapWidthOf(const TableCell& cell, std::size_t column) const
{
    const bool isNumber = m_layout.columns()[column].isNumeric && !cell.isLabel;
    return isNumber ? 0 : m_layout.columns()[column].fixedWidth;
}

// Whether the cell can be written as it is, in one line.
bool TableWriter::isPlain(const TableCell& cell, std::size_t column) const
{
    const int limit = wrapWidthOf(cell, column);
    return cell.text.isPlain && (limit == 0 || lengthOf(cell) <= limit);
}

std::vector<TableCell> TableWriter::heading() const
{
    std::vector<TableCell> cells;
    for (const TableColumn& column : m_layout.columns())
        cells.push_back(TableCell::ofLabel(column.label));
    return cells;
}

void TableWriter::writeHeading()
{
    if (!m_title.empty())
        for (const std::string& line : CellText::wrap(m_title + "\n", 0))
            m_text += line + "\n";
    if (m_widths.empty())
        return;
    writeCells(heading());
    writeRule();
}

void TableWriter::writeRule()
{
    for (std::size_t i = 0; i < m_widths.size(); ++i)
        m_text +=
            std::string(i == 0 ? 0 : kNumBlanksBetween, ' ') + std::string(static_cast<std::size_t>(m_widths[i]), '-');
    m_text += '\n';
}

// What comes between two lines. The first line has the rule of the heading before it.
void TableWriter::writeSeparation(const TablePlace& place, const TablePlace& previous)
{
    const bool isFirst = !previous.hasHeader && !previous.hasFooter;
    if (isFirst)
        return;
    if (isUnsharedFooter(place) && place.level == 0)
        writeRule();
    else if (place.hasHeader && (previous.level > place.level || isUnsharedFooter(previous)))
        m_text += '\n';
}

// A label that no column of its line has room for.
void TableWriter::writeLooseLabel(const TablePlace& place)
{
    const TableLevel& level = m_layout.levels()[static_cast<std::size_t>(place.level)];
    const TableSection& section = place.hasHeader ? level.header : level.footer;
    if (!section.label.empty() && section.labelColumn < 0)
        m_text += CellText::wrap(section.label, 0).front() + "\n";
}

void TableWriter::writeCells(const std::vector<TableCell>& cells)
{
    bool areAllPlain = true;
    for (std::size_t i = 0; i < cells.size() && areAllPlain; ++i)
        areAllPlain = isPlain(cells[i], i);
    if (areAllPlain)
        writePlainLine(cells);
    else
        writeWrappedLines(cells);
}

// Each text straight into its place among blanks, which are then cut off after the last one.
void TableWriter::writePlainLine(const std::vector<TableCell>& cells)
{
    const std::size_t begin = m_text.size();
    m_text.append(m_lineWidth, ' ');
    char* pPlace = &m_text[begin];
    const char* pEnd = pPlace;
    for (std::size_t i = 0; i < cells.size(); ++i)
    {
        const SectionText& text = cells[i].text;
        const int numBlanksBefore = m_layout.columns()[i].isAlignedRight ? m_widths[i] - lengthOf(cells[i]) : 0;
        if (text.length > 0)
            pEnd = std::copy_n(text.pBytes, text.length, pPlace + numBlanksBefore);
        pPlace += m_widths[i] + kNumBlanksBetween;
    }
    m_text.resize(static_cast<std::size_t>(pEnd - m_text.data()));
    m_text += '\n';
}

void TableWriter::writeWrappedLines(const std::vector<TableCell>& cells)
{
    std::size_t numLines = 1;
    for (std::size_t i = 0; i < cells.size(); ++i)
    {
        m_wrapped[i] = CellText::wrap(cells[i].text.view(), wrapWidthOf(cells[i], i));
        numLines = std::max(numLines, m_wrapped[i].size());
    }
    for (std::size_t index = 0; index < numLines; ++index)
        writeWrappedLine(index);
}

void TableWriter::writeWrappedLine(std::size_t index)
{
    for (std::size_t i = 0; i < m_wrapped.size(); ++i)
    {
        writeText(i, index < m_wrapped[i].size() ? m_wrapped[i][index] : std::string());
        m_numBlanks += kNumBlanksBetween;
    }
    endLine();
}

void TableWriter::writeText(std::size_t column, const std::string& text)
{
    const int width = Utf8::displayWidth(text);
    pad(column, width, true);
    if (!text.empty())
    {
        m_text.append(static_cast<std::size_t>(m_numBlanks), ' ').append(text);
        m_numBlanks = 0;
    }
    pad(column, width, false);
}

// Counts the blanks that align a text of that width: before it or after it.
void TableWriter::pad(std::size_t column, int width, bool isBefore)
{
    if (m_layout.columns()[column].isAlignedRight == isBefore)
        m_numBlanks += std::max(m_widths[column] - width, 0);
}

// Blanks that no text follows are never written.
void TableWriter::endLine()
{
    m_numBlanks = 0;
    m_text += '\n';
}

void TableWriter::passOn(TextSink& sink, std::size_t least)
{
    if (m_text.size() < least)
        return;
    sink.write(m_text);
    m_text.clear();
}
}
