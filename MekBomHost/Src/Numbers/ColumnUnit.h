// The unit, with its precision, that the quantities of one column are shown in: the column's own where the template
// gives it one, else that of the list.
//
//   { "token": "%SumBy:%Length", "unit": "m/2" }   in a list in mm   ->   m to two decimals
//   { "token": "%Length", "decimals": 0 }          in a list in mm   ->   mm without decimals
//                                                  in feet and inches   ->   as precise as they are
#pragma once

#include "ReportTemplate.h"
#include "UnitKinds.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekRoots/Exp/VorUnitsManager.h"

#include <optional>
#include <string>

namespace mekbom::ColumnUnit
{
// The unit for quantities of that kind in a column of this style, which may be null for one that the template does not
// describe; the list's when the column's own is no unit of the kind. Decimals are for units that are shown with
// decimals: feet and inches, fractions, and degrees and minutes keep their precision.
MEKUnit of(const ColumnStyle* pStyle, const UnitKind& kind, const VorUnitsManager& units);

// The column's own unit; nothing when it has none, or none of that kind.
std::optional<MEKUnit> ownOf(const ColumnStyle& style, const UnitKind& kind);

// Whether numbers in the unit are shown as decimals, and not in feet and inches, in fractions, or in degrees and minutes.
bool hasDecimals(const MEKUnit& unit);

// The symbol of a unit of the catalogue, in UTF-8.
std::string symbolOf(const MEKUnit& unit);
}
