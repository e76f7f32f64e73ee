// Any text in any unit: it is read as a finite quantity or refused, never both and never with the value touched; what
// is read is shown, and what is shown is read. Input: 2 bytes of a unit number, then UTF-16 code units.
// Seeds: Fuzz/Seeds/VorQuantityReaderFuzz.
#include "MekUnits/Src/VorQuantityReader.h"

#include "MekRoots/Exp/MEKUnit.h"
#include "MekUnits/Src/VorUnitDefinition.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

namespace
{
void require(bool holds)
{
    if (!holds)
        std::abort();
}

VorString textFrom(const std::uint8_t* pData, std::size_t size)
{
    std::wstring text;
    for (std::size_t i = 0; i + 1 < size; i += 2)
        text += static_cast<wchar_t>(pData[i] | pData[i + 1] << 8);
    return VorString(text.data(), static_cast<int>(text.size()));
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    std::int16_t index = 0;
    if (size < sizeof index)
        return 0;
    std::memcpy(&index, pData, sizeof index);
    const int unit = VorUnitsTransformArray::unitAt(std::abs(index) % VorUnitsTransformArray::numUnits()).number;
    const VorString text = textFrom(pData + sizeof index, size - sizeof index);

    const double untouched = -12345.678;
    double value = untouched;
    const VorQuantityReader reader(unit);
    if (reader.read(text, value) == 0)
    {
        require(value == untouched);
        return 0;
    }
    require(std::isfinite(value) && reader.explain(text).isEmpty() != 0);
    const VorString shown = MEKUnit(unit, unit, 9).getVorUnitTransform().formatValue(value, 1, 0, 1, 1, L'-');
    require(shown == VorString(L"inf") || shown == VorString(L"-inf") || reader.read(shown, value) == 1);
    return 0;
}
