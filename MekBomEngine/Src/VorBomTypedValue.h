// What stood under a token before it was turned into the text that a report shows, for outputs that keep numbers.
//
//   %Weight 12.5, shown in pounds as "27.56"   ->   kDoubleData, 12.5, kWeightUnit
//   %Formula:%Length*2 100.0, shown as "100"   ->   kDoubleData, 100.0, kDistanceUnit: that of its first token with one
//   %Quantity 3, shown as "3"                  ->   kIntData, 3.0, kNoUnit: whole numbers take no units
//   %Name "HEA200"                             ->   kStringData; the text is the one that is shown
//   a token without value                      ->   kUnknownData; nothing is shown
//
// Handed to a sink that asks for typed values, one for each tuple of a section and in their order. It owns nothing and
// is as good when copied; numbers have not been rounded for display, though results of formulas have six decimals.
#pragma once

#include "VorBomDataValue.h"
#include "VorBomTemplateUnits.h"

struct VorBomTypedValue
{
    VorBomDataValue::eBomDataValueType type = VorBomDataValue::kUnknownData;
    VorBomTemplateUnits::eTokenUnitType unitType = VorBomTemplateUnits::kNoUnit; // that the number was shown in
    double number = 0; // of kDoubleData in internal units; of kIntData the whole number, exactly; else 0
};
