// One table for the seven kinds, in the order of VorUnitsTransformArray: the index of a system there is the index of
// its kind here, and kDistance is "length" because both come first. The types of tokens, such as kDistanceUnit, have
// other numbers, since some of them have no unit; their kinds are found by way of the system.
#include "UnitKinds.h"

#include <algorithm>
#include <cstddef>

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

const std::array<UnitKind, Systems::kNumSystems>& all()
{
    static constexpr std::array<UnitKind, Systems::kNumSystems> kKinds = { {
        // The model keeps areas in mm2, and what is per length or volume per mm. No file gives them so: hence their
        // usual units.
        { Systems::kDistance, "length", "distance", "a unit of distance such as mm, m, in or ft", "" },
        { Systems::kAngle, "angle", "", "a unit of angle such as rad or deg", "" },
        { Systems::kWeight, "weight", "", "a unit of weight such as kg or lb", "" },
        { Systems::kArea, "area", "", "a unit of area such as mm2, m2 or ft2", "m2" },
        { Systems::kWeightPerDistance, "weight-per-length", "weight-per-distance",
          "a unit of weight per distance such as kg/m or lb/ft", "kg/m" },
        { Systems::kAreaPerDistance, "area-per-length", "area-per-distance",
          "a unit of area per distance such as m2/m or ft2/ft", "m2/m" },
        { Systems::kDensity, "density", "", "a unit of density such as kg/m3 or lb/ft3", "kg/m3" },
    } };
    return kKinds;
}

// A kind without a second name has an empty one, which an empty word must not find.
const UnitKind* find(std::string_view name)
{
    return findIf([name](const UnitKind& kind)
                  { return !name.empty() && (name == kind.name || name == kind.otherName); });
}

const UnitKind* find(Units::eTokenUnitType type)
{
    return findIf([type](const UnitKind& kind) { return Units::unitTypeOf(kind.system) == type; });
}

// The table is in the order of the systems (see above), so the index of a system is that of its kind.
const UnitKind* find(Systems::eSystems system)
{
    const int index = Systems::indexOf(system);
    return index < 0 ? nullptr : &all()[static_cast<std::size_t>(index)];
}

// All types, those without a unit too: a template may say that a token has none.
const std::vector<std::string>& typeNames()
{
    static const std::vector<std::string> names = {
        "kNoUnit",      "kDistanceUnit",          "kWeightUnit",          "kAreaUnit",
        "kAngleUnit",   "kWeightPerDistanceUnit", "kAreaPerDistanceUnit", "kReservedUnitType",
        "kDensityUnit",
    };
    return names;
}

std::string names()
{
    std::string text;
    for (const UnitKind& kind : all())
        text += (text.empty() ? "" : ", ") + std::string(kind.name);
    return text;
}
}
