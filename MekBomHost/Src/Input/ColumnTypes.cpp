#include "ColumnTypes.h"

#include "FindingCodes.h"
#include "InQuotes.h"
#include "InputUnits.h"
#include "TokenNames.h"
#include "UnitKinds.h"

#include "VorBomTokenCatalogue.h"

#include <cstddef>

namespace mekbom
{
namespace
{
// A cell may name another unit than its column, as long as it is of the same kind.
void resolveQuantities(InputColumn& column, const std::optional<MEKUnit>& unit)
{
    if (unit && column.type == VorBomDataValue::kDoubleData)
        column.quantities.emplace(unit->unit());
}

Finding wrongUnit(const InputColumn& column, const FindingCode& code, const std::string& expected,
                  const std::string& remedy = std::string())
{
    Finding finding = Finding::of(code, "unit " + inQuotes(column.unitSymbol), expected);
    finding.remedy = remedy;
    return finding;
}
}

// The catalogue's tokens have their kinds, whatever the unit of the column.
void ColumnTypes::registerKinds(const std::vector<InputColumn>& columns, VorBomTemplateUnits& units)
{
    for (const InputColumn& column : columns)
    {
        const auto unit = InputUnits::find(column.unitSymbol, VorBomTemplateUnits::kNoUnit);
        if (unit && VorBomTokenCatalogue::find(column.tupleToken) == nullptr)
            units.AddTokenType(column.tupleToken, InputUnits::kindOf(*unit));
    }
}

// A unit makes numbers of a column that the catalogue does not know, since nobody gives texts in feet; so does a kind
// of quantity.
VorBomDataValue::eBomDataValueType ColumnTypes::typeOf(const InputColumn& column) const
{
    if (column.isHandle || column.token == TokenNames::kParent) // the identity of a row: its own, or another one's
        return VorBomDataValue::kStringData;
    if (const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(column.tupleToken))
        return pEntry->type;
    const auto own = m_ownTokens.find(column.token);
    if (own != m_ownTokens.end() && own->second == kOwnText)
        return VorBomDataValue::kStringData;
    const bool hasKind = UnitKinds::find(m_units.getUnitType(column.tupleToken)) != nullptr;
    const bool hasNumbers = hasKind || column.isRowTotal || !column.unitSymbol.empty();
    return hasNumbers ? VorBomDataValue::kDoubleData : VorBomDataValue::kUnknownData;
}

// Without a unit, numbers are in the model's unit of the kind that the template, or the catalogue, says they are: but
// nobody gives areas in mm2, though lengths in mm.
std::optional<Finding> ColumnTypes::resolve(InputColumn& column) const
{
    column.type = typeOf(column);
    const VorBomTemplateUnits::eTokenUnitType kind = m_units.getUnitType(column.tupleToken);
    if (!column.unitSymbol.empty())
        return resolveUnit(column, kind);
    resolveQuantities(column, InputUnits::ofModel(kind));
    if (column.quantities)
        column.lackingUnit = UnitKinds::find(kind)->usualUnit;
    return std::nullopt;
}

// All kinds have been registered, so a unit whose token has none is one that the template denies. The list would show
// its numbers as they are in the model, 2286 for 7.5 ft, and name no unit.
std::optional<Finding> ColumnTypes::resolveUnit(InputColumn& column, VorBomTemplateUnits::eTokenUnitType kind) const
{
    if (column.type != VorBomDataValue::kDoubleData)
        return wrongUnit(column, FindingCodes::kUnitOfNoQuantity, "none", statementOf(column));
    column.unit = InputUnits::find(column.unitSymbol, kind);
    if (!column.unit)
        return wrongUnit(column, FindingCodes::kColumnUnitUnknown, InputUnits::expectation(kind));
    if (kind == VorBomTemplateUnits::kNoUnit)
        return wrongUnit(column, FindingCodes::kColumnUnitUnknown, "none",
                         "the template says that " + column.token + " has no unit");
    column.takesPlainNumbers = InputUnits::takesPlainNumbers(*column.unit);
    column.isInModelUnit = InputUnits::isOfModel(*column.unit);
    resolveQuantities(column, column.unit);
    return std::nullopt;
}

std::string ColumnTypes::statementOf(const InputColumn& column)
{
    return column.token + (column.type == VorBomDataValue::kIntData ? " is a whole number" : " is a text");
}

// What is surely a number tells how numbers are written. Where none of these does, "12,50" in a column that nobody knows
// makes numbers of that column, and no more: what stands there may be texts, such as the 8.8 of a bolt, so that a
// weight of "1.234" is still refused.
NumberNotation ColumnTypes::notationOf(const std::vector<InputColumn>& columns, const RecordSource& source) const
{
    std::vector<std::size_t> ofNumbers;
    std::vector<std::size_t> ofAnything;
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        const VorBomDataValue::eBomDataValueType type = typeOf(columns[i]);
        if (type == VorBomDataValue::kUnknownData && columns[i].whyNumbers.empty())
            ofAnything.push_back(i);
        else if (type != VorBomDataValue::kStringData)
            ofNumbers.push_back(i);
    }
    NumberNotation notation = source.notationOf(ofNumbers);
    if (!notation.isOpen())
        return notation;
    const NumberNotation shown = source.notationOf(ofAnything);
    return shown.isSettled() ? NumberNotation(shown.sign(), NumberNotation::kOpen, shown.reason()) : notation;
}

std::optional<Finding> ColumnTypes::noteOfComma(const NumberNotation& notation, const RecordSource& source)
{
    if (notation.sign() != NumberNotation::kComma || notation.isChosen())
        return std::nullopt;
    Finding note = Finding::stating(FindingCodes::kDecimalComma, "numbers have a decimal comma, " + notation.reason());
    note.source = source.name();
    return note;
}
}
