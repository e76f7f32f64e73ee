// The numbers of a column as numbers, in the units that the list shows them in: for formats in which a number is more
// than a text of digits.
//
//   const ColumnNumbers lengths(pStyle, units, nullptr);         of a column in metres, or of a list in feet and inches
//   lengths.of({ VorBomDataValue::kDoubleData, VorBomTemplateUnits::kDistanceUnit, 2286 })    ->  2.286, or 7.5
//   lengths.unitOf(VorBomTemplateUnits::kDistanceUnit)                                        ->  "m", or "ft"
//
// Nothing is rounded. Feet and inches are no unit that one number could be in, and neither are degrees, minutes and
// seconds: their numbers are in feet and in degrees.
#pragma once

#include "ReportTemplate.h"
#include "UnitKinds.h"

#include "VorBomTypedValue.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekRoots/Exp/VorUnitsManager.h"

#include <string>
#include <vector>

namespace mekbom
{
class ColumnNumbers
{
public:
    // Those of numbers without any unit.
    ColumnNumbers() = default;

    // `pStyle` is that of the column; null for one that the template does not describe. `units` are those of the list.
    // `pKindOfAll` is the kind of all numbers of the column; null where they have none, or several. Neither is looked at
    // later.
    ColumnNumbers(const ColumnStyle* pStyle, const VorUnitsManager& units, const UnitKind* pKindOfAll);

    // The number of a value that is one, in the unit that unitOf() names for it. Infinite and undefined values stay.
    double of(const VorBomTypedValue& value) const;

    // The symbol of the unit that numbers of that type are in, in UTF-8; empty for a type that has no unit.
    const std::string& unitOf(VorBomTemplateUnits::eTokenUnitType type) const;

private:
    struct NumberUnit
    {
        MEKUnit unit;
        std::string symbol;
    };

    const NumberUnit* find(VorBomTemplateUnits::eTokenUnitType type) const;

    std::vector<NumberUnit> m_units; // in the order of UnitKinds::all(); none for a column without units
    VorBomTemplateUnits::eTokenUnitType m_typeOfWholeNumbers = VorBomTemplateUnits::kNoUnit;
};
}
