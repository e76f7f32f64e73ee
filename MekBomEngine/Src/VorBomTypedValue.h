// What stood under a token before it was turned into the text that a report shows, for outputs that keep numbers.
//
//   %Weight 12.5, shown in pounds as "27.56"   ->   kDoubleData, 12.5, kWeightUnit
//   %Formula:%Length*2 100.0, shown as "100"   ->   kDoubleData, 100.0, kDistanceUnit: that of its first token with one
//   %Quantity 3, shown as "3"                  ->   kIntData, 3.0, kNoUnit: whole numbers take no units; whole 3
//   %SumBy:%Quantity of ints, "3e+09"          ->   kDoubleData, 3e9, kNoUnit, and whole 3000000000
//   %Name "HEA200"                             ->   kStringData; the text is the one that is shown
//   a token without value                      ->   kUnknownData; nothing is shown
//
// Handed to a sink that asks for typed values, one for each tuple of a section and in their order. It owns nothing and
// is as good when copied; numbers have not been rounded for display, though results of formulas have six decimals.
#pragma once

#include "VorBomDataValue.h"
#include "VorBomTemplateUnits.h"

#include <cstdint>

struct VorBomTypedValue
{
    VorBomDataValue::eBomDataValueType type = VorBomDataValue::kUnknownData;
    VorBomTemplateUnits::eTokenUnitType unitType = VorBomTemplateUnits::kNoUnit; // that the number was shown in
    double number = 0; // of kDoubleData in internal units; of kIntData the whole number, exactly; else 0

    // A kIntData, or a total to which nothing but ints was added and which is a double since it left their range:
    // `whole` is that number with all its digits. The sum of as many ints as there can be rows fits it. Never set for
    // other doubles, however whole: what they were rounded from nobody knows.
    bool isWhole = false;
    std::int64_t whole = 0;
};
