// One row of the catalogue of units.
#pragma once

#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include <cstdint>

struct VorUnitDefinition
{
    enum eLayout
    {
        kPlainNumber,
        kFeetAndInches // the factor is that of the inch
    };

    int number;
    VorUnitsTransformArray::eSystems system;
    eLayout layout;
    const wchar_t* symbol;      // as printed; a letter at its front asks for a blank after the number
    const wchar_t* asciiSymbol; // the same for keyboards

    // One of this unit is numerator / denominator of the model's unit, exactly. Both are 1 to kLargestFactor.
    std::uint64_t numerator;
    std::uint64_t denominator;

    static constexpr std::uint64_t kLargestFactor = 1000000000000000000; // arithmetic on digits needs ten times that
};
