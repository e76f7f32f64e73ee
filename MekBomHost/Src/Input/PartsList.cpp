#include "PartsList.h"

#include "ColumnName.h"
#include "Fault.h"
#include "FaultList.h"
#include "InputUnits.h"
#include "MessageText.h"
#include "PartsRows.h"
#include "Utf8.h"

#include "VorBomDataToken.h"
#include "VorBomTokenCatalogue.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const char* const kHandleToken = "%Handle";

// A field that holds separators of other kinds is most likely a whole header row.
std::string separatorHint(const std::string& field)
{
    for (const char separator : { ';', '\t', '|' })
        if (field.find(separator) != std::string::npos)
            return std::string(" (is the file separated by ") +
                   (separator == '\t' ? "tabs" : std::string(1, separator)) + "?)";
    return "";
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

const PartsColumn* PartsList::find(const std::string& token) const
{
    const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                    [&token](const PartsColumn& column) { return column.token == token; });
    return found == m_columns.end() ? nullptr : &*found;
}

void PartsList::setInputUnit(const std::string& token, const std::string& unit)
{
    const std::string option = "--input-unit " + token + "=" + unit + ": ";
    const auto pColumn = std::find_if(m_columns.begin(), m_columns.end(),
                                      [&token](const PartsColumn& column) { return column.token == token; });
    if (pColumn == m_columns.end())
        throw Fault(kWrongUsage, option + m_source.name() + " has no column " + inQuotes(token));
    if (!pColumn->unitSymbol.empty() && pColumn->unitSymbol != unit)
        throw Fault(kWrongUsage, option + "the column gives its unit already, " + inQuotes(pColumn->unitSymbol));
    pColumn->unitSymbol = unit;
    pColumn->unitIsFromUser = true;
}

void PartsList::readRows(VorBomTemplate& reportTemplate, const QueryFilter& filter)
{
    for (PartsColumn& column : m_columns)
    {
        resolveColumn(column, *reportTemplate.getBomTemplateUnits());
        column.isWanted = reportTemplate.isTokenRequired(column.tupleToken) || filter.names(column.tupleToken);
    }
    PartsRows rows(m_columns, m_source, *reportTemplate.getBomData());
    rows.reserveTuples(numFormulas(reportTemplate));
    if (find(kHandleToken) == nullptr && reportTemplate.isTokenRequired(Utf8::toWide(kHandleToken)))
        rows.numberRows(Utf8::toWide(kHandleToken));
    while (const Record* const pRecord = m_source.next())
        rows.add(*pRecord);
    rows.finish();
}

void PartsList::readHeader()
{
    const Record* const pHeader = m_source.next();
    if (pHeader == nullptr)
        throw Fault(kInvalidInput, m_source.name() + ": found nothing, expected a header row with column names");
    FaultList faults;
    m_headerPlace = m_source.name() + ":" + std::to_string(m_source.findingInRecord().begin.line) + ": ";
    for (const RecordCell& cell : *pHeader)
    {
        addColumn(cell.asText());
        const PartsColumn& column = m_columns.back();
        if (column.token == "%")
            faults.add(m_headerPlace + "found no name in field " + std::to_string(m_columns.size()) +
                       ", expected a column name");
        else if (find(column.token) != &column)
            faults.add(m_headerPlace + "found column " + inQuotes(column.token) + " a second time");
    }
    if (m_columns.size() == 1 && !separatorHint(m_columns[0].name).empty())
        faults.add(m_headerPlace + "found one column " + inQuotes(m_columns[0].name) +
                   ", expected commas between columns" + separatorHint(m_columns[0].name));
    faults.throwIfAny();
}

void PartsList::addColumn(const std::string& heading)
{
    const ColumnName name = ColumnName::parse(heading);
    PartsColumn column;
    column.name = heading;
    column.token = name.token;
    column.tupleToken = Utf8::toWide(name.token);
    column.unitSymbol = name.unit;
    column.isHandle = name.token == kHandleToken;
    m_columns.push_back(column);
}

void PartsList::resolveColumn(PartsColumn& column, const VorBomTemplateUnits& units) const
{
    column.type = column.isHandle ? VorBomDataValue::kStringData : typeInCatalogue(column.tupleToken);
    if (column.unitSymbol.empty())
        return resolveQuantities(column, InputUnits::ofModel(units.getUnitType(column.tupleToken)));
    if (column.type == VorBomDataValue::kUnknownData)
        column.type = VorBomDataValue::kDoubleData;
    resolveUnit(column, units);
}

void PartsList::resolveUnit(PartsColumn& column, const VorBomTemplateUnits& units) const
{
    const ExitStatus status = column.unitIsFromUser ? kWrongUsage : kInvalidInput;
    const std::string found = placeOfUnit(column) + "found unit " + inQuotes(column.unitSymbol) + ", expected ";
    if (column.type != VorBomDataValue::kDoubleData)
        throw Fault(status, found + "none: " + column.token +
                                (column.type == VorBomDataValue::kIntData ? " is a whole number" : " is a text"));
    const VorBomTemplateUnits::eTokenUnitType kind = units.getUnitType(column.tupleToken);
    column.unit = InputUnits::find(column.unitSymbol, kind);
    if (!column.unit)
        throw Fault(status, found + InputUnits::expectation(kind));
    column.takesPlainNumbers = InputUnits::takesPlainNumbers(*column.unit);
    column.isInModelUnit = InputUnits::isOfModel(*column.unit);
    resolveQuantities(column, column.unit);
}

// A cell may name another unit than its column, as long as it is of the same kind.
void PartsList::resolveQuantities(PartsColumn& column, const std::optional<MEKUnit>& unit)
{
    if (unit && column.type == VorBomDataValue::kDoubleData)
        column.quantities.emplace(unit->unit());
}

std::string PartsList::placeOfUnit(const PartsColumn& column) const
{
    if (column.unitIsFromUser)
        return "--input-unit " + column.token + "=" + column.unitSymbol + ": ";
    return m_headerPlace + "column " + inQuotes(column.name) + ": ";
}
}
