// Headers of groups stay as they are until the next one of their level comes, so that each line below them has what
// they show. Of a list that prints groups alone, a line is a header with its footer, on one line or on two:
//
//   HEA200  S355J2                 the header begins a line
//   Total           12   24644     the footer of its level completes it
#include "ComparedList.h"

#include "TemplateLevels.h"
#include "TotalTokens.h"
#include "Utf8.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace mekbom
{
namespace
{
const char kBetweenKeys = '\x1F'; // made for that, and so in no text of a parts list

// "%SortDescBy:%Length" -> "%Length"
VorString withoutDirection(const VorString& request)
{
    const int colon = request.find(L"By:", 0);
    return colon < 0 ? request : request.right(request.length() - colon - 3);
}

void append(std::string& text, std::string_view more)
{
    if (!text.empty() && !more.empty())
        text += ' ';
    text += more;
}
}

ComparedList::ComparedList(const ReportJob& job) : m_hasHandles(job.hasHandles())
{
    const EvaluatedReport report = job.report();
    findColumns(report);
    findKeys(job, report);
    takeLines(report);
}

void ComparedList::findColumns(const EvaluatedReport& report)
{
    for (const SectionPlace place : report.placesWithLines())
        m_level = std::max(m_level, place.level);
    m_columns.resize(report.columns().size());
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        const ReportColumn& column = report.columns()[i];
        m_columns[i].heading = column.heading();
        m_columns[i].isCounted =
            column.isNumeric && std::any_of(column.shownTokens.begin(), column.shownTokens.end(), TotalTokens::isSum);
    }
    for (int level = 0; level < m_level; ++level)
        for (const int column : report.layout().section({ level, false }).columns)
            if (!m_columns[static_cast<std::size_t>(column)].isCounted)
                m_columns[static_cast<std::size_t>(column)].groupLevel = level;
}

// A list that neither groups nor sorts tells its lines apart by all that they show but what is counted.
void ComparedList::findKeys(const ReportJob& job, const EvaluatedReport& report)
{
    const TemplateLevels levels(*job.reportTemplate().pTemplate);
    std::vector<VorString> tokens;
    for (int level = 0; level <= m_level; ++level)
    {
        for (const VorString& token : levels.groupTokens(level))
            tokens.push_back(token);
        for (const VorString& request : levels.sortRequests(level))
            tokens.push_back(withoutDirection(request));
    }
    std::unordered_map<std::string, int> columns;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        columns.emplace(Utf8::toBytes(report.columns()[i].token), static_cast<int>(i));
    std::unordered_set<std::string> known; // what groups by a token mostly sorts by it, too
    for (const VorString& token : tokens)
    {
        const std::string name = Utf8::toBytes(token);
        const auto found = columns.find(name);
        const int column = found == columns.end() ? -1 : found->second;
        const bool isCounted = column >= 0 && m_columns[static_cast<std::size_t>(column)].isCounted;
        if (known.insert(name).second && !isCounted)
            m_keys.push_back({ token, column });
    }
    if (!m_keys.empty())
        return;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (!m_columns[i].isCounted)
            m_keys.push_back({ report.columns()[i].token, static_cast<int>(i) });
}

void ComparedList::takeLines(const EvaluatedReport& report)
{
    m_groupTexts.resize(m_columns.size());
    ReportLines lines = report.lines();
    ReportLine line;
    while (lines.next(line))
        if (line.place.level == m_level)
            take(line);
        else if (line.place.hasHeader)
            openGroup(line);
}

void ComparedList::openGroup(const ReportLine& line)
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        if (m_columns[i].groupLevel == line.place.level)
            m_groupTexts[i] = line.texts[i].view();
        else if (m_columns[i].groupLevel > line.place.level)
            m_groupTexts[i].clear();
    }
}

// A footer without its header on the same line completes the line that the header began.
void ComparedList::take(const ReportLine& line)
{
    if (line.place.hasHeader || m_lines.empty())
        m_lines.push_back({ m_groupTexts, std::vector<VorBomTypedValue>(m_columns.size()), {}, "" });
    ComparedLine& compared = m_lines.back();
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        append(compared.texts[i], line.texts[i].view());
        if (line.values[i].type != VorBomDataValue::kUnknownData)
            compared.values[i] = line.values[i];
    }
    const RowList& rows = line.place.hasFooter ? line.footerRows : line.headerRows; // a header has the first of them
    compared.handles.clear();
    for (const VorBomDataRow* const pRow : rows)
        if (pRow->objectHandle().isEmpty() == 0)
            compared.handles.push_back(pRow->objectHandle());
    if (rows.size() > 0)
        compared.key = keyOf(compared, **rows.begin());
}

std::string ComparedList::keyOf(const ComparedLine& line, const VorBomDataRow& row) const
{
    std::string key;
    for (const KeyToken& part : m_keys)
    {
        if (part.column >= 0)
            key += line.texts[static_cast<std::size_t>(part.column)];
        else if (const VorBomDataTuple* const pTuple = row.getTupleAt(part.token))
            key += Utf8::toBytes(pTuple->value().asString());
        key += kBetweenKeys;
    }
    return key;
}
}
