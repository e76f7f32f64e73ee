#include "TextOfNumber.h"

#include <cmath>
#include <limits>
#include <string>

namespace mekbom
{
// A sum of whole numbers is one, however large: beyond 32 bits a format is given the double, and without a format the
// digits are written here. Doubles without a format are quantities, or plain numbers as the engine shows them.
VorString textOfNumber(const VorBomTypedValue& value, const VorBomNumberFormat* pFormat,
                       const VorBomTemplateUnits& units)
{
    constexpr double kMostInt = std::numeric_limits<int>::max();
    if (pFormat != nullptr && value.type == VorBomDataValue::kIntData && std::fabs(value.number) <= kMostInt)
        return pFormat->textOf(static_cast<int>(value.number));
    if (pFormat != nullptr)
        return pFormat->textOf(value.number);
    if (value.type == VorBomDataValue::kIntData)
        return VorString(std::to_wstring(static_cast<long long>(value.number)).c_str());
    return units.getDisplayString(value.unitType, value.number);
}
}
