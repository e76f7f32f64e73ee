// The words that users have for the kinds of quantity which parts lists carry and lists show.
//
//   UnitKinds::find("length")->system                                ->  VorUnitsTransformArray::kDistance
//   UnitKinds::find(VorBomTemplateUnits::kWeightUnit)->expectation   ->  "a unit of weight such as kg or lb"
//   UnitKinds::typeNames()[VorBomTemplateUnits::kWeightUnit]         ->  "kWeightUnit"
//
// Which kinds there are, and in which order, is VorUnitsTransformArray's to say; which type of token belongs to which
// of them, VorBomTemplateUnits'. Here they only get names. All answers live as long as the program.
#pragma once

#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
struct UnitKind
{
    VorUnitsTransformArray::eSystems system;
    const char* name;        // as the command line and units files have it: "length"
    const char* otherName;   // a second word for the same, "distance"; empty without one
    const char* expectation; // what a message says was expected
    const char* usualUnit;   // "m2", which files mean where they name no unit; empty where that is the model's
};

namespace UnitKinds
{
// All kinds, in the order of VorUnitsTransformArray::kSystems, in which they are also listed to users.
const std::array<UnitKind, VorUnitsTransformArray::kNumSystems>& all();

// The kind that is called so by either name, taken as written, case included; null when none is.
const UnitKind* find(std::string_view name);

// The kind that the engine numbers so; null for a number that is none, and for the types that have no unit: kNoUnit and
// kReservedUnitType.
const UnitKind* find(VorBomTemplateUnits::eTokenUnitType type);
const UnitKind* find(VorUnitsTransformArray::eSystems system);

// What template files call the types of tokens: the name of each eTokenUnitType, by its number.
const std::vector<std::string>& typeNames();

// "length, angle, weight ...": what a message says a kind may be.
std::string names();
}
}
