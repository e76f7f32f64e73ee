// The text of a number that the program has made of the engine's, as the engine would show it.
//
//   textOfNumber({ VorBomDataValue::kIntData, kNoUnit, 5e9 }, nullptr, units)           ->  "5000000000"
//   textOfNumber({ VorBomDataValue::kDoubleData, kWeightUnit, 2.5 }, nullptr, units)    ->  "2.5", in the unit of weights
#pragma once

#include "VorBomNumberFormat.h"
#include "VorBomTemplateUnits.h"
#include "VorBomTypedValue.h"

namespace mekbom
{
// `pFormat` is that of the number's tuple; null where the template's units show its numbers.
VorString textOfNumber(const VorBomTypedValue& value, const VorBomNumberFormat* pFormat,
                       const VorBomTemplateUnits& units);
}
