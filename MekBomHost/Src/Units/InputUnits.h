// The units in which a parts list may give its numbers: those of the units catalogue, by their symbols and names.
//
//   const std::optional<MEKUnit> feet = InputUnits::find("ft", VorBomTemplateUnits::kDistanceUnit);
//   feet->getVorUnitTransform().toInternalUnits(7.5)               ->  2286 mm
//   InputUnits::find("ft", VorBomTemplateUnits::kWeightUnit)       ->  nothing
//   InputUnits::ofModel(VorBomTemplateUnits::kWeightUnit)          ->  kg
//
// Which unit lists are printed in is another matter: UnitChoice.
#pragma once

#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/MEKUnit.h"

#include <optional>
#include <string>

namespace mekbom::InputUnits
{
// The unit written `symbol` that measures `kind`; of any kind for kNoUnit, since nothing is known then.
std::optional<MEKUnit> find(const std::string& symbol, VorBomTemplateUnits::eTokenUnitType kind);

// The unit that numbers of this kind are in when nobody names one; nothing for a type that has no unit.
std::optional<MEKUnit> ofModel(VorBomTemplateUnits::eTokenUnitType kind);

// What the unit measures, as the type of tokens that have such numbers.
VorBomTemplateUnits::eTokenUnitType kindOf(const MEKUnit& unit);

// Whether the model keeps its numbers in the unit.
bool isOfModel(const MEKUnit& unit);

// Whether numbers alone are quantities in the unit: not in feet and inches, nor in degrees, minutes and seconds.
bool takesPlainNumbers(const MEKUnit& unit);

// What a message says was expected:  "a unit of distance such as mm, m, in or ft"
std::string expectation(VorBomTemplateUnits::eTokenUnitType kind);

// What a message says was expected in a cell:  "a number", "feet and inches such as 7'-6 1/2\""
std::string cellExpectation(const MEKUnit& unit);
}
