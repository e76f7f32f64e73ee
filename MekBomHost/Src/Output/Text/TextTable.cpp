// Nearly all texts fit their columns as they are. A line of such texts is made of blanks as wide as the table, each text
// is copied straight into its place among them, and what follows the last text is cut off:
//
//   widths 6, 8, 5; texts "Tür", "", "2.5", the last aligned right
//     "                         "      each column and the two blanks after it
//     "Tür                       "     4 bytes at 0, and a blank more at the end, as the ü has two bytes for one column
//     "Tür                 2.5   "     nothing at 9, 3 bytes at 19 + (5 - 3)
//     "Tür                 2.5"        then a line feed
//
// Without that way a report of 100,000 lines takes twice the instructions. Any other line has its cells wrapped first.
#include "TextTable.h"

#include "TextDirection.h"
#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const std::size_t kNumBlanksBetween = TextColumns::kNumBlanksBetween;
const std::size_t kBlockSize = 1 << 16; // arbitrary: large against a call of the system

bool isFooterAlone(const LinePlace& place)
{
    return place.hasFooter && !place.hasHeader;
}
}

TextTable::TextTable(const EvaluatedReport& report, const OutputChoices& choices, TextSink& sink)
    : m_report(report),
      m_tableText(choices),
      m_width(choices.width),
      m_sink(sink),
      m_columns(TextColumns::of(report, choices)),
      m_wrapped(m_columns.size())
{
    for (const TextColumn& column : m_columns)
        m_lineWidth += static_cast<std::size_t>(column.width) + kNumBlanksBetween;
}

void TextTable::write()
{
    writeTitle();
    writeHeading();
    ReportLines lines = m_report.lines();
    ReportLine line;
    for (LinePlace previous; lines.next(line); previous = line.place)
    {
        writeSeparation(line.place, previous);
        writeLine(line);
        passOn(kBlockSize);
    }
    writeFoot();
    passOn(0);
    m_sink.finish();
}

// A list that leaves rows out says so where a reader begins.
void TextTable::writeTitle()
{
    std::string head = m_report.title();
    for (const FilteredRows& filtered : m_report.filteredRows())
        head += (head.empty() ? "" : "\n") + ("Rows where " + filtered.condition);
    if (head.empty())
        return;
    writeOutside(head + "\n");
}

// What stands outside the table knows no columns, but the width that all of it has to fit into.
void TextTable::writeOutside(const std::string& text)
{
    for (const std::string& line : m_tableText.wrapped(text, m_width))
        m_text += line + "\n";
}

void TextTable::writeFoot()
{
    const std::vector<std::string> lines = m_report.foot().lines();
    if (!lines.empty())
        m_text += '\n';
    for (const std::string& line : lines)
        writeOutside(line);
}

void TextTable::writeHeading()
{
    if (m_columns.empty())
        return;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        m_wrapped[i] = m_tableText.wrapped(m_columns[i].heading, m_columns[i].labelLimit);
    writeWrapped();
    writeRule();
}

void TextTable::writeRule()
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        m_text.append(i == 0 ? 0 : kNumBlanksBetween, ' ').append(static_cast<std::size_t>(m_columns[i].width), '-');
    m_text += '\n';
}

// What comes between two lines. The first line has the rule of the heading before it.
// A header gets a blank line above it when the line before it is of a deeper level or a footer alone: a group of
// several lines ends there. Groups of one line each follow without.
void TextTable::writeSeparation(const LinePlace& place, const LinePlace& previous)
{
    const bool isFirst = !previous.hasHeader && !previous.hasFooter;
    if (isFirst)
        return;
    if (isFooterAlone(place) && place.level == 0)
        writeRule();
    else if (place.hasHeader && (previous.level > place.level || isFooterAlone(previous)))
        m_text += '\n';
}

// A label that no column of its line has room for stands above it.
void TextTable::writeLine(const ReportLine& line)
{
    if (!line.label.empty() && line.labelColumn < 0)
        writeOutside(std::string(line.label));
    if (line.labelColumn < 0 && writeAsIs(line.texts)) // labels may hold anything, and are few
        return;
    wrap(line);
    writeWrapped();
}

// False, with nothing written, for a line with a text that cannot be written as it is.
bool TextTable::writeAsIs(const std::vector<ShownText>& texts)
{
    const std::size_t begin = m_text.size();
    m_text.append(m_lineWidth, ' ');
    char* pPlace = &m_text[begin];
    const char* pEnd = pPlace; // of the last text
    const TextColumn* pColumn = m_columns.data();
    for (const ShownText& text : texts)
    {
        const TextColumn& column = *pColumn++;
        const int width = m_tableText.widthAsIs(text, column.textLimit);
        if (width == TableText::kNotAsIs)
        {
            m_text.resize(begin);
            return false;
        }
        const auto numFree = static_cast<std::size_t>(column.width - width);
        if (text.length > 0)
        {
            const std::size_t numBefore = column.isAlignedRight ? numFree - column.blanksBehind(text.view()) : 0;
            if (!text.isPlain)
                pPlace = withRoomFor(text.length - static_cast<std::size_t>(width), pPlace);
            pEnd = std::copy_n(text.pBytes, text.length, pPlace + numBefore);
        }
        pPlace += numFree + text.length + kNumBlanksBetween;
    }
    m_text.resize(static_cast<std::size_t>(pEnd - m_text.data()));
    endLine();
    return true;
}

// Adds blanks to the line that is being written, and gives where the place in it then is.
char* TextTable::withRoomFor(std::size_t numBytes, const char* pPlace)
{
    const auto place = static_cast<std::size_t>(pPlace - m_text.data());
    m_text.append(numBytes, ' ');
    return &m_text[place];
}

void TextTable::wrap(const ReportLine& line)
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        m_wrapped[i] = line.labelColumn == static_cast<int>(i)
                           ? m_tableText.wrapped(line.label, m_columns[i].labelLimit)
                           : textLines(m_columns[i], line.texts[i].view());
}

// A number takes the blanks behind it with it, so that it stands at the right end of its column as all lines do.
std::vector<std::string> TextTable::textLines(const TextColumn& column, std::string_view text) const
{
    std::vector<std::string> lines = m_tableText.fitted(text, column.textLimit);
    if (!text.empty())
        lines.back().append(column.blanksBehind(text), ' ');
    return lines;
}

void TextTable::writeWrapped()
{
    std::size_t numLines = 1;
    for (const std::vector<std::string>& cell : m_wrapped)
        numLines = std::max(numLines, cell.size());
    for (std::size_t index = 0; index < numLines; ++index)
        writeWrappedLine(index);
}

// Blanks that no text follows are never written, and those behind a number go.
void TextTable::writeWrappedLine(std::size_t index)
{
    std::size_t numBlanks = 0; // that stand before the next text, if there is one
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        if (index < m_wrapped[i].size() && !m_wrapped[i][index].empty())
            numBlanks = writeText(m_columns[i], m_wrapped[i][index], numBlanks);
        else
            numBlanks += static_cast<std::size_t>(m_columns[i].width);
        numBlanks += kNumBlanksBetween;
    }
    endLine();
}

// A text may have blanks at its end, too.
void TextTable::endLine()
{
    m_text.resize(m_text.find_last_not_of(' ') + 1);
    m_text += '\n';
}

// Gives how many blanks of the column come after the text.
std::size_t TextTable::writeText(const TextColumn& column, const std::string& text, std::size_t numBlanksBefore)
{
    const auto numFree = static_cast<std::size_t>(std::max(column.width - Utf8::displayWidth(text), 0));
    const std::size_t indent = column.isAlignedRight ? numFree : 0;
    m_text.append(numBlanksBefore + indent, ' ');
    TextDirection::append(m_text, text);
    return numFree - indent;
}

// `m_text` keeps its memory from block to block.
void TextTable::passOn(std::size_t least)
{
    if (m_text.size() < least)
        return;
    m_sink.write(m_text);
    m_text.clear();
}
}
