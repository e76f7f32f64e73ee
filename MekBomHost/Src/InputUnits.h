// The units in which a parts list may give its numbers: those of the units catalogue, by their symbols.
//
//   InputUnits::find("ft", kDistanceUnit)->getVorUnitTransform().toInternalUnits(7.5)   ->  2286 mm
//   InputUnits::find("ft", kWeightUnit)                                                 ->  nothing
//
// "ft-in" is none of them: it is a way to write lengths, not a unit of plain numbers.
#pragma once

#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/MEKUnit.h"

#include <optional>
#include <string>

namespace mekbom::InputUnits
{
// The unit written `symbol` that measures `kind`; of any kind for kNoUnit, since nothing is known then.
std::optional<MEKUnit> find(const std::string& symbol, VorBomTemplateUnits::eTokenUnitType kind);

// What a message says was expected:  "a unit of distance such as mm, m, in or ft"
std::string expectation(VorBomTemplateUnits::eTokenUnitType kind);
}
