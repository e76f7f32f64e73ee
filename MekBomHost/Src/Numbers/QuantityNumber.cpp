#include "QuantityNumber.h"

#include "NumberText.h"
#include "Utf8.h"

namespace mekbom
{
VorString QuantityNumber::textOf(double value) const
{
    VorString text = m_unit.getVorUnitTransform().formatValue(
        value, m_settings.suppressLastZeros, m_hasSymbol ? 1 : 0, m_settings.suppressZeroFeet,
        m_settings.suppressZeroInch, m_settings.showMinusBetweenFeetAndInch != 0 ? L'-' : L' ');
    if (!m_hasThousands)
        return text;
    std::string grouped = Utf8::toBytes(text);
    groupThousands(grouped);
    return Utf8::toWide(grouped);
}
}
