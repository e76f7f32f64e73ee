// Asked for bytes 2, 4 and 9 of a text, the counter goes over its first nine bytes once: each answer goes on from the
// one before. A column is counted up by the bytes that begin a character, so the letter of two bytes in "\u00E4bc" is
// one.
#include "TextPlace.h"

#include "Utf8.h"

namespace mekbom
{
// Counts on from the offset asked for last, or from the front if that lies behind.
TextPlace PlaceCounter::placeOf(std::size_t offset)
{
    if (offset < m_offset)
    {
        m_offset = 0;
        m_place = { m_firstLine, 1 };
    }
    for (; m_offset < offset && m_offset < m_text.size(); ++m_offset)
    {
        if (m_text[m_offset] == '\n')
            m_place = { m_place.line + 1, 1 };
        else if (Utf8::startsCharacter(m_text[m_offset]))
            ++m_place.column;
    }
    return m_place;
}
}
