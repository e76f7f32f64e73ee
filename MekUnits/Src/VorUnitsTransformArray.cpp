// A unit has a symbol, the same in ASCII, and names. The square foot is found under all of them:
//   "ft²"                                    its symbol, as it is printed
//   "ft2"                                    its ASCII symbol, as it is typed
//   "square foot", "square feet", "sq ft"    its names, which stand in one text of the catalogue
// The units are looked through in the order of the catalogue; no two share a symbol or a name, so any order would do.
#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include "VorUnitCatalogue.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace
{
// True when `word` is one of `names`, which have ", " between them: "feet" of "foot, feet", but not "foo".
bool isAmong(std::wstring_view names, std::wstring_view word)
{
    const std::wstring_view separator = L", ";
    for (std::size_t begin = 0; begin <= names.size();)
    {
        const std::size_t end = std::min(names.find(separator, begin), names.size());
        if (names.substr(begin, end - begin) == word)
            return true;
        begin = end + separator.size();
    }
    return false;
}

// The empty text names no unit; it would be found in the list of a unit that has no names.
bool isWritten(const VorUnitDefinition& unit, std::wstring_view symbol)
{
    return !symbol.empty() && (symbol == unit.symbol || symbol == unit.asciiSymbol || isAmong(unit.names, symbol));
}

std::wstring_view viewOf(const VorString& text)
{
    return std::wstring_view(text.getStringW(), static_cast<std::size_t>(text.length()));
}
}

int VorUnitsTransformArray::findUnit(eSystems system, const VorString& symbol, int& unit)
{
    const VorUnitDefinition* const pUnit = findUnit(symbol);
    if (pUnit == nullptr || pUnit->system != system)
        return 0;
    unit = pUnit->number;
    return 1;
}

const VorUnitDefinition* VorUnitsTransformArray::findUnit(const VorString& symbol)
{
    for (const VorUnitDefinition& unit : VorUnitCatalogue::kUnits)
        if (isWritten(unit, viewOf(symbol)))
            return &unit;
    return nullptr;
}

const VorUnitDefinition* VorUnitsTransformArray::findUnit(int number)
{
    return VorUnitCatalogue::findUnit(number);
}

// The first of them counts: a weight per distance is kg/mm, although t/m has the same numbers.
const VorUnitDefinition* VorUnitsTransformArray::findUnitOfModel(eSystems system)
{
    for (const VorUnitDefinition& unit : VorUnitCatalogue::kUnits)
        if (unit.system == system && unit.isOfModel() != 0)
            return &unit;
    return nullptr;
}

int VorUnitsTransformArray::numUnits()
{
    return static_cast<int>(std::size(VorUnitCatalogue::kUnits));
}

const VorUnitDefinition& VorUnitsTransformArray::unitAt(int index)
{
    return VorUnitCatalogue::kUnits[index];
}
