// What the numbers and texts in a column of a table are.
//
//   ColumnType::datumOf("%SumBy:%Weight")              ->  "%Weight"
//   ColumnType::typeOf(data, "%SumBy:%Weight")         ->  kDoubleData
//   ColumnType::unitTypeOf(units, "%Formula:%Length/2") -> kDistanceUnit
#pragma once

#include "VorBomData.h"
#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/VorString.h"

namespace mekbom::ColumnType
{
// The token that a total sums; any other token as it is.
VorString datumOf(const VorString& token);

// The type of the values under `token`: a number for formulas, as the catalogue of tokens says for those it knows, and
// for others that of the first row that has the datum; kUnknownData when none has.
VorBomDataValue::eBomDataValueType typeOf(const VorBomData& data, const VorString& token);

// The kind of quantity that the engine shows the doubles under `token` as. A formula without a kind of its own has that
// of its first token that has one.
VorBomTemplateUnits::eTokenUnitType unitTypeOf(const VorBomTemplateUnits& units, const VorString& token);
}
