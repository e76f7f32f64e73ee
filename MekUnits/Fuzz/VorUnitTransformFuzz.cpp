// Any value in any unit and format: a text comes out, never empty and never "-0", and a conversion there and back comes
// near the value it started from. Input: 8 bytes of a double, 2 of a unit number, 2 of a format.
// Seeds: Fuzz/Seeds/VorUnitTransformFuzz.
#include "MEKUnit.h"

#include "MekRoots/Exp/VorString.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace
{
void require(bool holds)
{
    if (!holds)
        std::abort();
}

template <class T>
T take(const std::uint8_t*& pData)
{
    T value;
    std::memcpy(&value, pData, sizeof value);
    pData += sizeof value;
    return value;
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    if (size < sizeof(double) + 2 * sizeof(std::int16_t))
        return 0;
    const double value = take<double>(pData);
    const int unit = take<std::int16_t>(pData);
    const int format = take<std::int16_t>(pData);

    const VorUnitTransform transform(unit, format);
    const VorString text = transform.formatValue(value, 1, 0, 1, 1, L'-');
    require(!text.isEmpty() && text != VorString(L"-0"));
    const double back = transform.toInternalUnits(transform.toDisplayUnits(value));
    if (std::isfinite(back) && std::fabs(value) > 1e-300)
        require(std::fabs(back - value) <= 1e-14 * std::fabs(value));
    return 0;
}
