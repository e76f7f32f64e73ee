#include "PartsDescriber.h"

#include "ColumnTypes.h"
#include "HeaderColumns.h"
#include "HeaderRow.h"
#include "TokenKinds.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace mekbom
{
namespace
{
const char* const kNumCells = "cells";

template <class Predicate>
std::size_t indexOf(const std::vector<InputColumn>& columns, const Predicate& isMeant)
{
    return static_cast<std::size_t>(std::find_if(columns.begin(), columns.end(), isMeant) - columns.begin());
}
}

PartsDescriber::PartsDescriber(RecordSource& source, const HeadingChoices& choices) : m_source(source)
{
    m_description.name = source.name();
    HeaderColumns header = HeaderColumns::read(source, choices);
    for (const Finding& mistake : header.mistakes.all())
        tell(mistake);
    tellDoubts(header.columns);
    addColumns(std::move(header.columns));
}

// What several columns are in doubt for is said once.
void PartsDescriber::tellDoubts(const std::vector<InputColumn>& columns)
{
    std::set<std::string> said;
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        if (!columns[i].doubt)
            continue;
        const HeadingDoubt& doubt = *columns[i].doubt;
        m_description.doubtfulTokens.insert(doubt.tokens.begin(), doubt.tokens.end());
        if (said.insert(messageOf(doubt.finding)).second)
            tell(doubt.finding, i);
    }
}

void PartsDescriber::addColumns(std::vector<InputColumn> columns)
{
    VorBomTemplateUnits units = TokenKinds().units();
    ColumnTypes::registerKinds(columns, units);
    const std::map<std::string, eOwnToken> noTemplate;
    const ColumnTypes types(units, noTemplate);
    const NumberNotation notation = types.notationOf(columns, m_source);
    m_parser.setNotation(notation);
    if (const auto note = ColumnTypes::noteOfComma(notation, m_source))
        m_notes.push_back(*note);
    m_handleColumn = indexOf(columns, [](const InputColumn& column) { return column.isHandle; });
    m_piecesColumn = indexOf(columns, [](const InputColumn& column) { return column.isPieces; });
    m_columns.reserve(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        const auto wrongUnit = types.resolve(columns[i]);
        m_columns.emplace_back(columns[i], i, units.getUnitType(columns[i].tupleToken), m_source, m_parser, notation,
                               m_limit);
        if (wrongUnit)
            refuseUnit(i, columns[i].name, *wrongUnit);
    }
}

void PartsDescriber::refuseUnit(std::size_t column, const std::string& heading, const Finding& finding)
{
    m_columns[column].refuseNumbers();
    m_arePiecesKnown = m_arePiecesKnown && column != m_piecesColumn;
    Finding named = finding;
    named.field = heading;
    tell(named, column);
}

void PartsDescriber::tell(const Finding& finding)
{
    if (m_limit.takeOne())
        m_description.oddities.push_back(messageOf(finding));
}

// About a heading: the record read last is still the header row.
void PartsDescriber::tell(Finding finding, std::size_t column)
{
    if (!m_limit.takeOne())
        return;
    m_source.placeCell(column, finding);
    m_description.oddities.push_back(messageOf(finding));
}

PartsDescription PartsDescriber::describe()
{
    while (const Record* const pRecord = m_source.next())
        add(*pRecord);
    PartsDescription description = std::move(m_description);
    description.hasPieces = hasPieces();
    for (std::string& text : m_oddRows.texts("row"))
        description.oddities.push_back(std::move(text));
    if (m_piecesColumn < m_columns.size() && !m_arePiecesKnown)
        description.oddities.push_back(description.name + ": not every row says its pieces in a whole number, so that "
                                                          "there are no sums of pieces");
    for (const ColumnTally& column : m_columns)
    {
        description.columns.push_back(column.description(description.numRows, description.hasPieces));
        for (std::string& text : column.oddities())
            description.oddities.push_back(std::move(text));
    }
    for (Finding& finding : m_handles.findings())
    {
        finding.source = m_source.name();
        description.oddities.push_back(messageOf(finding));
    }
    if (m_limit.isExceeded())
        description.oddities.push_back(description.name + ": more is odd than is told here");
    return description;
}

// A comma too many or too few shifts all cells behind it, so none of such a record is looked at.
void PartsDescriber::add(const Record& record)
{
    if (record.size() != m_columns.size())
        return m_oddRows.note(kNumCells,
                              [&]
                              {
                                  Finding finding = HeaderRow::wrongNumberOfFields(record.size(), m_columns.size());
                                  m_source.placeRecord(finding);
                                  return finding;
                              });
    if (isEmpty(record))
    {
        ++m_description.numEmptyRows;
        return;
    }
    ++m_description.numRows;
    const int numPieces = piecesOf(record);
    for (std::size_t i = 0; i < record.size(); ++i)
        if (!record[i].isNothing())
            m_columns[i].add(record[i], numPieces);
    if (m_handleColumn < m_columns.size())
        m_handles.add(m_parser.textOf(record[m_handleColumn]));
}

// 1 where the row does not say it. What it says and is no number makes all sums of pieces unknown.
int PartsDescriber::piecesOf(const Record& record)
{
    int numPieces = 1;
    if (m_piecesColumn == m_columns.size() || record[m_piecesColumn].isNothing())
        return numPieces;
    const RecordCell& cell = record[m_piecesColumn];
    m_arePiecesKnown = m_arePiecesKnown && !cell.isRefused() && m_parser.readWhole(cell, numPieces);
    return numPieces;
}
}
