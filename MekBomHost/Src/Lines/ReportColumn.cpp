// A heading never names a unit that the numbers below it are not in. Told on a column of weights, shown in pounds:
//   "Mass"          has no brackets                              ->  "Mass [lb]"
//   "Mass [kg]"     brackets with another unit of weights        ->  "Mass [lb]"
//   "Mass [net]"    brackets with no unit                        ->  "Mass [net] [lb]"
//   "Mass [lb]"     brackets with the unit itself                ->  as it is
#include "ReportColumn.h"

#include "Utf8.h"

#include "MekUnits/Src/VorUnitDefinition.h"

#include <cstddef>

namespace mekbom
{
namespace
{
// Where the brackets begin that end a label; npos for a label without.
std::size_t bracketsOf(const std::string& label)
{
    return label.empty() || label.back() != ']' ? std::string::npos : label.rfind('[');
}

bool isUnitOf(const UnitKind* pKind, const std::string& name)
{
    const VorUnitDefinition* const pUnit = VorUnitsTransformArray::findUnit(Utf8::toWide(name));
    return pUnit != nullptr && pKind != nullptr && pUnit->system == pKind->system;
}
}

std::string ReportColumn::heading() const
{
    if (unitSymbol.empty() || label == unitSymbol)
        return label;
    const std::string inBrackets = "[" + unitSymbol + "]";
    const std::size_t brackets = bracketsOf(label);
    if (brackets == std::string::npos || !otherBrackets().empty())
        return label + " " + inBrackets;
    return label.substr(0, brackets) + inBrackets;
}

std::string ReportColumn::otherBrackets() const
{
    const std::size_t brackets = bracketsOf(label);
    if (unitSymbol.empty() || brackets == std::string::npos)
        return std::string();
    const std::string named = label.substr(brackets + 1, label.size() - brackets - 2);
    return named == unitSymbol || isUnitOf(pUnitKind, named) ? std::string() : named;
}
}
