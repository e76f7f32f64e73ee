// The number that a value holds, be it a whole one or not, for sums that take both.
//
//   numberIn(VorBomDataValue(3))                    ->  3.0
//   numberIn(VorBomDataValue(VorString(L"n/a")))    ->  none
#pragma once

#include "VorBomDataValue.h"

#include <optional>

namespace mekbom
{
inline bool holdsNumber(VorBomDataValue::eBomDataValueType type)
{
    return type == VorBomDataValue::kIntData || type == VorBomDataValue::kDoubleData;
}

inline std::optional<double> numberIn(const VorBomDataValue& value)
{
    if (value.type() == VorBomDataValue::kIntData)
        return *static_cast<const int*>(value.data());
    if (value.type() == VorBomDataValue::kDoubleData)
        return *static_cast<const double*>(value.data());
    return std::nullopt;
}
}
