#include "InputUnits.h"

#include "Utf8.h"

#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include <string_view>

namespace mekbom::InputUnits
{
namespace
{
using Units = VorBomTemplateUnits;
using Systems = VorUnitsTransformArray;

struct Kind
{
    Units::eTokenUnitType kind;
    Systems::eSystems system;
    std::string_view expectation;
};

const Kind kKinds[] = {
    { Units::kDistanceUnit, Systems::kDistance, "a unit of distance such as mm, m, in or ft" },
    { Units::kWeightUnit, Systems::kWeight, "a unit of weight such as kg or lb" },
    { Units::kAreaUnit, Systems::kArea, "a unit of area such as mm2, m2 or ft2" },
    { Units::kAngleUnit, Systems::kAngle, "a unit of angle such as rad or deg" },
    { Units::kWeightPerDistanceUnit, Systems::kWeightPerDistance,
      "a unit of weight per distance such as kg/m or lb/ft" },
    { Units::kAreaPerDistanceUnit, Systems::kAreaPerDistance, "a unit of area per distance such as m2/m or ft2/ft" },
    { Units::kDensityUnit, Systems::kDensity, "a unit of density such as kg/m3 or lb/ft3" },
};

const int kAnyDecimals = 2; // nothing is shown through an input unit
}

std::optional<MEKUnit> find(const std::string& symbol, Units::eTokenUnitType kind)
{
    const VorString wideSymbol = Utf8::toWide(symbol);
    int unit = 0;
    for (const Kind& known : kKinds)
        if ((kind == Units::kNoUnit || kind == known.kind) && symbol != "ft-in" &&
            Systems::findUnit(known.system, wideSymbol, unit) == 1)
            return MEKUnit(unit, unit, kAnyDecimals);
    return std::nullopt;
}

std::string expectation(Units::eTokenUnitType kind)
{
    for (const Kind& known : kKinds)
        if (known.kind == kind)
            return std::string(known.expectation);
    return "a unit such as mm, m, ft, kg, lb or m2";
}
}
