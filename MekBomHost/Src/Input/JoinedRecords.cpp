#include "JoinedRecords.h"

#include "ColumnHeading.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "HeaderRow.h"
#include "InQuotes.h"

#include <algorithm>
#include <utility>

namespace mekbom
{
JoinedRecords::JoinedRecords(std::vector<std::unique_ptr<RecordSource>> sources)
{
    for (std::unique_ptr<RecordSource>& pSource : sources)
    {
        m_name += (m_name.empty() ? "" : ", ") + pSource->name();
        m_sources.push_back({ std::move(pSource), {} });
    }
}

const Record* JoinedRecords::next()
{
    if (!std::exchange(m_isBegun, true))
        return header();
    m_isInRows = true;
    for (; m_current < m_sources.size(); ++m_current)
        if (const Record* const pRecord = m_sources[m_current].pRecords->next())
            return joined(*pRecord);
    --m_current; // places are asked of the last one still
    return nullptr;
}

const Record* JoinedRecords::header()
{
    for (std::size_t source = 0; source < m_sources.size(); ++source)
        addColumns(source, HeaderRow::read(*m_sources[source].pRecords));
    m_record.clear();
    for (const Column& column : m_columns)
        m_record.emplace_back(std::string_view(column.heading));
    return &m_record;
}

// A token that comes twice in one file gets two columns: PartsList refuses them.
void JoinedRecords::addColumns(std::size_t source, const Record& headings)
{
    std::unordered_map<std::string, std::size_t> numMet; // in this source
    for (const RecordCell& cell : headings)
    {
        const std::string heading = cell.asText();
        const std::string token = ColumnHeading::parse(heading).token;
        std::vector<std::size_t>& known = m_columnsOf[token];
        const std::size_t numBefore = numMet[token]++;
        if (numBefore < known.size())
            requireOneUnit(m_columns[known[numBefore]], source, heading);
        else
        {
            known.push_back(m_columns.size());
            m_columns.push_back({ heading, source });
        }
        m_sources[source].columns.push_back(known[numBefore]);
    }
}

void JoinedRecords::requireOneUnit(const Column& column, std::size_t source, const std::string& heading) const
{
    if (ColumnHeading::parse(column.heading).unit == ColumnHeading::parse(heading).unit)
        return;
    Finding finding = Finding::of(FindingCodes::kUnitsOfFilesDiffer, "column " + inQuotes(heading),
                                  inQuotes(column.heading) + " as in " + m_sources[column.source].pRecords->name());
    finding.remedy = "give the column in one unit in all files";
    m_sources[source].pRecords->placeRecord(finding);
    throw Fault(kInvalidInput, finding);
}

const Record* JoinedRecords::joined(const Record& record)
{
    const std::vector<std::size_t>& columns = m_sources[m_current].columns;
    if (record.size() != columns.size())
        failInNumCells(record.size());
    m_record.assign(m_columns.size(), RecordCell());
    for (std::size_t i = 0; i < record.size(); ++i)
        m_record[columns[i]] = record[i];
    return &m_record;
}

void JoinedRecords::failInNumCells(std::size_t numCells) const
{
    Finding finding = HeaderRow::wrongNumberOfFields(numCells, m_sources[m_current].columns.size());
    placeRecord(finding);
    throw Fault(kInvalidInput, finding);
}

void JoinedRecords::placeRecord(Finding& finding) const
{
    m_sources[m_current].pRecords->placeRecord(finding);
}

// A heading stands in the source that named it first; a cell in the one that is being read, unless that lacks the column.
void JoinedRecords::placeCell(std::size_t index, Finding& finding) const
{
    const Source& source = m_sources[m_isInRows ? m_current : m_columns[index].source];
    const auto own = std::find(source.columns.begin(), source.columns.end(), index);
    if (own == source.columns.end())
        source.pRecords->placeRecord(finding);
    else
        source.pRecords->placeCell(static_cast<std::size_t>(own - source.columns.begin()), finding);
}

NumberNotation JoinedRecords::notationOf(const std::vector<std::size_t>& columns) const
{
    NumberNotation notation = notationOf(m_sources.front(), columns);
    for (std::size_t i = 1; i < m_sources.size(); ++i)
        notation = NumberNotation::ofEither(notation, notationOf(m_sources[i], columns));
    return notation;
}

NumberNotation JoinedRecords::notationOf(const Source& source, const std::vector<std::size_t>& columns)
{
    std::vector<std::size_t> own;
    for (std::size_t i = 0; i < source.columns.size(); ++i)
        if (std::find(columns.begin(), columns.end(), source.columns[i]) != columns.end())
            own.push_back(i);
    return source.pRecords->notationOf(own);
}
}
