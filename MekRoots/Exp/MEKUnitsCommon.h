// The current units of the process, in which new templates show their numbers.
//
//   MEKUnitsCommon::setCurrentUnits(VorUnitsManager::imperial());
//   MEKUnit length(3, 3, 2);
//   MEKUnitsCommon::getUnitOfDistance(length);     // length is now feet and inches to 1/16"
//
// They start as VorUnitsManager::metric(). Shared by all threads and safe to read and set from all of them; a reader
// that asks for several kinds while they are being set may see old and new ones side by side.
#pragma once

#include "MEKUnit.h"
#include "MekExport.h"

class VorUnitsManager;

class MEK_UNITS_API MEKUnitsCommon
{
public:
    // Each replaces `unit` by the current unit of its kind and answers 1.
    static int getUnitOfDistance(MEKUnit& unit);
    static int getUnitOfWeight(MEKUnit& unit);
    static int getUnitOfArea(MEKUnit& unit);
    static int getUnitOfAngle(MEKUnit& unit);
    static int getUnitOfWeightPerDistance(MEKUnit& unit);
    static int getUnitOfAreaPerDistance(MEKUnit& unit);
    static int getUnitOfDensity(MEKUnit& unit);

    // Takes a copy.
    static void setCurrentUnits(const VorUnitsManager& units);
};
