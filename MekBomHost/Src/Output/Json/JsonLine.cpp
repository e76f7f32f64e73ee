#include "JsonLine.h"

#include "JsonText.h"
#include "NumberText.h"
#include "Utf8.h"

#include <algorithm>
#include <cmath>

namespace mekbom
{
namespace
{
bool isNumber(const VorBomTypedValue& value)
{
    return value.type == VorBomDataValue::kIntData || value.type == VorBomDataValue::kDoubleData;
}
}

JsonLine::JsonLine(const EvaluatedReport& report) : m_report(report), m_isShown(report.columns().size())
{
    const std::vector<ReportColumn>& columns = report.columns();
    m_hasMixedUnits =
        std::any_of(columns.begin(), columns.end(), [](const ReportColumn& column) { return column.hasMixedUnits; });
}

void JsonLine::appendSection(const ReportLine& line, SectionPlace place, std::string& text)
{
    const SectionLayout& section = m_report.layout().section(place);
    m_isShown.assign(m_isShown.size(), false);
    for (const int column : section.columns)
        m_isShown[static_cast<std::size_t>(column)] = true;
    if (section.isOfPage)
        text += "\"ofPage\": true, ";
    appendMembers(line, section.label, text);
}

void JsonLine::appendAll(const ReportLine& line, std::string& text)
{
    m_isShown.assign(m_isShown.size(), true);
    appendMembers(line, line.label, text);
}

void JsonLine::appendMembers(const ReportLine& line, std::string_view label, std::string& text) const
{
    if (!label.empty())
    {
        text += "\"label\": ";
        appendJsonText(text, label);
        text += ", ";
    }
    appendCells("\"values\": [", line, &JsonLine::appendValue, text);
    text += ", ";
    appendCells("\"shown\": [", line, &JsonLine::appendShown, text);
    if (!m_hasMixedUnits)
        return;
    text += ", ";
    appendCells("\"units\": [", line, &JsonLine::appendUnit, text);
}

void JsonLine::appendCells(const char* name, const ReportLine& line, WriteCell writeCell, std::string& text) const
{
    text += name;
    for (std::size_t i = 0; i < m_isShown.size(); ++i)
    {
        if (i > 0)
            text += ", ";
        if (m_isShown[i])
            (this->*writeCell)(line, i, text);
        else
            text += "null";
    }
    text += "]";
}

// JSON has no word for what is no number.
void JsonLine::appendValue(const ReportLine& line, std::size_t index, std::string& text) const
{
    const VorBomTypedValue& value = line.values[index];
    if (!isNumber(value))
        appendJsonTextOrNull(text, line.texts[index].view());
    else if (std::isfinite(value.number))
        text += numberText(m_report.columns()[index].numbers.of(value));
    else
        text += "null";
}

void JsonLine::appendShown(const ReportLine& line, std::size_t index, std::string& text) const
{
    appendJsonTextOrNull(text, line.texts[index].view());
}

// Of columns whose heading names the unit, that is where it stands.
void JsonLine::appendUnit(const ReportLine& line, std::size_t index, std::string& text) const
{
    const ReportColumn& column = m_report.columns()[index];
    const bool isAsked = column.hasMixedUnits && isNumber(line.values[index]);
    appendJsonTextOrNull(text, isAsked ? std::string_view(column.numbers.unitOf(line.values[index].unitType))
                                       : std::string_view());
}

// Of the rows that made a line of details the first counts, and so do the others unless they were merged away.
void JsonLine::appendHandles(const ReportLine& line, std::string& text) const
{
    const RowList& rows = line.headerRows;
    if (rows.size() < 2 || m_report.countsEqualLines())
        return appendHandles("handles", rows, text);
    appendHandles("handles", { rows.begin(), rows.begin() + 1 }, text);
    appendHandles("mergedHandles", { rows.begin() + 1, rows.end() }, text);
}

void JsonLine::appendHandles(const char* name, const RowList& rows, std::string& text)
{
    text.append(", \"").append(name).append("\": [");
    for (const VorBomDataRow* const* pRow = rows.begin(); pRow != rows.end(); ++pRow)
    {
        if (pRow != rows.begin())
            text += ", ";
        appendJsonTextOrNull(text, Utf8::toBytes((*pRow)->objectHandle()));
    }
    text += "]";
}
}
