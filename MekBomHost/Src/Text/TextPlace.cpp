#include "TextPlace.h"

namespace mekbom
{
namespace
{
// All bytes of a character but its first are 10xxxxxx in UTF-8.
bool startsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}
}

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
        else if (startsCharacter(m_text[m_offset]))
            ++m_place.column;
    }
    return m_place;
}
}
