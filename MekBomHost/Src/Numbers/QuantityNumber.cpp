#include "QuantityNumber.h"

#include "NumberText.h"
#include "Utf8.h"

namespace mekbom
{
// The text is made as the engine makes it, with the settings of the list, so that a column with a unit of its own
// differs from the others in nothing but the unit. Blanks between thousands go in afterwards, into the first number of
// the text: of feet and inches, the feet.
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
