// One row of the catalogue of units: what a unit is called, and what one of it is in the model's unit of its kind.
//
//   VorUnitsTransformArray::findUnit(1021)->symbol   ->  "lb"
//
// Rows stand in the catalogue for as long as the process runs.
#pragma once

#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include <cstdint>

struct VorUnitDefinition
{
    enum eLayout
    {
        kPlainNumber,
        kFeetAndInches,    // the factor is that of the inch
        kDegreesAndMinutes // and seconds; the factor is that of the second
    };

    int number;
    VorUnitsTransformArray::eSystems system;
    eLayout layout;
    const wchar_t* symbol;      // as printed; a letter at its front asks for a blank after the number
    const wchar_t* asciiSymbol; // the same for keyboards, without blanks
    const wchar_t* names;       // other words for it, ", " between them: "foot, feet"
    int format;                 // how precisely it is shown when nobody says; as VorUnitTransform takes it

    // One of this unit is numerator / denominator of the model's unit, exactly. Both are 1 to kLargestFactor.
    std::uint64_t numerator;
    std::uint64_t denominator;
    const wchar_t* source; // who defines the factor

    static constexpr std::uint64_t kLargestFactor = 1000000000000000000; // arithmetic on digits needs ten times that

    // 1 for the unit in which the model keeps its values. A unit whose factor happens to be 1 as well answers 1, too:
    // one t/m is one kg/mm.
    int isOfModel() const { return layout == kPlainNumber && numerator == 1 && denominator == 1 ? 1 : 0; }
};
