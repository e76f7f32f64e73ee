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

const VorUnitDefinition& definitionOf(const MEKUnit& unit)
{
    return *VorUnitsTransformArray::findUnit(unit.unit());
}

MEKUnit withDecimals(const MEKUnit& unit, int decimals)
{
    const bool hasDecimals =
        definitionOf(unit).layout == VorUnitDefinition::kPlainNumber && unit.format() < kFirstFraction;
    if (decimals < 0 || !hasDecimals)
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

std::optional<MEKUnit> ownOf(const ColumnStyle& style, const UnitKind& kind)
{
    VorUnitsManager units;
    if (style.unit.empty() || units.setUnit(kind.system, Utf8::toWide(style.unit)) == 0)
        return std::nullopt;
    return units.getUnit(kind.system);
}

std::string symbolOf(const MEKUnit& unit)
{
    return Utf8::toBytes(definitionOf(unit).symbol);
}
}
