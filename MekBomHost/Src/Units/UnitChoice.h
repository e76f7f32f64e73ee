// The units that a list is printed in, as the user chooses them.
//
//   UnitChoice::unitsOf("imperial", { { "weight", "kg/1" } })      feet and inches, but kilograms to one decimal
//   UnitChoice::unitsOf("shop.ini", {})                            those of a file:
//
//       ; what our shop reads
//       base = imperial            units of kinds that are not named: metric, without this line, or imperial
//       length = ft-in/32
//       area = m2/1
//
// Kinds are those of UnitKinds, units and precisions those of VorUnitNotation.
#pragma once

#include "MekRoots/Exp/VorUnitsManager.h"

#include <string>
#include <utility>
#include <vector>

namespace mekbom::UnitChoice
{
// `base` is kMetric, kImperial or a file's name; `choices` are pairs of kind and unit, the last of a kind holds. Throws
// a Fault for a word that is none of these and for a file that cannot be read or is malformed.
VorUnitsManager unitsOf(const std::string& base, const std::vector<std::pair<std::string, std::string>>& choices);

extern const char* const kMetric;
extern const char* const kImperial;
}
