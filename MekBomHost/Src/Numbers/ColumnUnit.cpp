#include "ColumnUnit.h"

#include "Utf8.h"

#include "MekUnits/Src/VorUnitDefinition.h"

#include <algorithm>

namespace mekbom::ColumnUnit
{
namespace
{
const int kFirstFraction = 1000; // formats from here on are fractions, as VorUnitTransform takes them
const int kMostDecimals = 9;     // that a format can ask for

// Every unit that a list is shown in is one of the catalogue, so that it is found there by its number.
const VorUnitDefinition& definitionOf(const MEKUnit& unit)
{
    return *VorUnitsTransformArray::findUnit(unit.unit());
}

// "decimals": 0 makes mm without decimals of mm; feet and inches to a sixteenth stay so, since sixteenths are no
// decimals.
MEKUnit withDecimals(const MEKUnit& unit, int decimals)
{
    if (decimals < 0 || !hasDecimals(unit))
        return unit;
    return MEKUnit(unit.unit(), unit.inputUnit(), std::min(decimals, kMostDecimals));
}
}

MEKUnit of(const ColumnStyle* pStyle, const UnitKind& kind, const VorUnitsManager& units)
{
    const MEKUnit& ofList = units.getUnit(kind.system);
    if (pStyle == nullptr)
        return ofList;
    return withDecimals(ownOf(*pStyle, kind).value_or(ofList), pStyle->decimals);
}

// Whether "m/2" is a unit of the kind is tried on units of no report: setUnit() reads it, with its precision, and
// refuses what is none. A text without a precision gets the one that its unit usually has.
std::optional<MEKUnit> ownOf(const ColumnStyle& style, const UnitKind& kind)
{
    VorUnitsManager units;
    if (style.unit.empty() || units.setUnit(kind.system, Utf8::toWide(style.unit)) == 0)
        return std::nullopt;
    return units.getUnit(kind.system);
}

bool hasDecimals(const MEKUnit& unit)
{
    return definitionOf(unit).layout == VorUnitDefinition::kPlainNumber && unit.format() < kFirstFraction;
}

std::string symbolOf(const MEKUnit& unit)
{
    return Utf8::toBytes(definitionOf(unit).symbol);
}
}
