// The kinds of quantity that have a unit, and the catalogue of units by their symbols.
//
//   int unit = 0;
//   VorUnitsTransformArray::findUnit(VorUnitsTransformArray::kArea, L"ft2", unit)   ->  1, unit is 3011
//   MEKUnit(unit, unit, 2).getVorUnitTransform().toInternalUnits(1.0)               ->  92903.04 mm²
//
// Immutable; safe from every thread.
#pragma once

#include "MekExport.h"
#include "VorString.h"

#include <iterator>

struct VorUnitDefinition;

class MEK_UNITS_API VorUnitsTransformArray
{
public:
    // Kinds of quantity, each with its unit in the model. The gaps are kinds that no list shows.
    enum eSystems
    {
        kDistance = 0,          // mm
        kAngle = 1,             // rad
        kWeight = 2,            // kg
        kArea = 4,              // mm²
        kWeightPerDistance = 8, // kg/mm
        kAreaPerDistance = 9,   // mm²/mm
        kDensity = 15           // kg/mm³
    };

    // All of them. Whoever keeps something for each kind keeps it in this order: the one of kind `system` at
    // indexOf(system).
    static constexpr eSystems kSystems[] = { kDistance,          kAngle,           kWeight, kArea,
                                             kWeightPerDistance, kAreaPerDistance, kDensity };
    static constexpr int kNumSystems = static_cast<int>(std::size(kSystems));

    // -1 for a number that is no kind of quantity.
    static constexpr int indexOf(eSystems system)
    {
        for (int index = 0; index < kNumSystems; ++index)
            if (kSystems[index] == system)
                return index;
        return -1;
    }

    // Looks for the unit of kind `system` that is written `symbol`; 0 with `unit` untouched when there is none. Symbols
    // are taken exactly as written, with the raised digits or signs of print or in plain ASCII: "m²" and "m2", "°" and
    // "deg"; names are too: "feet", "plf".
    static int findUnit(eSystems system, const VorString& symbol, int& unit);

    // The unit of whatever kind that is written `symbol`, or with this number; null when there is none. No two units
    // share a symbol or a name.
    static const VorUnitDefinition* findUnit(const VorString& symbol);
    static const VorUnitDefinition* findUnit(int number);

    // The unit in which the model keeps values of this kind. Null for a number that is no kind of quantity.
    static const VorUnitDefinition* findUnitOfModel(eSystems system);

    // The catalogue, kind by kind; `index` from 0 to numUnits() - 1.
    static int numUnits();
    static const VorUnitDefinition& unitAt(int index);
};
