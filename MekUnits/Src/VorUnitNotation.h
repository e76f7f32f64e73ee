// A unit and how precisely it is shown, in one word as users write it.
//
//   MEKUnit unit(3, 3, 1);
//   VorUnitNotation::read(L"ft-in/16", unit)   ->  1, unit is feet and inches to 1/16"
//   VorUnitNotation::write(unit)               ->  "ft-in/16"
//
//   "lb/1"        pounds to one decimal
//   "ft-in/16"    feet and inches to 1/16"; their precision is a fraction's denominator, 1 being whole inches
//   "ft-in/.2"    feet and inches to two decimals of an inch: a point asks for decimals wherever it stands
//   "in/1/16"     inches to 1/16: so is a fraction asked for in other units
//   "m2", "lb/ft" as precisely as the unit is usually shown
//
// Units are written as VorUnitsTransformArray::findUnit takes them. Decimals are 0 to 9, denominators 1 to 256.
#pragma once

#include "MekRoots/Exp/MEKUnit.h"
#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorString.h"

class MEK_UNITS_API VorUnitNotation
{
public:
    // 0 with `unit` untouched when there is no such unit or no such precision. The unit of input is the unit itself.
    static int read(const VorString& text, MEKUnit& unit);

    // The word that reads as this unit, in ASCII and with its precision; empty for a unit that is not in the catalogue.
    static VorString write(const MEKUnit& unit);
};
