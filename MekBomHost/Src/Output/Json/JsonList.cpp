// How lines become nested groups, told on a list whose groups have no header, three levels deep:
//
//   line of level 2    levels 0 and 1 open without a word, then the line's own     {"level": 0, "groups": [
//                                                                                  {"level": 1, "lines": [
//                                                                                  {"level": 2, ...}
//   line of level 2    the level of the line before closes, its own opens         , {"level": 2, ...}
//   footer of level 1  all below closes; it is the last of its group               ], "footer": {...}}
//   line of level 2    level 1 opens once more                                     , {"level": 1, "lines": [
#include "JsonList.h"

#include "JsonColumn.h"
#include "JsonText.h"

namespace mekbom
{
namespace
{
const std::size_t kBlockSize = 1 << 16; // arbitrary: large against a call of the system

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
    : m_report(report), m_sink(sink), m_line(report), m_hasInside{ false }
{
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
    appendJsonTextOrNull(m_text, m_report.title());
    m_text += ",\n\"columns\": " + JsonColumn::textOf(m_report.columns());
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
    m_line.appendSection(line, { line.place.level, false }, m_text);
    if (isLine && line.place.level == m_handleLevel)
        m_line.appendHandles(line, m_text);
    m_text += isLine ? "" : "}";
}

void JsonList::writeFooter(const ReportLine& line)
{
    closeDownTo(line.place.level + 1);
    openUpTo(line.place.level);
    closeInside();
    m_text += ",\n\"footer\": {";
    m_line.appendSection(line, { line.place.level, true }, m_text);
    if (line.place.level == m_handleLevel && !isDeepest(m_handleLevel))
        JsonLine::appendHandles("handles", line.footerRows, m_text);
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
