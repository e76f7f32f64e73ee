#include "TextTally.h"

#include "Utf8.h"

namespace mekbom
{
// A text that has been seen changes neither end.
void TextTally::add(std::string_view text)
{
    if (!m_distinct.add(text))
        return;
    const VorString wide = Utf8::toWide(text);
    if (m_first.isEmpty() != 0 || VorString::compareWithNumbers(wide, m_first) < 0)
        m_first = wide;
    if (m_last.isEmpty() != 0 || VorString::compareWithNumbers(wide, m_last) > 0)
        m_last = wide;
}

std::string TextTally::first() const
{
    return Utf8::toBytes(m_first);
}

std::string TextTally::last() const
{
    return Utf8::toBytes(m_last);
}
}
