// The factor of every unit as somebody else would write it: from the definitions, not from the catalogue.
#pragma once

#include "MekUnits/Src/VorUnitDefinition.h"

#include <vector>

struct FactorCase
{
    int unit;
    long double factor; // the model's unit in one of this unit
};

inline constexpr long double kInch = 25.4L;
inline constexpr long double kFoot = 12 * kInch;
inline constexpr long double kYard = 3 * kFoot;
inline constexpr long double kPound = 0.45359237L;
inline constexpr long double kPi = 3.14159265358979323846264338327950288L;

inline constexpr FactorCase kFactors[] = {
    { 3, 1.0L }, // mm, cm, dm, m, km
    { 4, 10.0L },
    { 5, 100.0L },
    { 6, 1000.0L },
    { 7, 1e6L },
    { 10, kInch }, // in, ft, yd, ft-in
    { 11, kFoot },
    { 12, kYard },
    { 13, kInch },
    { 1008, 1e-3L }, // g, kg, t
    { 1009, 1.0L },
    { 1010, 1000.0L },
    { 1020, kPound / 16 }, // oz, lb, short and long ton
    { 1021, kPound },
    { 1022, 2000 * kPound },
    { 1023, 20 * 112 * kPound },
    { 2000, 1.0L }, // rad, degree, gon, second
    { 2006, kPi / 180 },
    { 2007, kPi / 200 },
    { 2008, kPi / 180 / 3600 },
    { 3000, 1.0L }, // mm², cm², m²
    { 3001, 100.0L },
    { 3003, 1e6L },
    { 3010, kInch* kInch }, // in², ft², yd²
    { 3011, kFoot* kFoot },
    { 3012, kYard* kYard },
    { 4000, 1.0L / 1000 }, // kg/m, kg/mm, t/m
    { 4001, 1.0L },
    { 4002, 1.0L },
    { 4010, kPound / kInch }, // lb/in, lb/ft
    { 4011, kPound / kFoot },
    { 4100, 1e6L / 1000 }, // m²/m, mm²/mm
    { 4101, 1.0L },
    { 4110, kInch* kInch / kFoot }, // in²/ft, ft²/ft
    { 4111, kFoot },
    { 7000, 1.0L }, // kg/mm³, kg/m³, t/m³, g/cm³
    { 7001, 1.0L / 1e9L },
    { 7002, 1000.0L / 1e9L },
    { 7003, 1e-3L / 1e3L },
    { 7010, kPound / (kInch * kInch * kInch) }, // lb/in³, lb/ft³
    { 7011, kPound / (kFoot * kFoot * kFoot) },
};

// The numbers of the catalogue.
inline std::vector<int> allUnits()
{
    std::vector<int> units;
    for (int i = 0; i < VorUnitsTransformArray::numUnits(); ++i)
        units.push_back(VorUnitsTransformArray::unitAt(i).number);
    return units;
}
