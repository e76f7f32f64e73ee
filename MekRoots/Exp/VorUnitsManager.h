// One unit for each kind of quantity: the units in which somebody reads a list.
//
//   VorUnitsManager units = VorUnitsManager::imperial();
//   units.setUnit(VorUnitsTransformArray::kWeight, L"kg/1");     // kilograms all the same, to one decimal
//   units.getUnit(VorUnitsTransformArray::kDistance)                        ->  feet and inches to 1/16"
//
// A plain value: copies are independent, and one object is for one thread at a time. The units that all threads share
// are those of MEKUnitsCommon.
#pragma once

#include "MEKUnit.h"
#include "MekExport.h"
#include "VorUnitsTransformArray.h"

#include <array>

class MEK_UNITS_API VorUnitsManager
{
public:
    // As metric().
    VorUnitsManager();

    // mm to 1 decimal, kg 2, m² 2, degree 1, kg/m 2, m²/m 3, kg/m³ none: what a shop cuts, weighs and paints by.
    static VorUnitsManager metric();

    // Feet and inches to 1/16", lb to 1 decimal, ft² 2, degree 1, lb/ft 2, ft²/ft 2, lb/ft³ 1.
    static VorUnitsManager imperial();

    // Valid as long as this object. Reports "isSystem( system )" for a number that is no kind of quantity and gives the
    // unit of distance.
    const MEKUnit& getUnit(VorUnitsTransformArray::eSystems system) const;

    // Reports "unit.system() == system" for a unit of another kind, and "isSystem( system )" as getUnit does; nothing
    // changes then.
    void setUnit(VorUnitsTransformArray::eSystems system, const MEKUnit& unit);

    // Takes the unit and the precision that VorUnitNotation reads; 0 with nothing changed, and nothing reported, when
    // there is no such unit of this kind.
    int setUnit(VorUnitsTransformArray::eSystems system, const VorString& notation);

private:
    using Units = std::array<MEKUnit, VorUnitsTransformArray::kNumSystems>; // in the order of kSystems

    explicit VorUnitsManager(const Units& units) : m_units(units) {}

    Units m_units;
};
