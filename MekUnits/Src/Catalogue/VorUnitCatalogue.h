// Every unit that this library knows, and the only place where they are listed: a new unit is a new row.
//
// Numbers are kept in stored units of hosts and never change. Each kind has a range of its own, metric units first.
#pragma once

#include "VorUnitDefinition.h"

namespace VorUnitCatalogue
{
using Systems = VorUnitsTransformArray;
using Unit = VorUnitDefinition;

// Where factors come from. The international yard is 0.9144 m, so the inch is 25.4 mm and the foot 304.8 mm, and the
// pound is 0.45359237 kg, all exactly.
inline constexpr wchar_t kSi[] = L"SI (NIST SP 811)";
inline constexpr wchar_t kBesideSi[] = L"beside the SI (NIST SP 811, table 6)";
inline constexpr wchar_t kAppendixB[] = L"NIST SP 811, appendix B";
inline constexpr wchar_t kYardAndPound[] = L"yard and pound of 1959 (NIST SP 811, appendix B)";

// The degree is pi/180 rad, with pi as 428224593349304 / 136308121570117, a convergent of its continued fraction. It is
// off by 4e-30, far below what a double tells apart.
constexpr std::uint64_t kDegreeNumerator = 107056148337326;
constexpr std::uint64_t kDegreeDenominator = 6133865470655265;

// The second is pi/648000 rad, with pi as 3587785776203 / 1142027682075, an earlier convergent that leaves room for the
// factor. It is off by 3e-25.
constexpr std::uint64_t kSecondNumerator = 3587785776203;
constexpr std::uint64_t kSecondDenominator = 1142027682075 * 648000;

// number, kind, layout, symbol, in ASCII, names,
// format, numerator and denominator of the factor, its source
// clang-format off
inline constexpr VorUnitDefinition kUnits[] = {
    {    3, Systems::kDistance, Unit::kPlainNumber, L"mm", L"mm", L"millimetre, millimetres, millimeter, millimeters",
      1, 1, 1, kSi },
    {    4, Systems::kDistance, Unit::kPlainNumber, L"cm", L"cm", L"centimetre, centimetres, centimeter, centimeters",
      2, 10, 1, kSi },
    {    5, Systems::kDistance, Unit::kPlainNumber, L"dm", L"dm", L"decimetre, decimetres, decimeter, decimeters",
      3, 100, 1, kSi },
    {    6, Systems::kDistance, Unit::kPlainNumber, L"m", L"m", L"metre, metres, meter, meters",
      3, 1000, 1, kSi },
    {    7, Systems::kDistance, Unit::kPlainNumber, L"km", L"km", L"kilometre, kilometres, kilometer, kilometers",
      3, 1000000, 1, kSi },
    {   10, Systems::kDistance, Unit::kPlainNumber, L"in", L"in", L"inch, inches",
      3, 254, 10, kYardAndPound },
    {   11, Systems::kDistance, Unit::kPlainNumber, L"ft", L"ft", L"foot, feet",
      2, 3048, 10, kYardAndPound },
    {   12, Systems::kDistance, Unit::kPlainNumber, L"yd", L"yd", L"yard, yards",
      2, 9144, 10, kYardAndPound },
    {   13, Systems::kDistance, Unit::kFeetAndInches, L"ft-in", L"ft-in", L"feet and inches",
      1016, 254, 10, kYardAndPound },

    { 1008, Systems::kWeight, Unit::kPlainNumber, L"g", L"g", L"gram, grams",
      0, 1, 1000, kSi },
    { 1009, Systems::kWeight, Unit::kPlainNumber, L"kg", L"kg", L"kilogram, kilograms",
      2, 1, 1, kSi },
    { 1010, Systems::kWeight, Unit::kPlainNumber, L"t", L"t", L"tonne, tonnes, metric ton, metric tons",
      3, 1000, 1, kBesideSi },
    { 1020, Systems::kWeight, Unit::kPlainNumber, L"oz", L"oz", L"ounce, ounces",
      1, 45359237, 1600000000, kYardAndPound },
    { 1021, Systems::kWeight, Unit::kPlainNumber, L"lb", L"lb", L"pound, pounds, lbs",
      1, 45359237, 100000000, kYardAndPound },
    { 1022, Systems::kWeight, Unit::kPlainNumber, L"short ton", L"ston", L"short tons, US ton, US tons",
      3, 90718474, 100000, kYardAndPound }, // 2000 lb
    { 1023, Systems::kWeight, Unit::kPlainNumber, L"long ton", L"lton", L"long tons, UK ton, UK tons",
      3, 10160469088, 10000000, kYardAndPound }, // 2240 lb

    { 2000, Systems::kAngle, Unit::kPlainNumber, L"rad", L"rad", L"radian, radians",
      4, 1, 1, kSi },
    { 2006, Systems::kAngle, Unit::kPlainNumber, L"\u00B0", L"deg", L"degree, degrees",
      1, kDegreeNumerator, kDegreeDenominator, kBesideSi },
    { 2007, Systems::kAngle, Unit::kPlainNumber, L"gon", L"gon", L"grad, grads",
      2, 9 * kDegreeNumerator, 10 * kDegreeDenominator, kAppendixB }, // pi/200 rad
    { 2008, Systems::kAngle, Unit::kDegreesAndMinutes, L"deg-min-sec", L"deg-min-sec", L"dms",
      0, kSecondNumerator, kSecondDenominator, kBesideSi },

    { 3000, Systems::kArea, Unit::kPlainNumber, L"mm\u00B2", L"mm2",
      L"square millimetre, square millimetres, square millimeters",
      0, 1, 1, kSi },
    { 3001, Systems::kArea, Unit::kPlainNumber, L"cm\u00B2", L"cm2",
      L"square centimetre, square centimetres, square centimeters",
      1, 100, 1, kSi },
    { 3003, Systems::kArea, Unit::kPlainNumber, L"m\u00B2", L"m2", L"square metre, square metres, square meters",
      2, 1000000, 1, kSi },
    { 3010, Systems::kArea, Unit::kPlainNumber, L"in\u00B2", L"in2", L"square inch, square inches, sq in",
      1, 64516, 100, kYardAndPound },
    { 3011, Systems::kArea, Unit::kPlainNumber, L"ft\u00B2", L"ft2", L"square foot, square feet, sq ft",
      2, 9290304, 100, kYardAndPound },
    { 3012, Systems::kArea, Unit::kPlainNumber, L"yd\u00B2", L"yd2", L"square yard, square yards, sq yd",
      2, 83612736, 100, kYardAndPound },

    { 4000, Systems::kWeightPerDistance, Unit::kPlainNumber, L"kg/m", L"kg/m",
      L"kilograms per metre, kilograms per meter",
      2, 1, 1000, kSi },
    { 4001, Systems::kWeightPerDistance, Unit::kPlainNumber, L"kg/mm", L"kg/mm",
      L"kilograms per millimetre, kilograms per millimeter",
      5, 1, 1, kSi },
    { 4002, Systems::kWeightPerDistance, Unit::kPlainNumber, L"t/m", L"t/m", L"tonnes per metre, tonnes per meter",
      4, 1, 1, kBesideSi },
    { 4010, Systems::kWeightPerDistance, Unit::kPlainNumber, L"lb/in", L"lb/in", L"pounds per inch, pli",
      3, 45359237, 2540000000, kYardAndPound },
    { 4011, Systems::kWeightPerDistance, Unit::kPlainNumber, L"lb/ft", L"lb/ft", L"pounds per foot, plf",
      2, 45359237, 30480000000, kYardAndPound },

    { 4100, Systems::kAreaPerDistance, Unit::kPlainNumber, L"m\u00B2/m", L"m2/m",
      L"square metres per metre, square meters per meter",
      3, 1000, 1, kSi },
    { 4101, Systems::kAreaPerDistance, Unit::kPlainNumber, L"mm\u00B2/mm", L"mm2/mm",
      L"square millimetres per millimetre, square millimeters per millimeter",
      0, 1, 1, kSi },
    { 4110, Systems::kAreaPerDistance, Unit::kPlainNumber, L"in\u00B2/ft", L"in2/ft", L"square inches per foot",
      2, 64516, 30480, kYardAndPound }, // 645.16 mm² / 304.8 mm
    { 4111, Systems::kAreaPerDistance, Unit::kPlainNumber, L"ft\u00B2/ft", L"ft2/ft", L"square feet per foot",
      2, 3048, 10, kYardAndPound }, // 92903.04 mm² / 304.8 mm

    { 7000, Systems::kDensity, Unit::kPlainNumber, L"kg/mm\u00B3", L"kg/mm3",
      L"kilograms per cubic millimetre, kilograms per cubic millimeter",
      9, 1, 1, kSi },
    { 7001, Systems::kDensity, Unit::kPlainNumber, L"kg/m\u00B3", L"kg/m3",
      L"kilograms per cubic metre, kilograms per cubic meter",
      0, 1, 1000000000, kSi },
    { 7002, Systems::kDensity, Unit::kPlainNumber, L"t/m\u00B3", L"t/m3",
      L"tonnes per cubic metre, tonnes per cubic meter",
      3, 1, 1000000, kBesideSi },
    { 7003, Systems::kDensity, Unit::kPlainNumber, L"g/cm\u00B3", L"g/cm3",
      L"grams per cubic centimetre, grams per cubic centimeter",
      3, 1, 1000000, kSi },
    { 7010, Systems::kDensity, Unit::kPlainNumber, L"lb/in\u00B3", L"lb/in3", L"pounds per cubic inch",
      4, 45359237, 1638706400000, kYardAndPound }, // 0.45359237 kg / (25.4 mm)³
    { 7011, Systems::kDensity, Unit::kPlainNumber, L"lb/ft\u00B3", L"lb/ft3", L"pounds per cubic foot, pcf",
      1, 45359237, 2831684659200000, kYardAndPound }, // 0.45359237 kg / (304.8 mm)³
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
