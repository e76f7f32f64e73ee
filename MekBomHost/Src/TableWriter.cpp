#include "TableWriter.h"

#include "CellText.h"
#include "Utf8.h"

#include "VorBomDataTuple.h"

#include <algorithm>
#include <cstdint>

namespace mekbom
{
namespace
{
const int kNumBlanksBetween = 2;
const std::size_t kBlockSize = 1 << 16;

// Texts as almost all are: each character one column wide, and none that needs care. A character below ' ' or above '~'
// sets the highest bit of one of the differences; looking at all of them once is cheaper than at each.
bool isPlainAscii(const VorString& text)
{
    const wchar_t* const pText = text.getStringW();
    std::uint32_t differences = 0;
    for (int i = 0; i < text.length(); ++i)
    {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): a wchar_t is no char
        const auto character = static_cast<std::uint32_t>(pText[i]);
        differences |= (character - U' ') | (U'~' - character);
    }
    return differences >> 31 == 0;
}

// An evaluated section shows texts alone; whatever has no value shows nothing.
const VorString* textOfValue(const VorBomDataValue& value)
{
    return value.type() == VorBomDataValue::kStringData ? static_cast<const VorString*>(value.data()) : nullptr;
}

// Plain text as bytes to `pBytes`; returns their end.
char* narrow(const VorString& text, char* pBytes)
{
    const wchar_t* const pText = text.getStringW();
    for (int i = 0; i < text.length(); ++i)
        pBytes[i] = static_cast<char>(pText[i]);
    return pBytes + text.length();
}

bool isUnsharedFooter(const TableLine& line)
{
    return line.pHeader == nullptr && line.pFooter != nullptr;
}
}

TableWriter::TableWriter(const std::string& title, const TableLayout& layout, const VorBomItemBase& result)
    : m_title(title),
      m_layout(layout),
      m_result(result),
      m_isPlainThroughout(layout.columns().size(), 1),
      m_cells(layout.columns().size()),
      m_wrapped(layout.columns().size())
{
}

void TableWriter::write(TextSink& sink)
{
    measure();
    writeHeading();
    TableLines lines(m_layout, m_result);
    TableLine previous;
    for (TableLine line; lines.next(line); previous = line)
    {
        writeSeparation(line, previous);
        writeLooseLabel(line);
        fillWith(line);
        writeCells();
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
    for (std::size_t i = 0; i < m_cells.size(); ++i)
        m_cells[i] = { nullptr, &m_layout.columns()[i].label };
    measureCells();
    TableLines lines(m_layout, m_result);
    for (TableLine line; lines.next(line);)
    {
        fillWith(line);
        measureCells();
    }
    for (const int width : m_widths)
        m_lineWidth += static_cast<std::size_t>(width + kNumBlanksBetween);
}

void TableWriter::measureCells()
{
    for (std::size_t i = 0; i < m_cells.size(); ++i)
        measureCell(i);
}

void TableWriter::measureCell(std::size_t column)
{
    const bool isAsLongAsWide = isPlain(column);
    m_widths[column] = std::max(m_widths[column], isAsLongAsWide ? lengthOf(column) : wrappedWidthOf(column));
    if (!isAsLongAsWide && m_cells[column].pText != nullptr)
        m_isPlainThroughout[column] = 0;
}

int TableWriter::wrappedWidthOf(std::size_t column) const
{
    int width = 0;
    for (const std::string& line : CellText::wrap(textOf(column), wrapWidthOf(column)))
        width = std::max(width, Utf8::displayWidth(line));
    return width;
}

// 0 where the text may be as wide as it is.
int TableWriter::wrapWidthOf(std::size_t column) const
{
    const bool isNumber = m_layout.columns()[column].isNumeric && m_cells[column].pText != nullptr;
    return isNumber ? 0 : m_layout.columns()[column].fixedWidth;
}

// Whether the cell can be written as it is, in one line.
bool TableWriter::isPlain(std::size_t column) const
{
    const VorString* const pText = m_cells[column].pText;
    if (pText == nullptr)
        return m_cells[column].pLabel == nullptr;
    const int limit = wrapWidthOf(column);
    return (limit == 0 || pText->length() <= limit) && isPlainAscii(*pText);
}

// The same without a look at the text, once all have been measured.
bool TableWriter::isKnownAsPlain(std::size_t column) const
{
    return m_cells[column].pText != nullptr ? m_isPlainThroughout[column] != 0 : m_cells[column].pLabel == nullptr;
}

// Of a plain cell.
int TableWriter::lengthOf(std::size_t column) const
{
    return m_cells[column].pText == nullptr ? 0 : m_cells[column].pText->length();
}

std::string TableWriter::textOf(std::size_t column) const
{
    const Cell& cell = m_cells[column];
    if (cell.pText != nullptr)
        return Utf8::toBytes(*cell.pText);
    return cell.pLabel != nullptr ? *cell.pLabel : std::string();
}

void TableWriter::fillWith(const TableLine& line)
{
    std::fill(m_cells.begin(), m_cells.end(), Cell());
    const TableLevel& level = m_layout.levels()[static_cast<std::size_t>(line.level)];
    if (line.pHeader != nullptr)
        fillFrom(level.header, line.pHeader);
    if (line.pFooter != nullptr)
        fillFrom(level.footer, line.pFooter);
}

void TableWriter::fillFrom(const TableSection& section, const VorBomTemplateItem* pItem)
{
    for (std::size_t i = 0; i < section.columnOfTuple.size(); ++i)
        if (section.columnOfTuple[i] >= 0)
            m_cells[static_cast<std::size_t>(section.columnOfTuple[i])].pText =
                textOfValue(pItem->getData()[static_cast<int>(i)].value());
    if (section.labelColumn >= 0 && !section.label.empty())
        m_cells[static_cast<std::size_t>(section.labelColumn)].pLabel = &section.label;
}

void TableWriter::writeHeading()
{
    if (!m_title.empty())
        for (const std::string& line : CellText::wrap(m_title + "\n", 0))
            m_text += line + "\n";
    if (m_cells.empty())
        return;
    for (std::size_t i = 0; i < m_cells.size(); ++i)
        m_cells[i] = { nullptr, &m_layout.columns()[i].label };
    writeCells();
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
void TableWriter::writeSeparation(const TableLine& line, const TableLine& previous)
{
    const bool isFirst = previous.pHeader == nullptr && previous.pFooter == nullptr;
    if (isFirst)
        return;
    if (isUnsharedFooter(line) && line.level == 0)
        writeRule();
    else if (line.pHeader != nullptr && (previous.level > line.level || isUnsharedFooter(previous)))
        m_text += '\n';
}

// A label that no column of its line has room for.
void TableWriter::writeLooseLabel(const TableLine& line)
{
    const TableLevel& level = m_layout.levels()[static_cast<std::size_t>(line.level)];
    const TableSection& section = line.pHeader != nullptr ? level.header : level.footer;
    if (!section.label.empty() && section.labelColumn < 0)
        m_text += CellText::wrap(section.label, 0).front() + "\n";
}

void TableWriter::writeCells()
{
    bool areAllPlain = true;
    for (std::size_t i = 0; i < m_cells.size() && areAllPlain; ++i)
        areAllPlain = isKnownAsPlain(i);
    if (areAllPlain)
        writePlainLine();
    else
        writeWrappedLines();
}

// Each text straight into its place among blanks, which are then cut off after the last one.
void TableWriter::writePlainLine()
{
    const std::size_t begin = m_text.size();
    m_text.append(m_lineWidth, ' ');
    char* pPlace = &m_text[begin];
    const char* pEnd = pPlace;
    for (std::size_t i = 0; i < m_cells.size(); ++i)
    {
        const int length = lengthOf(i);
        if (length > 0)
            pEnd =
                narrow(*m_cells[i].pText, pPlace + (m_layout.columns()[i].isAlignedRight ? m_widths[i] - length : 0));
        pPlace += m_widths[i] + kNumBlanksBetween;
    }
    m_text.resize(static_cast<std::size_t>(pEnd - m_text.data()));
    m_text += '\n';
}

void TableWriter::writeWrappedLines()
{
    std::size_t numLines = 1;
    for (std::size_t i = 0; i < m_cells.size(); ++i)
    {
        m_wrapped[i] = CellText::wrap(textOf(i), wrapWidthOf(i));
        numLines = std::max(numLines, m_wrapped[i].size());
    }
    for (std::size_t index = 0; index < numLines; ++index)
        writeWrappedLine(index);
}

void TableWriter::writeWrappedLine(std::size_t index)
{
    for (std::size_t i = 0; i < m_cells.size(); ++i)
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
