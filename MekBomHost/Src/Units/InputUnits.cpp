// "ft" of kind kDistanceUnit is asked of the catalogue twice: by its symbol, which may be of any kind, and by its kind,
// whose system must be that of the unit found. So "kg" is no unit of lengths, though it is one.
#include "InputUnits.h"

#include "UnitKinds.h"
#include "Utf8.h"

#include "MekUnits/Src/VorUnitDefinition.h"

namespace mekbom::InputUnits
{
namespace
{
using Units = VorBomTemplateUnits;
using Catalogue = VorUnitsTransformArray;

// Every unit that this room hands out is one of the catalogue, so that findUnit() finds it again by its number.
MEKUnit unitOf(const VorUnitDefinition& definition)
{
    return MEKUnit(definition.number, definition.number, definition.format);
}

VorUnitDefinition::eLayout layoutOf(const MEKUnit& unit)
{
    return Catalogue::findUnit(unit.unit())->layout;
}
}

// kReservedUnitType is a type without a system: no unit is of it, so none is found.
std::optional<MEKUnit> find(const std::string& symbol, Units::eTokenUnitType kind)
{
    const VorUnitDefinition* const pUnit = Catalogue::findUnit(Utf8::toWide(symbol));
    const UnitKind* const pKind = UnitKinds::find(kind);
    if (pUnit == nullptr || (kind != Units::kNoUnit && (pKind == nullptr || pKind->system != pUnit->system)))
        return std::nullopt;
    return unitOf(*pUnit);
}

// What nobody names is in the unit that the model keeps: mm, rad, kg, and mm2 for areas. Whether files may leave it out
// is another question, which PartsList asks.
std::optional<MEKUnit> ofModel(Units::eTokenUnitType kind)
{
    const UnitKind* const pKind = UnitKinds::find(kind);
    if (pKind == nullptr)
        return std::nullopt;
    return unitOf(*Catalogue::findUnitOfModel(pKind->system));
}

Units::eTokenUnitType kindOf(const MEKUnit& unit)
{
    return Units::unitTypeOf(Catalogue::findUnit(unit.unit())->system);
}

bool isOfModel(const MEKUnit& unit)
{
    return Catalogue::findUnit(unit.unit())->isOfModel() == 1;
}

// "7" in a column of feet and inches may be seven of either, so it is no quantity there.
bool takesPlainNumbers(const MEKUnit& unit)
{
    return layoutOf(unit) == VorUnitDefinition::kPlainNumber;
}

std::string expectation(Units::eTokenUnitType kind)
{
    const UnitKind* const pKind = UnitKinds::find(kind);
    return pKind != nullptr ? pKind->expectation : "a unit such as mm, m, ft, kg, lb or m2";
}

std::string cellExpectation(const MEKUnit& unit)
{
    switch (layoutOf(unit))
    {
        case VorUnitDefinition::kFeetAndInches: return "feet and inches such as 7'-6 1/2\"";
        case VorUnitDefinition::kDegreesAndMinutes: return "degrees and minutes such as 12°30'";
        default: return "a number";
    }
}
}
