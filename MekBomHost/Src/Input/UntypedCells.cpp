// The cells are kept in one text, with the places where they end: a million cells are two allocations that grow.
#include "UntypedCells.h"

#include "NumberReader.h"

namespace mekbom
{
void UntypedCells::add(std::string_view cell)
{
    m_bytes += cell;
    m_ends.push_back(m_bytes.size());
    m_type.add(cell);
}

VorBomDataValue UntypedCells::takeNext()
{
    const std::size_t begin = m_next == 0 ? 0 : m_ends[m_next - 1];
    const std::string_view cell = std::string_view(m_bytes).substr(begin, m_ends[m_next] - begin);
    ++m_next;
    int whole = 0;
    double number = 0;
    switch (type())
    {
        case VorBomDataValue::kIntData: NumberReader::read(m_type.numberIn(cell), whole); return VorBomDataValue(whole);
        case VorBomDataValue::kDoubleData:
            NumberReader::read(m_type.numberIn(cell), number);
            return VorBomDataValue(number);
        default: return VorBomDataValue(m_texts.textOf(cell));
    }
}
}
