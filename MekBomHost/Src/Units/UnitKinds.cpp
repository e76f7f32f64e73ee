#include "UnitKinds.h"

#include <algorithm>

namespace mekbom::UnitKinds
{
namespace
{
using Units = VorBomTemplateUnits;
using Systems = VorUnitsTransformArray;

template <class Predicate>
const UnitKind* findIf(const Predicate& isWanted)
{
    const auto found = std::find_if(all().begin(), all().end(), isWanted);
    return found == all().end() ? nullptr : &*found;
}
}

const std::vector<UnitKind>& all()
{
    static const std::vector<UnitKind> kinds = {
        { "length", "distance", Units::kDistanceUnit, Systems::kDistance,
          "a unit of distance such as mm, m, in or ft" },
        { "angle", "", Units::kAngleUnit, Systems::kAngle, "a unit of angle such as rad or deg" },
        { "weight", "", Units::kWeightUnit, Systems::kWeight, "a unit of weight such as kg or lb" },
        { "area", "", Units::kAreaUnit, Systems::kArea, "a unit of area such as mm2, m2 or ft2" },
        { "weight-per-length", "weight-per-distance", Units::kWeightPerDistanceUnit, Systems::kWeightPerDistance,
          "a unit of weight per distance such as kg/m or lb/ft" },
        { "area-per-length", "area-per-distance", Units::kAreaPerDistanceUnit, Systems::kAreaPerDistance,
          "a unit of area per distance such as m2/m or ft2/ft" },
        { "density", "", Units::kDensityUnit, Systems::kDensity, "a unit of density such as kg/m3 or lb/ft3" },
    };
    return kinds;
}

const UnitKind* find(std::string_view name)
{
    return findIf([name](const UnitKind& kind)
                  { return !name.empty() && (name == kind.name || name == kind.otherName); });
}

const UnitKind* find(Units::eTokenUnitType type)
{
    return findIf([type](const UnitKind& kind) { return kind.type == type; });
}

const UnitKind* find(Systems::eSystems system)
{
    return findIf([system](const UnitKind& kind) { return kind.system == system; });
}

std::string names()
{
    std::string text;
    for (const UnitKind& kind : all())
        text += (text.empty() ? "" : ", ") + std::string(kind.name);
    return text;
}
}
