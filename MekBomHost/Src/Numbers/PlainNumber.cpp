#include "PlainNumber.h"

#include "Utf8.h"

namespace mekbom
{
// The name comes with a blank, as a unit does: "48 637.90 EUR".
VorString PlainNumber::textOf(double value) const
{
    const std::string text = listedText(value, m_style);
    return Utf8::toWide(m_name.empty() ? text : text + " " + m_name);
}
}
