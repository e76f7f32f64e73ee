// The units that a list is printed in, as the user chooses them.
//
//   UnitChoice::unitsOf("imperial", { { "weight", "kg/1" } })   ->  feet and inches, but kilograms to one decimal
//   UnitChoice::unitsOf(NamedText{ "shop.ini", text }, {})      ->  those of a file
//
// The text of such a file, where a base stands for all kinds that are not named and is metric if there is none:
//
//   ; what our shop reads
//   base = imperial
//   length = ft-in/32
//   area = m2/1
//
// Kinds are those of UnitKinds, units and precisions those of VorUnitNotation. The answer is a value: two reports in
// one process may have different ones.
#pragma once

#include "Finding.h"
#include "NamedText.h"
#include "UnitKinds.h"

#include "MekRoots/Exp/VorUnitsManager.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace mekbom::UnitChoice
{
using Choices = std::vector<std::pair<std::string, std::string>>; // kind and unit: "length", "ft-in/16"

// What is wrong with a word that should name a unit of that kind and does not: a finding without a place.
Finding unitUnknown(const std::string& unit, const UnitKind& kind);

extern const char* const kMetric;
extern const char* const kImperial;

// What is wrong with such a choice, without a place; nothing where it can be made.
std::optional<Finding> faultIn(const std::string& kind, const std::string& unit);

// Whether `word` names units to start from, kMetric or kImperial; if not, it is most likely the name of a file.
bool isBase(const std::string& word);

// The units of a base, or of a file, with `choices` over them, of which the last of a kind holds. Throws a Fault: of
// status kWrongUsage for a word that is no base, no kind or no unit, of kInvalidInput for a file that is malformed.
VorUnitsManager unitsOf(const std::string& base, const Choices& choices);
VorUnitsManager unitsOf(const NamedText& file, const Choices& choices);
}
