// The header row is read first and alone, since which template suits a parts list depends on its columns. What a column
// holds is settled when the rows are read, since the template may say of which kind the numbers of a token are:
//
//   heading "Length [ft]"                 token %Length, unit "ft"
//   the catalogue of tokens knows it      numbers, which the template shows as lengths
//   the unit is one of lengths            a cell 7.5 is 2286 mm; so is one that says 2286 mm
//   nothing asks for %Length              its cells are checked all the same, and no row gets a datum of them
#include "PartsList.h"

#include "CellReader.h"
#include "ColumnHeading.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "FindingList.h"
#include "InQuotes.h"
#include "InputUnits.h"
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
const char* const kHandleToken = "%Handle";

// What is wrong with "--input-unit TOKEN=UNIT".
[[noreturn]] void failInOption(const std::string& token, const std::string& unit, Finding finding)
{
    finding.source = "--input-unit " + token + "=" + unit;
    throw Fault(kWrongUsage, finding);
}

int numFormulas(VorBomTemplate& reportTemplate)
{
    int number = 0;
    for (const VorString& token : reportTemplate.getTokenTrace())
        number += VorBomDataToken::isFormula(token);
    return number;
}

VorBomDataValue::eBomDataValueType typeInCatalogue(const VorString& token)
{
    const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(token);
    return pEntry == nullptr ? VorBomDataValue::kUnknownData : pEntry->type;
}
}

PartsList::PartsList(RecordSource& source) : m_source(source)
{
    readHeader();
}

const InputColumn* PartsList::find(const std::string& token) const
{
    const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                    [&token](const InputColumn& column) { return column.token == token; });
    return found == m_columns.end() ? nullptr : &*found;
}

// To say again what the heading says is no mistake: a script may pass its units with files that name them and with
// files that do not.
void PartsList::setInputUnit(const std::string& token, const std::string& unit)
{
    const auto pColumn = std::find_if(m_columns.begin(), m_columns.end(),
                                      [&token](const InputColumn& column) { return column.token == token; });
    if (pColumn == m_columns.end())
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

// All that a cell needs to know of the template is settled here, once for each column; CellReader asks no template.
void PartsList::readRows(VorBomTemplate& reportTemplate, const std::vector<VorString>& otherTokens)
{
    for (InputColumn& column : m_columns)
    {
        resolveColumn(column, *reportTemplate.getBomTemplateUnits());
        column.isWanted = reportTemplate.isTokenRequired(column.tupleToken) ||
                          std::find(otherTokens.begin(), otherTokens.end(), column.tupleToken) != otherTokens.end();
    }
    CellReader cells(m_columns, m_source, *reportTemplate.getBomData());
    cells.reserveTuples(numFormulas(reportTemplate));
    if (find(kHandleToken) == nullptr && reportTemplate.isTokenRequired(Utf8::toWide(kHandleToken)))
        cells.numberRows(Utf8::toWide(kHandleToken));
    while (const Record* const pRecord = m_source.next())
        cells.read(*pRecord);
    cells.finish();
}

void PartsList::readHeader()
{
    const Record* const pHeader = m_source.next();
    if (pHeader == nullptr)
        failWithoutHeader();
    FindingList findings;
    for (const RecordCell& cell : *pHeader)
    {
        addColumn(cell.asText());
        checkColumn(m_columns.back(), findings);
    }
    if (m_columns.size() == 1)
        checkSeparator(m_columns.front(), findings);
    findings.throwIfAnyError();
}

void PartsList::failWithoutHeader() const
{
    Finding finding = Finding::of(FindingCodes::kNoHeaderRow, "nothing", "a header row with column names");
    finding.source = m_source.name();
    throw Fault(kInvalidInput, finding);
}

// `column` is the last one so far.
// find() gives the first of the name: if that is another one, this one has the name a second time.
void PartsList::checkColumn(const InputColumn& column, FindingList& findings) const
{
    if (column.token == "%")
        addHeaderFinding(Finding::of(FindingCodes::kColumnWithoutName,
                                     "no name in field " + std::to_string(m_columns.size()), "a column name"),
                         findings);
    else if (find(column.token) != &column)
        addHeaderFinding(Finding::of(FindingCodes::kColumnTwice, "column " + inQuotes(column.token) + " a second time"),
                         findings);
}

// A single column that holds separators of other kinds is most likely a whole header row.
void PartsList::checkSeparator(const InputColumn& column, FindingList& findings) const
{
    const std::size_t separator = column.name.find_first_of(";\t|");
    if (separator == std::string::npos)
        return;
    const std::string name = column.name[separator] == '\t' ? "tabs" : column.name.substr(separator, 1);
    addHeaderFinding(Finding::of(FindingCodes::kOtherSeparator, "one column " + inQuotes(column.name),
                                 "commas between columns (is the file separated by " + name + "?)"),
                     findings);
}

void PartsList::addHeaderFinding(Finding finding, FindingList& findings) const
{
    m_source.placeRecord(finding);
    findings.add(std::move(finding));
}

void PartsList::addColumn(const std::string& heading)
{
    const ColumnHeading name = ColumnHeading::parse(heading);
    InputColumn column;
    column.name = heading;
    column.token = name.token;
    column.tupleToken = Utf8::toWide(name.token);
    column.unitSymbol = name.unit;
    column.isHandle = name.token == kHandleToken;
    m_columns.push_back(column);
}

// A unit makes numbers of a column that the catalogue does not know: nobody gives texts in feet. Without one, numbers
// are in the model's unit of the kind that the template, or the catalogue, says they are.
void PartsList::resolveColumn(InputColumn& column, const VorBomTemplateUnits& units) const
{
    column.type = column.isHandle ? VorBomDataValue::kStringData : typeInCatalogue(column.tupleToken);
    if (column.unitSymbol.empty())
        return resolveQuantities(column, InputUnits::ofModel(units.getUnitType(column.tupleToken)));
    if (column.type == VorBomDataValue::kUnknownData)
        column.type = VorBomDataValue::kDoubleData;
    resolveUnit(column, units);
}

void PartsList::resolveUnit(InputColumn& column, const VorBomTemplateUnits& units) const
{
    if (column.type != VorBomDataValue::kDoubleData)
    {
        const bool isWhole = column.type == VorBomDataValue::kIntData;
        failInUnit(column, FindingCodes::kUnitOfNoQuantity, "none",
                   column.token + (isWhole ? " is a whole number" : " is a text"));
    }
    const VorBomTemplateUnits::eTokenUnitType kind = units.getUnitType(column.tupleToken);
    column.unit = InputUnits::find(column.unitSymbol, kind);
    if (!column.unit)
        failInUnit(column, FindingCodes::kColumnUnitUnknown, InputUnits::expectation(kind));
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
