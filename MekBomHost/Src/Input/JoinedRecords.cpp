// The joined header row is read as that of one file, in which headings may mean something else than in their own:
//
//   a.csv    Mark, Profile              Mark is %PNum
//   b.csv    Part mark, Mark, Name      Part mark is %PNum, Mark is %MNum, Name is %Name
//
//   Mark, Profile, Mark                 one heading of two meanings: both say what they mean, in tokens
//   %PNum, Profile, %MNum               this is handed over
//
// What no token says, such as a weight of all pieces beside one of a single piece, is refused.
#include "JoinedRecords.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "HeaderRow.h"
#include "InQuotes.h"

#include <algorithm>
#include <utility>

namespace mekbom
{
namespace
{
std::string meaningOf(const ColumnName& name)
{
    return name.token + (name.isRowTotal ? " of all pieces" : "");
}

bool meanTheSame(const ColumnName& one, const ColumnName& other)
{
    return meaningOf(one) == meaningOf(other) && (one.doubt != nullptr) == (other.doubt != nullptr);
}

// A heading that means that and nothing else, whatever stands beside it.
std::string headingOf(const ColumnName& name)
{
    return name.token + (name.unit.empty() ? "" : " [" + name.unit + "]");
}
}

JoinedRecords::JoinedRecords(std::vector<std::unique_ptr<RecordSource>> sources, HeadingChoices choices)
    : m_choices(std::move(choices))
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
    keepMeanings();
    m_record.clear();
    for (const Column& column : m_columns)
        m_record.emplace_back(std::string_view(column.heading));
    return &m_record;
}

// What comes twice in one file gets two columns: PartsList refuses them.
void JoinedRecords::addColumns(std::size_t source, const Record& headings)
{
    std::vector<std::string> texts;
    for (const RecordCell& cell : headings)
        texts.push_back(cell.asText());
    const std::vector<ColumnName> names = ColumnNames::of(texts, m_choices).columns;
    std::unordered_map<std::string, std::size_t> numMet; // in this source
    for (std::size_t i = 0; i < texts.size(); ++i)
    {
        const std::string meaning = meaningOf(names[i]);
        std::vector<std::size_t>& known = m_columnsOf[meaning];
        const std::size_t numBefore = numMet[meaning]++;
        if (numBefore < known.size())
            requireOneUnit(m_columns[known[numBefore]], source, texts[i], names[i].unit);
        else
        {
            known.push_back(m_columns.size());
            m_columns.push_back({ texts[i], source, names[i] });
        }
        m_sources[source].columns.push_back(known[numBefore]);
    }
}

void JoinedRecords::requireOneUnit(const Column& column, std::size_t source, const std::string& heading,
                                   const std::string& unit) const
{
    if (column.name.unit == unit)
        return;
    Finding finding = Finding::of(FindingCodes::kUnitsOfFilesDiffer, "column " + inQuotes(heading),
                                  inQuotes(column.heading) + " as in " + m_sources[column.source].pRecords->name());
    finding.remedy = "give the column in one unit in all files";
    m_sources[source].pRecords->placeRecord(finding);
    throw Fault(kInvalidInput, finding);
}

// A doubt that the other files seem to settle is none of theirs to settle, and has no heading of its own.
void JoinedRecords::keepMeanings()
{
    const std::vector<ColumnName> joined = namesOfJoined().columns;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (Column& column = m_columns[i]; !meanTheSame(column.name, joined[i]))
        {
            if (column.name.isRowTotal || column.name.doubt != nullptr)
                failInMeaning(column);
            column.heading = headingOf(column.name);
        }
    const std::vector<ColumnName> settled = namesOfJoined().columns;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (!meanTheSame(m_columns[i].name, settled[i]))
            failInMeaning(m_columns[i]);
}

ColumnNames JoinedRecords::namesOfJoined() const
{
    std::vector<std::string> headings;
    for (const Column& column : m_columns)
        headings.push_back(column.heading);
    return ColumnNames::of(headings, m_choices);
}

void JoinedRecords::failInMeaning(const Column& column) const
{
    Finding finding = Finding::stating(FindingCodes::kHeadingAmbiguous,
                                       "column " + inQuotes(column.heading) +
                                           " means something else beside the columns of the other files");
    finding.remedy = "give all files the same headings";
    m_sources[column.source].pRecords->placeRecord(finding);
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
