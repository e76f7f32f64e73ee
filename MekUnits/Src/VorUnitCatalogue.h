// Every unit that this library knows, and the only place where they are listed: a new unit is a new row.
//
// The factors are those of NIST Special Publication 811, appendix B: the yard is 0.9144 m, so the inch 25.4 mm and the
// foot 304.8 mm, and the pound is 0.45359237 kg, all exactly.
//
// Numbers are kept in stored units of hosts and never change. Each kind has a range of its own, metric units first.
#pragma once

#include "VorUnitDefinition.h"

namespace VorUnitCatalogue
{
using Systems = VorUnitsTransformArray;
using Unit = VorUnitDefinition;

// The degree is pi/180 rad, with pi as 428224593349304 / 136308121570117, a convergent of its continued fraction. It is
// off by 4e-30, far below what a double tells apart.
constexpr std::uint64_t kDegreeNumerator = 107056148337326;
constexpr std::uint64_t kDegreeDenominator = 6133865470655265;

// clang-format off
inline constexpr VorUnitDefinition kUnits[] = {
    // number  kind                        layout                symbol           in ASCII  numerator         denominator
    {    3, Systems::kDistance,          Unit::kPlainNumber,   L"mm",           L"mm",    1,                1 },
    {    6, Systems::kDistance,          Unit::kPlainNumber,   L"m",            L"m",     1000,             1 },
    {   10, Systems::kDistance,          Unit::kPlainNumber,   L"in",           L"in",    254,              10 },
    {   11, Systems::kDistance,          Unit::kPlainNumber,   L"ft",           L"ft",    3048,             10 },
    {   13, Systems::kDistance,          Unit::kFeetAndInches, L"ft-in",        L"ft-in", 254,              10 },

    { 1009, Systems::kWeight,            Unit::kPlainNumber,   L"kg",           L"kg",    1,                1 },
    { 1021, Systems::kWeight,            Unit::kPlainNumber,   L"lb",           L"lb",    45359237,         100000000 },

    { 2000, Systems::kAngle,             Unit::kPlainNumber,   L"rad",          L"rad",   1,                1 },
    { 2006, Systems::kAngle,             Unit::kPlainNumber,   L"\u00B0",       L"deg",   kDegreeNumerator, kDegreeDenominator },

    { 3000, Systems::kArea,              Unit::kPlainNumber,   L"mm\u00B2",     L"mm2",   1,                1 },
    { 3003, Systems::kArea,              Unit::kPlainNumber,   L"m\u00B2",      L"m2",    1000000,          1 },
    { 3011, Systems::kArea,              Unit::kPlainNumber,   L"ft\u00B2",     L"ft2",   9290304,          100 },

    { 4000, Systems::kWeightPerDistance, Unit::kPlainNumber,   L"kg/m",         L"kg/m",  1,                1000 },
    // 0.45359237 kg / 304.8 mm
    { 4011, Systems::kWeightPerDistance, Unit::kPlainNumber,   L"lb/ft",        L"lb/ft", 45359237,         30480000000 },

    { 4100, Systems::kAreaPerDistance,   Unit::kPlainNumber,   L"m\u00B2/m",    L"m2/m",  1000,             1 },
    // 92903.04 mm² / 304.8 mm
    { 4111, Systems::kAreaPerDistance,   Unit::kPlainNumber,   L"ft\u00B2/ft",  L"ft2/ft", 3048,            10 },

    { 7001, Systems::kDensity,           Unit::kPlainNumber,   L"kg/m\u00B3",   L"kg/m3", 1,                1000000000 },
    // 0.45359237 kg / (304.8 mm)³
    { 7011, Systems::kDensity,           Unit::kPlainNumber,   L"lb/ft\u00B3",  L"lb/ft3", 45359237,        2831684659200000 },
};
// clang-format on

// Null for a number that is not listed.
constexpr const VorUnitDefinition* findUnit(int number)
{
    for (const VorUnitDefinition& unit : kUnits)
        if (unit.number == number)
            return &unit;
    return nullptr;
}
}
