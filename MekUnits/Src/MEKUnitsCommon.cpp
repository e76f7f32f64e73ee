// The current units are one VorUnitsManager behind a lock that many may share to read. Told on lengths:
//   at the start                          getUnitOfDistance() answers millimetres, those of metric()
//   setCurrentUnits(imperial())           copies all seven units at once
//   getUnitOfDistance()                   answers feet and inches; units handed out before stay what they are
#include "MekRoots/Exp/MEKUnitsCommon.h"

#include "MekRoots/Exp/VorUnitsManager.h"

#include <mutex>
#include <shared_mutex>

namespace
{
struct CurrentUnits
{
    std::shared_mutex mutex;
    VorUnitsManager units; // guarded by mutex
};

// Made at the first call, which may come from the initialisation of another library.
CurrentUnits& currentUnits()
{
    static CurrentUnits current;
    return current;
}

// A copy, since the current units may change once the lock is released.
int getUnitOf(VorUnitsTransformArray::eSystems system, MEKUnit& unit)
{
    CurrentUnits& current = currentUnits();
    const std::shared_lock<std::shared_mutex> lock(current.mutex);
    unit = current.units.getUnit(system);
    return 1;
}
}

int MEKUnitsCommon::getUnitOfDistance(MEKUnit& unit)
{
    return getUnitOf(VorUnitsTransformArray::kDistance, unit);
}

int MEKUnitsCommon::getUnitOfWeight(MEKUnit& unit)
{
    return getUnitOf(VorUnitsTransformArray::kWeight, unit);
}

int MEKUnitsCommon::getUnitOfArea(MEKUnit& unit)
{
    return getUnitOf(VorUnitsTransformArray::kArea, unit);
}

int MEKUnitsCommon::getUnitOfAngle(MEKUnit& unit)
{
    return getUnitOf(VorUnitsTransformArray::kAngle, unit);
}

int MEKUnitsCommon::getUnitOfWeightPerDistance(MEKUnit& unit)
{
    return getUnitOf(VorUnitsTransformArray::kWeightPerDistance, unit);
}

int MEKUnitsCommon::getUnitOfAreaPerDistance(MEKUnit& unit)
{
    return getUnitOf(VorUnitsTransformArray::kAreaPerDistance, unit);
}

int MEKUnitsCommon::getUnitOfDensity(MEKUnit& unit)
{
    return getUnitOf(VorUnitsTransformArray::kDensity, unit);
}

void MEKUnitsCommon::setCurrentUnits(const VorUnitsManager& units)
{
    CurrentUnits& current = currentUnits();
    const std::unique_lock<std::shared_mutex> lock(current.mutex);
    current.units = units;
}
