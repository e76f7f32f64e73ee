// What is beside feet and inches is in inches, and beside degrees and minutes in degrees; a plain unit whose numbers are
// shown in fractions keeps to itself:
//
//   5' 1/4"   ->  60.250 [in]          12°30'   ->  12.500 [°]          7 1/2 [in]   ->  7.500 [in]
#include "SheetColumn.h"

#include "ColumnUnit.h"
#include "NumberInValue.h"

#include "MekUnits/Src/VorUnitDefinition.h"

#include <algorithm>
#include <cmath>

namespace mekbom
{
namespace
{
const int kMostWidth = 60;       // arbitrary: longer texts go on in a further line of their cell
const int kDecimalsBeside = 3;   // arbitrary: a thousandth of an inch is finer than anybody cuts
const int kFirstFraction = 1000; // formats from here on are fractions, as VorUnitTransform takes them

const VorUnitDefinition& definitionOf(const MEKUnit& unit)
{
    return *VorUnitsTransformArray::findUnit(unit.unit());
}

bool isShownAsText(const MEKUnit& unit)
{
    return definitionOf(unit).layout != VorUnitDefinition::kPlainNumber || unit.format() >= kFirstFraction;
}

// The unit whose decimals say the same.
MEKUnit decimalUnitOf(const MEKUnit& unit)
{
    int number = unit.unit();
    const VorUnitDefinition& definition = definitionOf(unit);
    if (definition.layout == VorUnitDefinition::kFeetAndInches)
        VorUnitsTransformArray::findUnit(definition.system, L"in", number);
    if (definition.layout == VorUnitDefinition::kDegreesAndMinutes)
        VorUnitsTransformArray::findUnit(definition.system, L"deg", number);
    return MEKUnit(number, number, kDecimalsBeside);
}
}

SheetColumn::SheetColumn(const ReportColumn& column)
    : m_heading(column.heading()),
      m_isAlignedRight(column.isAlignedRight),
      m_textLimit(column.width > 0 ? column.width : kMostWidth)
{
    if (!column.unit)
        return;
    if (isShownAsText(*column.unit))
        addNumbersBeside(column);
    else if (definitionOf(*column.unit).isOfModel() == 0)
        m_unit = column.unit;
}

void SheetColumn::addNumbersBeside(const ReportColumn& column)
{
    m_besideUnit = decimalUnitOf(*column.unit);
    ReportColumn beside = column;
    beside.unit = m_besideUnit;
    beside.unitSymbol = ColumnUnit::symbolOf(*m_besideUnit);
    m_besideHeading = beside.heading();
}

// Whatever the unit, CellNumber holds the value against the text: what is not in the unit that is printed is not taken.
std::optional<CellNumber> SheetColumn::numberIn(const ShownText& text, const VorBomTypedValue& value) const
{
    if (!holdsNumber(value.type) || hasNumbersBeside())
        return std::nullopt;
    const double number = m_unit ? m_unit->getVorUnitTransform().toDisplayUnits(value.number) : value.number;
    return CellNumber::of(text.view(), number);
}

std::optional<CellNumber> SheetColumn::numberBeside(const VorBomTypedValue& value) const
{
    if (!holdsNumber(value.type))
        return std::nullopt;
    const double number = m_besideUnit->getVorUnitTransform().toDisplayUnits(value.number);
    return std::isfinite(number) ? std::optional(CellNumber{ number, kDecimalsBeside, 1 }) : std::nullopt;
}
}
