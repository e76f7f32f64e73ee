// Headers stay in their cells until the next header of their level comes, so that every line below them is a record with
// all it needs:
//
//   header 1   HEA200 S355J2          cells   HEA200 S355J2 -    -
//   details    6161 4                 cells   HEA200 S355J2 6161 4      a record
//   details    2400 2                 cells   HEA200 S355J2 2400 2      a record
//   footer 1   6                      a total: nothing
//   header 1   IPE360 S355J2          cells   IPE360 S355J2 2400 2
#include "CsvTable.h"

#include "CsvText.h"
#include "NumberText.h"

#include <algorithm>
#include <cmath>

namespace mekbom
{
namespace
{
const std::size_t kBlockSize = 1 << 16; // arbitrary: large against a call of the system

bool isNumber(const VorBomTypedValue& value)
{
    return value.type == VorBomDataValue::kIntData || value.type == VorBomDataValue::kDoubleData;
}
}

CsvTable::CsvTable(const EvaluatedReport& report, const OutputChoices& choices, char delimiter, TextSink& sink)
    : m_report(report),
      m_choices(choices),
      m_delimiter(delimiter),
      m_sink(sink),
      m_fields(CsvColumns::of(report, choices.hasPlainValues)),
      m_cells(m_fields.columns.size()),
      m_headerCells(report.layout().levels().size())
{
    for (std::size_t i = 0; i < m_fields.columns.size(); ++i)
    {
        const CsvColumn& column = m_fields.columns[i];
        if (column.place.isFooter)
            m_footerCells.push_back(i);
        else
            m_headerCells[static_cast<std::size_t>(column.place.level)].push_back(i);
    }
}

// A list without any column is an empty file.
void CsvTable::write()
{
    if (!m_fields.columns.empty())
        writeHeadings();
    ReportLines lines = m_report.lines();
    ReportLine line;
    while (!m_fields.columns.empty() && lines.next(line))
    {
        take(line);
        if (m_fields.endsRecord(line.place))
            writeRecord();
        passOn(kBlockSize);
    }
    if (m_choices.hasFoot)
        writeFoot();
    passOn(0);
    m_sink.finish();
}

void CsvTable::writeHeadings()
{
    const std::size_t begin = m_text.size();
    for (std::size_t i = 0; i < m_fields.columns.size(); ++i)
    {
        beginField(i);
        writeText(m_fields.columns[i].heading);
    }
    endRecord(begin);
}

void CsvTable::take(const ReportLine& line)
{
    const auto keep = [&](const std::vector<std::size_t>& cells)
    {
        for (const std::size_t i : cells)
        {
            const std::size_t index = m_fields.columns[i].index;
            m_cells[i] = { line.texts[index], line.values[index] };
        }
    };
    if (line.place.hasHeader)
        keep(m_headerCells[static_cast<std::size_t>(line.place.level)]);
    if (m_fields.last.isFooter && m_fields.endsRecord(line.place))
        keep(m_footerCells);
}

void CsvTable::writeRecord()
{
    const std::size_t begin = m_text.size();
    for (std::size_t i = 0; i < m_cells.size(); ++i)
    {
        beginField(i);
        writeCell(m_fields.columns[i], m_cells[i]);
    }
    endRecord(begin);
}

void CsvTable::writeCell(const CsvColumn& column, const Cell& cell)
{
    if (isNumber(cell.value))
        writeNumber(m_report.columns()[column.index], cell);
    else
        writeText(cell.text.view());
}

// A number is known by its value and not by its text, so that the minus of -7' 6" stays what it is, and a mark that
// reads like one is defused all the same.
// A number without a kind beside others that have units is written as the list shows it: it may have a name of its own
// behind it, which the text alone tells.
void CsvTable::writeNumber(const ReportColumn& column, const Cell& cell)
{
    std::string text(cell.text.view());
    const std::string& unit = column.numbers.unitOf(cell.value.unitType);
    const bool isNamed = !column.hasMixedUnits || !unit.empty();
    if (m_choices.hasPlainValues && isNamed && std::isfinite(cell.value.number))
        text = numberText(column.numbers.of(cell.value)) + (column.hasMixedUnits ? " " + unit : "");
    if (const std::size_t point = text.find('.'); point != std::string::npos)
        text[point] = m_choices.decimalSign;
    CsvText::append(m_text, text, m_delimiter);
}

void CsvTable::writeText(std::string_view text)
{
    if (CsvText::isFormula(text))
        CsvText::append(m_text, CsvText::defused(text), m_delimiter);
    else
        CsvText::append(m_text, text, m_delimiter);
}

// Behind an empty record, which no list has otherwise; each line is the first field of a record that is as long as all
// others, since readers refuse one that is not.
void CsvTable::writeFoot()
{
    const std::vector<std::string> lines = m_report.foot().lines();
    if (!lines.empty())
        writeAlone(std::string());
    for (const std::string& line : lines)
        writeAlone(line);
}

void CsvTable::writeAlone(const std::string& text)
{
    const std::size_t begin = m_text.size();
    writeText(text);
    for (std::size_t i = 1; i < m_fields.columns.size(); ++i)
        beginField(i);
    endRecord(begin);
}

void CsvTable::beginField(std::size_t index)
{
    if (index > 0)
        m_text += m_delimiter;
}

// A record of one empty field would be an empty line, which readers pass over.
void CsvTable::endRecord(std::size_t begin)
{
    if (m_text.size() == begin)
        m_text += "\"\"";
    m_text += CsvText::kLineEnd;
}

// `m_text` keeps its memory from block to block.
void CsvTable::passOn(std::size_t least)
{
    if (m_text.size() < least)
        return;
    m_sink.write(m_text);
    m_text.clear();
}
}
