// The header row is read first and alone, since which template suits a parts list depends on its columns. What a column
// holds is settled when the rows are read, since the template may say of which kind the numbers of a token are:
//
//   heading "Length [ft]"                 token %Length, unit "ft"
//   the catalogue of tokens knows it      numbers, which the template shows as lengths
//   the unit is one of lengths            a cell 7.5 is 2286 mm; so is one that says 2286 mm
//   nothing asks for %Length              its cells are not looked at
#include "PartsList.h"

#include "BatchesAhead.h"
#include "CellReader.h"
#include "ColumnTypes.h"
#include "DataTokens.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "FindingList.h"
#include "HeaderColumns.h"
#include "InQuotes.h"
#include "RowBuilder.h"
#include "RowProgress.h"
#include "TokenNames.h"
#include "Utf8.h"

#include "VorBomDataToken.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace mekbom
{
namespace
{
// What is wrong with "--input-unit TOKEN=UNIT".
[[noreturn]] void failInOption(const std::string& token, const std::string& unit, Finding finding)
{
    finding.source = "--input-unit " + token + "=" + unit;
    throw Fault(kWrongUsage, finding);
}

// What is wrong with "--row-totals TOKEN".
[[noreturn]] void failInRowTotal(const std::string& token, Finding finding)
{
    finding.source = "--row-totals " + token;
    throw Fault(kWrongUsage, finding);
}

// What the template traces, and others beside it. Case counts: a template that asks for "%Length" has no use for a
// column "%length".
std::set<std::string> wantedTokens(VorBomTemplate& reportTemplate, const std::vector<VorString>& otherTokens)
{
    std::set<std::string> tokens;
    for (const VorString& token : reportTemplate.getTokenTrace())
        tokens.insert(Utf8::toBytes(token));
    for (const VorString& token : otherTokens)
        tokens.insert(Utf8::toBytes(token));
    return tokens;
}

// Each formula becomes a tuple of every row when the list is evaluated, so rows get room for them beforehand.
int numFormulas(VorBomTemplate& reportTemplate)
{
    int number = 0;
    for (const VorString& token : reportTemplate.getTokenTrace())
        number += VorBomDataToken::isFormula(token);
    return number;
}

bool isAmong(const std::vector<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}
}

PartsList::PartsList(RecordSource& source, const HeadingChoices& choices, unsigned numProcessors)
    : m_source(source), m_numProcessors(numProcessors)
{
    HeaderColumns header = HeaderColumns::read(source, choices);
    header.mistakes.throwIfAnyError();
    m_columns = std::move(header.columns);
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        m_indices.emplace(m_columns[i].token, i);
}

const InputColumn* PartsList::find(const std::string& token) const
{
    const auto found = m_indices.find(token);
    return found == m_indices.end() ? nullptr : &m_columns[found->second];
}

InputColumn* PartsList::findColumn(const std::string& token)
{
    const auto found = m_indices.find(token);
    return found == m_indices.end() ? nullptr : &m_columns[found->second];
}

bool PartsList::isInDoubt(const std::string& token) const
{
    return std::any_of(m_columns.begin(), m_columns.end(),
                       [&token](const InputColumn& column)
                       { return column.doubt && isAmong(column.doubt->tokens, token); });
}

std::optional<Finding> PartsList::readingOf(const std::set<std::string>& tokens) const
{
    std::string text;
    for (const InputColumn& column : m_columns)
        if (column.origin == ColumnName::kTable && tokens.count(column.token) > 0)
            text += (text.empty() ? "" : ", ") + inQuotes(column.name) + " -> " + column.token +
                    (column.isRowTotal ? " of all pieces" : "");
    if (text.empty())
        return std::nullopt;
    return Finding::saying(FindingCodes::kHeadingsRead, m_source.name() + ": " + text);
}

// To say again what the heading says is no mistake: a script may pass its units with files that name them and with
// files that do not.
void PartsList::setInputUnit(const std::string& token, const std::string& unit)
{
    InputColumn* const pColumn = findColumn(token);
    if (pColumn == nullptr)
        failInOption(token, unit,
                     Finding::stating(FindingCodes::kUnitOfMissingColumn,
                                      m_source.name() + " has no column " + inQuotes(token)));
    if (!pColumn->unitSymbol.empty() && pColumn->unitSymbol != unit)
        failInOption(token, unit,
                     Finding::stating(FindingCodes::kUnitGivenTwice,
                                      "the column gives its unit already, " + inQuotes(pColumn->unitSymbol)));
    pColumn->unitSymbol = unit;
    pColumn->unitIsFromUser = true;
}

void PartsList::setRowTotal(const std::string& token)
{
    InputColumn* const pColumn = findColumn(token);
    if (pColumn == nullptr)
        failInRowTotal(token, Finding::stating(FindingCodes::kRowTotalOfMissingColumn,
                                               m_source.name() + " has no column " + inQuotes(token)));
    pColumn->isRowTotal = true;
}

// Rows are numbered, or get their one piece, only where the list asks for it: neither is a column of the file, and what
// nobody wants costs memory in each row.
PartsFacts PartsList::readRows(VorBomTemplate& reportTemplate, const std::vector<VorString>& otherTokens)
{
    const std::set<std::string> wanted = wantedTokens(reportTemplate, otherTokens);
    refuseDoubts(wanted);
    registerKinds(*reportTemplate.getBomTemplateUnits());
    findWantedColumns(wanted);
    resolveColumns(reportTemplate);
    const NumberNotation notation = this->notation(*reportTemplate.getBomTemplateUnits());
    CellReader cells(m_columns, m_source);
    cells.setNotation(notation);
    if (find(TokenNames::kHandle) == nullptr && wanted.count(TokenNames::kHandle) > 0)
        cells.numberRows(Utf8::toWide(TokenNames::kHandle));
    if (wanted.count(TokenNames::kPieces) > 0)
        cells.countPieces(Utf8::toWide(TokenNames::kPieces));
    buildRows(cells, *reportTemplate.getBomData(), numFormulas(reportTemplate));
    PartsFacts facts = cells.finish(*reportTemplate.getBomData());
    if (const auto note = ColumnTypes::noteOfComma(notation, m_source))
        m_findings.push_back(*note);
    m_findings.insert(m_findings.end(), cells.findings().begin(), cells.findings().end());
    return facts;
}

NumberNotation PartsList::notation(const VorBomTemplateUnits& units) const
{
    return ColumnTypes(units, m_ownTokens).notationOf(m_columns, m_source);
}

void PartsList::buildRows(CellReader& cells, VorBomData& data, int numFormulas)
{
    RowBuilder rows(data, m_columns.size());
    rows.reserveTuples(numFormulas);
    BatchesAhead batches(cells, m_columns.size(), m_numProcessors);
    std::size_t numRows = 0;
    while (const RowBatch* const pBatch = batches.next())
    {
        rows.build(*pBatch);
        numRows += pBatch->numRows();
        if (m_pProgress != nullptr)
            m_pProgress->take(RowProgress::kReading, numRows);
    }
}

// Before any row is read, so that the engine shows "Gap [in]" in the reader's units.
void PartsList::registerKinds(VorBomTemplateUnits& units) const
{
    ColumnTypes::registerKinds(m_columns, units);
}

bool PartsList::assumesUnits() const
{
    return std::any_of(m_columns.begin(), m_columns.end(),
                       [](const InputColumn& column) {
                           return column.isWanted && column.quantities && column.unitSymbol.empty() &&
                                  column.lackingUnit.empty();
                       });
}

// The record read last is still the header row. What several columns are in doubt for is said once.
void PartsList::refuseDoubts(const std::set<std::string>& wantedTokens) const
{
    FindingList findings;
    std::set<std::string> said;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        const std::shared_ptr<const HeadingDoubt>& doubt = m_columns[i].doubt;
        const auto isWanted = [&wantedTokens](const std::string& token) { return wantedTokens.count(token) > 0; };
        if (!doubt || std::none_of(doubt->tokens.begin(), doubt->tokens.end(), isWanted) ||
            !said.insert(messageOf(doubt->finding)).second)
            continue;
        Finding finding = doubt->finding;
        m_source.placeCell(i, finding);
        findings.add(std::move(finding));
    }
    findings.throwIfAnyError();
}

// The number of pieces is wanted, too, where another column is divided by it.
void PartsList::findWantedColumns(const std::set<std::string>& wantedTokens)
{
    bool dividesByPieces = false;
    for (InputColumn& column : m_columns)
    {
        column.isWanted = wantedTokens.count(column.token) > 0;
        dividesByPieces = dividesByPieces || (column.isWanted && column.isRowTotal);
    }
    if (InputColumn* const pPieces = dividesByPieces ? findColumn(TokenNames::kPieces) : nullptr)
        pPieces->isWanted = true;
}

// All that a cell needs to know of the template is settled here, once for each column; CellReader asks no template.
// What the heading of a column says that nobody wants is not looked at, and may be wrong, unlike what the user says.
void PartsList::resolveColumns(VorBomTemplate& reportTemplate)
{
    const std::set<std::string> computed = DataTokens::computedWith(reportTemplate);
    const ColumnTypes types(*reportTemplate.getBomTemplateUnits(), m_ownTokens);
    for (InputColumn& column : m_columns)
        if (column.isWanted || column.unitIsFromUser || column.isRowTotal)
        {
            resolveColumn(column, types);
            column.whyNumbers = whyNumbers(column, computed);
        }
}

void PartsList::resolveColumn(InputColumn& column, const ColumnTypes& types) const
{
    column.type = types.typeOf(column);
    if (column.isRowTotal && column.type != VorBomDataValue::kDoubleData)
        failInRowTotal(column.token,
                       Finding::stating(FindingCodes::kRowTotalOfNoNumber, ColumnTypes::statementOf(column)));
    if (const auto finding = types.resolve(column))
        failInUnit(column, *finding);
}

// Only of columns whose content would else decide what they hold.
std::string PartsList::whyNumbers(const InputColumn& column, const std::set<std::string>& computed) const
{
    if (column.type != VorBomDataValue::kUnknownData)
        return std::string();
    if (m_ownTokens.count(column.token) > 0)
        return "the template says that " + column.token + " is a number";
    return computed.count(column.token) > 0 ? "the list computes with " + column.token : std::string();
}

// The record read last is still the header row.
void PartsList::failInUnit(const InputColumn& column, Finding finding) const
{
    if (column.unitIsFromUser)
        failInOption(column.token, column.unitSymbol, finding);
    m_source.placeCell(static_cast<std::size_t>(&column - m_columns.data()), finding);
    finding.field = column.name;
    throw Fault(kInvalidInput, finding);
}
}
