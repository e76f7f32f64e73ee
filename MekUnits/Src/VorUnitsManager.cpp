#include "MekRoots/Exp/VorUnitsManager.h"

#include "MekRoots/Exp/VorAssert.h"
#include "VorUnitNotation.h"

#include <cstddef>

namespace
{
const wchar_t kSourcePath[] = L"MekUnits/Src/VorUnitsManager"; // named in assertion reports

// Reports a number that is no kind of quantity and answers -1.
int indexOf(VorUnitsTransformArray::eSystems system)
{
    const int index = VorUnitsTransformArray::indexOf(system);
    if (index < 0)
        VorAssert::vorAssert(L"isSystem( system )", kSourcePath, __LINE__);
    return index;
}
}

VorUnitsManager::VorUnitsManager() : VorUnitsManager(metric()) {}

// clang-format off
// Here and in imperial() the units stand in the order of kSystems: getUnit() finds them by their place alone.
VorUnitsManager VorUnitsManager::metric()
{
    return VorUnitsManager(Units{ { MEKUnit(3, 3, 1),          // mm
                                    MEKUnit(2006, 2006, 1),    // degree
                                    MEKUnit(1009, 1009, 2),    // kg
                                    MEKUnit(3003, 3003, 2),    // m²
                                    MEKUnit(4000, 4000, 2),    // kg/m
                                    MEKUnit(4100, 4100, 3),    // m²/m
                                    MEKUnit(7001, 7001, 0) } }); // kg/m³
}

VorUnitsManager VorUnitsManager::imperial()
{
    return VorUnitsManager(Units{ { MEKUnit(13, 13, 1016),     // feet and inches
                                    MEKUnit(2006, 2006, 1),    // degree
                                    MEKUnit(1021, 1021, 1),    // lb
                                    MEKUnit(3011, 3011, 2),    // ft²
                                    MEKUnit(4011, 4011, 2),    // lb/ft
                                    MEKUnit(4111, 4111, 2),    // ft²/ft
                                    MEKUnit(7011, 7011, 1) } }); // lb/ft³
}
// clang-format on

// A kind that is none gets the first unit, that of distance: a reference must name one.
const MEKUnit& VorUnitsManager::getUnit(VorUnitsTransformArray::eSystems system) const
{
    const int index = indexOf(system);
    return m_units[static_cast<std::size_t>(index < 0 ? 0 : index)];
}

// A unit of weight in the place of distances would show every length in kilograms, so it is refused.
void VorUnitsManager::setUnit(VorUnitsTransformArray::eSystems system, const MEKUnit& unit)
{
    const int index = indexOf(system);
    if (index < 0)
        return;
    if (unit.getVorUnitTransform().system() != system)
    {
        VorAssert::vorAssert(L"unit.system() == system", kSourcePath, __LINE__);
        return;
    }
    m_units[static_cast<std::size_t>(index)] = unit;
}

// The kind is looked at before the unit is set: "kg" for a distance is a mistake of the user and not one to report.
int VorUnitsManager::setUnit(VorUnitsTransformArray::eSystems system, const VorString& notation)
{
    MEKUnit unit = getUnit(system);
    if (VorUnitNotation::read(notation, unit) == 0 || unit.getVorUnitTransform().system() != system)
        return 0;
    setUnit(system, unit);
    return 1;
}
