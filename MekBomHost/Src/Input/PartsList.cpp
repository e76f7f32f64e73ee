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
#include "DataTokens.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "FindingList.h"
#include "HeaderRow.h"
#include "InQuotes.h"
#include "InputUnits.h"
#include "NearestWord.h"
#include "RowBuilder.h"
#include "TokenNames.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "VorBomDataToken.h"
#include "VorBomTokenCatalogue.h"

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

// What is wrong with "--map HEADING=TOKEN".
[[noreturn]] void failInMapping(const HeadingMapping& mapping, Finding finding)
{
    finding.source = "--map " + mapping.heading + "=" + mapping.token;
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

// What is twice: a token that is written so, or one that two headings stand for.
std::string againIn(const InputColumn& first, const InputColumn& second)
{
    if (first.origin == ColumnName::kWritten && second.origin == ColumnName::kWritten)
        return "column " + inQuotes(second.token) + " a second time";
    return "column " + inQuotes(second.token) + " twice, as " + inQuotes(first.name) + " and " + inQuotes(second.name);
}

// "%Name is a text"
std::string statementOf(const InputColumn& column)
{
    return column.token + (column.type == VorBomDataValue::kIntData ? " is a whole number" : " is a text");
}
}

PartsList::PartsList(RecordSource& source, const HeadingChoices& choices, unsigned numProcessors)
    : m_source(source), m_numProcessors(numProcessors)
{
    readHeader(choices);
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
    if (notation.sign() == NumberNotation::kComma && !notation.isChosen())
        m_findings.push_back(commaNote(notation));
    m_findings.insert(m_findings.end(), cells.findings().begin(), cells.findings().end());
    return facts;
}

// What is surely a number tells how numbers are written. Where none of these does, "12,50" in a column that nobody knows
// makes numbers of that column, and no more: what stands there may be texts, such as the 8.8 of a bolt, so that a
// weight of "1.234" is still refused.
NumberNotation PartsList::notation(const VorBomTemplateUnits& units) const
{
    std::vector<std::size_t> ofNumbers;
    std::vector<std::size_t> ofAnything;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        const VorBomDataValue::eBomDataValueType type = typeOf(m_columns[i], units);
        if (type == VorBomDataValue::kUnknownData && m_columns[i].whyNumbers.empty())
            ofAnything.push_back(i);
        else if (type != VorBomDataValue::kStringData)
            ofNumbers.push_back(i);
    }
    NumberNotation notation = m_source.notationOf(ofNumbers);
    if (!notation.isOpen())
        return notation;
    const NumberNotation shown = m_source.notationOf(ofAnything);
    return shown.isSettled() ? NumberNotation(shown.sign(), NumberNotation::kOpen, shown.reason()) : notation;
}

void PartsList::buildRows(CellReader& cells, VorBomData& data, int numFormulas)
{
    RowBuilder rows(data, m_columns.size());
    rows.reserveTuples(numFormulas);
    BatchesAhead batches(cells, m_columns.size(), m_numProcessors);
    while (const RowBatch* const pBatch = batches.next())
        rows.build(*pBatch);
}

// Before any row is read, so that the engine shows "Gap [in]" in the reader's units. The catalogue's tokens have their
// kinds, whatever the unit of the column.
void PartsList::registerKinds(VorBomTemplateUnits& units) const
{
    for (const InputColumn& column : m_columns)
    {
        const auto unit = InputUnits::find(column.unitSymbol, VorBomTemplateUnits::kNoUnit);
        if (unit && VorBomTokenCatalogue::find(column.tupleToken) == nullptr)
            units.AddTokenType(column.tupleToken, InputUnits::kindOf(*unit));
    }
}

Finding PartsList::commaNote(const NumberNotation& notation) const
{
    Finding note = Finding::stating(FindingCodes::kDecimalComma, "numbers have a decimal comma, " + notation.reason());
    note.source = m_source.name();
    return note;
}

bool PartsList::assumesUnits() const
{
    return std::any_of(m_columns.begin(), m_columns.end(),
                       [](const InputColumn& column) {
                           return column.isWanted && column.quantities && column.unitSymbol.empty() &&
                                  column.lackingUnit.empty();
                       });
}

void PartsList::readHeader(const HeadingChoices& choices)
{
    const Record& header = HeaderRow::read(m_source);
    std::vector<std::string> headings;
    for (const RecordCell& cell : header)
        headings.push_back(cell.asText());
    const ColumnNames names = ColumnNames::of(headings, choices);
    checkMappings(names);
    FindingList findings;
    for (std::size_t i = 0; i < headings.size(); ++i)
    {
        addColumn(headings[i], names.columns[i]);
        if (header[i].isRefused())
            addRefusal(header[i].refusal(), findings);
        else
            checkColumn(m_columns.back(), findings);
    }
    findings.throwIfAnyError();
}

void PartsList::checkMappings(const ColumnNames& names) const
{
    if (names.missing.empty())
        return;
    const HeadingMapping& mapping = names.missing.front();
    std::vector<std::string> labels;
    for (const ColumnName& column : names.columns)
        labels.push_back(column.label);
    Finding finding = Finding::stating(FindingCodes::kHeadingMissing,
                                       m_source.name() + " has no column " + inQuotes(mapping.heading));
    finding.remedy = NearestWord::question(mapping.heading, labels);
    failInMapping(mapping, finding);
}

// `column` is the last one so far.
// find() gives the first of the name: if that is another one, this one has the name a second time.
void PartsList::checkColumn(const InputColumn& column, FindingList& findings) const
{
    if (column.token == "%")
        addHeaderFinding(Finding::of(FindingCodes::kColumnWithoutName,
                                     "no name in field " + std::to_string(m_columns.size()), "a column name"),
                         findings);
    else if (const InputColumn* const pFirst = find(column.token); pFirst != &column)
        addHeaderFinding(Finding::of(FindingCodes::kColumnTwice, againIn(*pFirst, column)), findings);
}

// `finding` is about the heading of the last column so far.
void PartsList::addRefusal(Finding finding, FindingList& findings) const
{
    m_source.placeCell(m_columns.size() - 1, finding);
    findings.add(std::move(finding));
}

void PartsList::addHeaderFinding(Finding finding, FindingList& findings) const
{
    m_source.placeRecord(finding);
    findings.add(std::move(finding));
}

void PartsList::addColumn(const std::string& heading, const ColumnName& name)
{
    InputColumn column;
    column.name = heading;
    column.label = name.label;
    column.token = name.token;
    column.tupleToken = Utf8::toWide(name.token);
    column.unitSymbol = name.unit;
    column.isRowTotal = name.isRowTotal;
    column.origin = name.origin;
    column.doubt = name.doubt;
    column.isHandle = name.token == TokenNames::kHandle;
    column.isPieces = name.token == TokenNames::kPieces;
    m_indices.emplace(column.token, m_columns.size());
    m_columns.push_back(column);
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
    for (InputColumn& column : m_columns)
        if (column.isWanted || column.unitIsFromUser || column.isRowTotal)
        {
            resolveColumn(column, *reportTemplate.getBomTemplateUnits());
            column.whyNumbers = whyNumbers(column, computed);
        }
}

// Without a unit, numbers are in the model's unit of the kind that the template, or the catalogue, says they are: but
// nobody gives areas in mm2, though lengths in mm.
void PartsList::resolveColumn(InputColumn& column, const VorBomTemplateUnits& units) const
{
    column.type = typeOf(column, units);
    if (column.isRowTotal && column.type != VorBomDataValue::kDoubleData)
        failInRowTotal(column.token, Finding::stating(FindingCodes::kRowTotalOfNoNumber, statementOf(column)));
    const VorBomTemplateUnits::eTokenUnitType kind = units.getUnitType(column.tupleToken);
    if (!column.unitSymbol.empty())
        return resolveUnit(column, kind);
    resolveQuantities(column, InputUnits::ofModel(kind));
    if (column.quantities)
        column.lackingUnit = UnitKinds::find(kind)->usualUnit;
}

// A unit makes numbers of a column that the catalogue does not know, since nobody gives texts in feet; so does a kind
// of quantity.
VorBomDataValue::eBomDataValueType PartsList::typeOf(const InputColumn& column, const VorBomTemplateUnits& units) const
{
    if (column.isHandle || column.token == TokenNames::kParent) // the identity of a row: its own, or another one's
        return VorBomDataValue::kStringData;
    if (const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(column.tupleToken))
        return pEntry->type;
    const auto own = m_ownTokens.find(column.token);
    if (own != m_ownTokens.end() && own->second == kOwnText)
        return VorBomDataValue::kStringData;
    const bool hasKind = UnitKinds::find(units.getUnitType(column.tupleToken)) != nullptr;
    const bool hasNumbers = hasKind || column.isRowTotal || !column.unitSymbol.empty();
    return hasNumbers ? VorBomDataValue::kDoubleData : VorBomDataValue::kUnknownData;
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

// All kinds have been registered, so a unit whose token has none is one that the template denies. The list would show
// its numbers as they are in the model, 2286 for 7.5 ft, and name no unit.
void PartsList::resolveUnit(InputColumn& column, VorBomTemplateUnits::eTokenUnitType kind) const
{
    if (column.type != VorBomDataValue::kDoubleData)
        failInUnit(column, FindingCodes::kUnitOfNoQuantity, "none", statementOf(column));
    column.unit = InputUnits::find(column.unitSymbol, kind);
    if (!column.unit)
        failInUnit(column, FindingCodes::kColumnUnitUnknown, InputUnits::expectation(kind));
    if (kind == VorBomTemplateUnits::kNoUnit)
        failInUnit(column, FindingCodes::kColumnUnitUnknown, "none",
                   "the template says that " + column.token + " has no unit");
    column.takesPlainNumbers = InputUnits::takesPlainNumbers(*column.unit);
    column.isInModelUnit = InputUnits::isOfModel(*column.unit);
    resolveQuantities(column, column.unit);
}

// A cell may name another unit than its column, as long as it is of the same kind.
void PartsList::resolveQuantities(InputColumn& column, const std::optional<MEKUnit>& unit)
{
    if (unit && column.type == VorBomDataValue::kDoubleData)
        column.quantities.emplace(unit->unit());
}

// The record read last is still the header row.
void PartsList::failInUnit(const InputColumn& column, const FindingCode& code, const std::string& expected,
                           const std::string& remedy) const
{
    Finding finding = Finding::of(code, "unit " + inQuotes(column.unitSymbol), expected);
    finding.remedy = remedy;
    if (column.unitIsFromUser)
        failInOption(column.token, column.unitSymbol, finding);
    m_source.placeCell(static_cast<std::size_t>(&column - m_columns.data()), finding);
    finding.field = column.name;
    throw Fault(kInvalidInput, finding);
}
}
