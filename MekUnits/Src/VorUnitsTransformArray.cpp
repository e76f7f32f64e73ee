#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include "VorUnitCatalogue.h"

int VorUnitsTransformArray::findUnit(eSystems system, const VorString& symbol, int& unit)
{
    for (const VorUnitDefinition& row : VorUnitCatalogue::kUnits)
        if (row.system == system && (symbol == row.symbol || symbol == row.asciiSymbol))
        {
            unit = row.number;
            return 1;
        }
    return 0;
}
