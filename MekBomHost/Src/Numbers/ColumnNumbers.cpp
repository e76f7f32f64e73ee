// Which number stands for 2286 mm depends on the unit that the list shows it in:
//
//   mm      2286        the model's own unit: no digit changes
//   m/2     2.286       what is shown as 2.29 is not rounded
//   ft-in   7.5 ft      7' 6" is shown; the number would be in inches, which no heading says
//
// Whole numbers have no unit where the engine shows them, and are as good as numbers of the model's unit where the
// column has a format of its own, as QuantityNumber takes them.
#include "ColumnNumbers.h"

#include "ColumnUnit.h"
#include "InputUnits.h"

#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include <cstddef>

namespace mekbom
{
namespace
{
using Units = VorBomTemplateUnits;

// The unit, or, where it is one that no single number is in, the one of its kind that people compute in.
MEKUnit numberUnitOf(const MEKUnit& unit)
{
    if (InputUnits::takesPlainNumbers(unit))
        return unit;
    const Units::eTokenUnitType type = InputUnits::kindOf(unit);
    return *InputUnits::find(type == Units::kDistanceUnit ? "ft" : "deg", type);
}

// As FormatChoice has it: such numbers are written by QuantityNumber, be they whole or not.
bool hasFormatOfItsOwn(const ColumnStyle* pStyle)
{
    return pStyle != nullptr && (!pStyle->unit.empty() || pStyle->decimals >= 0 || pStyle->hasThousands);
}
}

ColumnNumbers::ColumnNumbers(const ColumnStyle* pStyle, const VorUnitsManager& units, const UnitKind* pKindOfAll)
{
    for (const UnitKind& kind : UnitKinds::all())
    {
        const MEKUnit unit = numberUnitOf(ColumnUnit::of(pStyle, kind, units));
        m_units.push_back({ unit, ColumnUnit::symbolOf(unit) });
    }
    if (pKindOfAll != nullptr && hasFormatOfItsOwn(pStyle))
        m_typeOfWholeNumbers = Units::unitTypeOf(pKindOfAll->system);
}

// Adding zero takes the sign from a zero: "-0" is no number that a list shows.
double ColumnNumbers::of(const VorBomTypedValue& value) const
{
    const bool isWhole = value.type == VorBomDataValue::kIntData;
    const NumberUnit* const pUnit = find(isWhole ? m_typeOfWholeNumbers : value.unitType);
    if (pUnit == nullptr || InputUnits::isOfModel(pUnit->unit))
        return value.number + 0.0;
    return pUnit->unit.getVorUnitTransform().toDisplayUnits(value.number) + 0.0;
}

const std::string& ColumnNumbers::unitOf(VorBomTemplateUnits::eTokenUnitType type) const
{
    static const std::string kNoSymbol;
    const NumberUnit* const pUnit = find(type);
    return pUnit == nullptr ? kNoSymbol : pUnit->symbol;
}

const ColumnNumbers::NumberUnit* ColumnNumbers::find(VorBomTemplateUnits::eTokenUnitType type) const
{
    const UnitKind* const pKind = UnitKinds::find(type);
    if (pKind == nullptr || m_units.empty())
        return nullptr;
    return &m_units[static_cast<std::size_t>(VorUnitsTransformArray::indexOf(pKind->system))];
}
}
