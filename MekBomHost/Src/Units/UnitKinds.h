// The kinds of quantity that parts lists carry and lists show, by the words that users have for them.
//
//   UnitKinds::find("length")->system                                ->  VorUnitsTransformArray::kDistance
//   UnitKinds::find(VorBomTemplateUnits::kWeightUnit)->expectation   ->  "a unit of weight such as kg or lb"
//
// Here the three ways meet in which kinds are told: the words of users, the types that template files and tokens have,
// and the systems of the units catalogue. Nothing else in the program pairs them.
#pragma once

#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
struct UnitKind
{
    const char* name;      // as the command line and units files have it
    const char* otherName; // a second word for the same; empty without one
    VorBomTemplateUnits::eTokenUnitType type;
    VorUnitsTransformArray::eSystems system;
    const char* expectation; // what a message says was expected
};

namespace UnitKinds
{
// In the order in which they are listed to users.
const std::vector<UnitKind>& all();

// The kind of that name or number, which lives as long as the program; null when there is none. Types without a unit,
// kNoUnit and kReservedUnitType, have none. Names are taken as written, case included.
const UnitKind* find(std::string_view name);
const UnitKind* find(VorBomTemplateUnits::eTokenUnitType type);
const UnitKind* find(VorUnitsTransformArray::eSystems system);

// "length, angle, weight ..."
std::string names();
}
}
