// How lines become nested groups, told on a list whose groups have no header, three levels deep:
//
//   line of level 2    levels 0 and 1 open without a word, then the line's own     {"level": 0, "groups": [
//                                                                                  {"level": 1, "lines": [
//                                                                                  {"level": 2, ...}
//   line of level 2    the level of the line before closes, its own opens         , {"level": 2, ...}
//   footer of level 1  all below closes; it is the last of its group               ], "footer": {...}}
//   line of level 2    level 1 opens once more                                     , {"level": 1, "lines": [
#include "JsonList.h"

#include "JsonText.h"
#include "NumberText.h"
#include "Utf8.h"

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

// What the values of a column are. A column whose numbers have several units says of each which it has.
const char* kindOf(const ReportColumn& column)
{
    if (column.hasMixedUnits)
        return "mixed";
    if (column.pUnitKind != nullptr)
        return column.pUnitKind->name;
    return column.isNumeric ? "number" : "text";
}

// Of most columns totals are sums, which is not said.
std::string totalOf(const ReportColumn& column)
{
    return column.total == ColumnTotal::kSum
               ? std::string()
               : std::string(", \"total\": \"") + ColumnTotal::nameOf(column.total) + "\"";
}

std::string textOrNull(const std::string& text)
{
    return text.empty() ? "null" : jsonText(text);
}

const char* boolText(bool value)
{
    return value ? "true" : "false";
}

// "[a, b]" of what `textOf` makes of each element.
template <class Elements, class TextOf>
std::string arrayOf(const Elements& elements, const TextOf& textOf)
{
    std::string text;
    for (const auto& element : elements)
        text += (text.empty() ? "" : ", ") + textOf(element);
    return "[" + text + "]";
}

std::string textOf(const FilteredRows& filtered)
{
    return "{\"condition\": " + jsonText(filtered.condition) +
           ", \"fromTemplate\": " + boolText(filtered.isFromTemplate) +
           ", \"rows\": " + std::to_string(filtered.numRows) + "}";
}

std::string textOf(const ListFoot::Loss& loss)
{
    return "{\"label\": " + jsonText(loss.label) + ", \"amount\": " + jsonText(loss.amount) + "}";
}

std::string textOf(const ListFoot::Total& total)
{
    return "{\"label\": " + jsonText(total.label) + ", \"rows\": " + std::to_string(total.numRows) + "}";
}
}

JsonList::JsonList(const EvaluatedReport& report, TextSink& sink)
    : m_report(report), m_sink(sink), m_isShown(report.columns().size()), m_hasInside{ false }
{
    for (const ReportColumn& column : report.columns())
        m_hasMixedUnits = m_hasMixedUnits || column.hasMixedUnits;
    if (const std::vector<SectionPlace> places = report.placesWithLines(); !places.empty())
        m_handleLevel = places.back().level;
}

void JsonList::write()
{
    writeHead();
    writeLines();
    writeFoot();
    m_text += "\n}\n";
    passOn(0);
    m_sink.finish();
}

void JsonList::writeHead()
{
    m_text += "{\n\"format\": \"mekbom-list\", \"version\": 1,\n\"title\": ";
    writeTextOrNull(m_report.title());
    m_text += ",\n\"columns\": [";
    for (const ReportColumn& column : m_report.columns())
    {
        m_text += &column == m_report.columns().data() ? "\n" : ",\n";
        writeColumn(column);
    }
    m_text += "]";
}

void JsonList::writeColumn(const ReportColumn& column)
{
    m_text += "{\"token\": " + jsonText(Utf8::toBytes(column.token)) + ", \"label\": " + jsonText(column.label) +
              ", \"heading\": " + jsonText(column.heading()) + ", \"kind\": \"" + kindOf(column) +
              "\", \"unit\": " + textOrNull(column.unitOfNumbers()) +
              ", \"shownUnit\": " + textOrNull(column.unitSymbol) + totalOf(column) + "}";
}

void JsonList::writeLines()
{
    ReportLines lines = m_report.lines();
    ReportLine line;
    while (lines.next(line))
    {
        if (line.place.hasHeader)
            writeHeader(line);
        if (line.place.hasFooter)
            writeFooter(line);
        passOn(kBlockSize);
    }
    closeDownTo(0);
    if (!m_hasInside.front())
        m_text += isDeepest(0) ? ",\n\"lines\": [" : ",\n\"groups\": [";
    m_text += "]";
}

// A header begins a group, or a line, whatever was open of its level.
void JsonList::writeHeader(const ReportLine& line)
{
    closeDownTo(line.place.level);
    openUpTo(line.place.level);
    const bool isLine = isDeepest(line.place.level);
    m_text += isLine ? ", " : ", \"header\": {";
    writeSection(line, { line.place.level, false });
    if (isLine && line.place.level == m_handleLevel)
        writeHandles(line);
    m_text += isLine ? "" : "}";
}

void JsonList::writeFooter(const ReportLine& line)
{
    closeDownTo(line.place.level + 1);
    openUpTo(line.place.level);
    closeInside();
    m_text += ",\n\"footer\": {";
    writeSection(line, { line.place.level, true });
    if (line.place.level == m_handleLevel && !isDeepest(m_handleLevel))
        writeHandles("handles", line.footerRows);
    m_text += "}";
    closeDownTo(line.place.level);
}

// Opens all levels that are not open, as far as that one.
void JsonList::openUpTo(int level)
{
    while (numOpen() <= level)
        open();
}

// Closes what is open at that level and within it.
void JsonList::closeDownTo(int level)
{
    while (numOpen() > level)
    {
        closeInside();
        m_text += "}";
        m_hasInside.pop_back();
    }
}

void JsonList::open()
{
    const int level = numOpen();
    if (m_hasInside.back())
        m_text += ",\n";
    else
        m_text += isDeepest(level) ? ",\n\"lines\": [\n" : ",\n\"groups\": [\n";
    m_hasInside.back() = true;
    m_text += "{\"level\": " + std::to_string(level);
    m_hasInside.push_back(false);
}

void JsonList::closeInside()
{
    if (m_hasInside.back())
        m_text += "]";
    m_hasInside.back() = false;
}

// A header and its footer may share the line, each with columns of its own.
void JsonList::writeSection(const ReportLine& line, SectionPlace place)
{
    const SectionLayout& section = m_report.layout().section(place);
    m_isShown.assign(m_isShown.size(), false);
    for (const int column : section.columns)
        m_isShown[static_cast<std::size_t>(column)] = true;
    if (section.isOfPage)
        m_text += "\"ofPage\": true, ";
    if (!section.label.empty())
        m_text += "\"label\": " + jsonText(section.label) + ", ";
    writeCells("\"values\": [", line, &JsonList::writeValue);
    m_text += ", ";
    writeCells("\"shown\": [", line, &JsonList::writeShown);
    if (!m_hasMixedUnits)
        return;
    m_text += ", ";
    writeCells("\"units\": [", line, &JsonList::writeUnit);
}

void JsonList::writeCells(const char* name, const ReportLine& line,
                          void (JsonList::*writeCell)(const ReportLine&, std::size_t))
{
    m_text += name;
    for (std::size_t i = 0; i < m_isShown.size(); ++i)
    {
        if (i > 0)
            m_text += ", ";
        if (m_isShown[i])
            (this->*writeCell)(line, i);
        else
            m_text += "null";
    }
    m_text += "]";
}

// JSON has no word for what is no number.
void JsonList::writeValue(const ReportLine& line, std::size_t index)
{
    const VorBomTypedValue& value = line.values[index];
    if (!isNumber(value))
        writeTextOrNull(line.texts[index].view());
    else if (std::isfinite(value.number))
        m_text += numberText(m_report.columns()[index].numbers.of(value));
    else
        m_text += "null";
}

void JsonList::writeShown(const ReportLine& line, std::size_t index)
{
    writeTextOrNull(line.texts[index].view());
}

// Of columns whose heading names the unit, that is where it stands.
void JsonList::writeUnit(const ReportLine& line, std::size_t index)
{
    const ReportColumn& column = m_report.columns()[index];
    const bool isAsked = column.hasMixedUnits && isNumber(line.values[index]);
    writeTextOrNull(isAsked ? std::string_view(column.numbers.unitOf(line.values[index].unitType))
                            : std::string_view());
}

// Of the rows that made a line of details the first counts, and so do the others unless they were merged away.
void JsonList::writeHandles(const ReportLine& line)
{
    const RowList& rows = line.headerRows;
    if (rows.size() < 2 || m_report.countsEqualLines())
        return writeHandles("handles", rows);
    writeHandles("handles", { rows.begin(), rows.begin() + 1 });
    writeHandles("mergedHandles", { rows.begin() + 1, rows.end() });
}

// Null for a row without one, so that there are as many as rows.
void JsonList::writeHandles(const char* name, const RowList& rows)
{
    m_text.append(", \"").append(name).append("\": [");
    for (const VorBomDataRow* const* pRow = rows.begin(); pRow != rows.end(); ++pRow)
    {
        if (pRow != rows.begin())
            m_text += ", ";
        writeTextOrNull(Utf8::toBytes((*pRow)->objectHandle()));
    }
    m_text += "]";
}

void JsonList::writeFoot()
{
    const ListFoot& foot = m_report.foot();
    const std::string text =
        "\"text\": " + arrayOf(foot.lines(), [](const std::string& line) { return jsonText(line); });
    m_text += ",\n\"foot\": ";
    if (!foot.isKnown)
    {
        m_text += foot.statements.empty() ? "null" : "{" + text + "}";
        return;
    }
    const auto describe = [](const auto& element) { return textOf(element); };
    m_text += "{\"rowsRead\": " + std::to_string(foot.numRead) +
              ", \"rowsReplacedByParts\": " + std::to_string(foot.numParents) +
              ", \"sets\": " + std::to_string(foot.numSets) + ", \"filtered\": " + arrayOf(foot.filtered, describe) +
              ", \"rowsMerged\": " + std::to_string(foot.numMerged) + ", \"lost\": " + arrayOf(foot.losses, describe) +
              ", \"rowsListed\": " + std::to_string(foot.numListed) + ", \"lines\": " + std::to_string(foot.numLines) +
              ",\n\"totals\": " + arrayOf(foot.totals, describe) +
              ", \"emptyRows\": " + std::to_string(foot.numEmptyRows) +
              ", \"rowsAreSinglePieces\": " + boolText(foot.countsRowsAsPieces) +
              ", \"unitsAssumed\": " + boolText(foot.areUnitsAssumed) +
              ", \"warnings\": " + std::to_string(foot.numWarnings) + ",\n" + text + "}";
}

void JsonList::writeTextOrNull(std::string_view text)
{
    if (text.empty())
        m_text += "null";
    else
        appendJsonText(m_text, text);
}

bool JsonList::isDeepest(int level) const
{
    return static_cast<std::size_t>(level) + 1 >= m_report.layout().levels().size();
}

// `m_text` keeps its memory from block to block.
void JsonList::passOn(std::size_t least)
{
    if (m_text.size() < least)
        return;
    m_sink.write(m_text);
    m_text.clear();
}
}
