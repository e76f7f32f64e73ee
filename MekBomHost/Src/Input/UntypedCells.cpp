#include "UntypedCells.h"

#include "NumberReader.h"

namespace mekbom
{
void UntypedCells::add(std::string_view cell)
{
    m_bytes += cell;
    m_ends.push_back(m_bytes.size());
    if (!m_allAreNumbers)
        return;
    int whole = 0;
    double number = 0;
    m_allAreInts = m_allAreInts && NumberReader::read(cell, whole);
    m_allAreWhole = m_allAreWhole && NumberReader::isWhole(cell);
    m_allAreNumbers = NumberReader::read(cell, number) && !NumberReader::hasLeadingZeros(cell);
}

VorBomDataValue::eBomDataValueType UntypedCells::type() const
{
    if (m_ends.empty() || !m_allAreNumbers)
        return VorBomDataValue::kStringData;
    if (m_allAreInts)
        return VorBomDataValue::kIntData;
    return m_allAreWhole ? VorBomDataValue::kStringData : VorBomDataValue::kDoubleData;
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
        case VorBomDataValue::kIntData: NumberReader::read(cell, whole); return VorBomDataValue(whole);
        case VorBomDataValue::kDoubleData: NumberReader::read(cell, number); return VorBomDataValue(number);
        default: return VorBomDataValue(m_texts.textOf(cell));
    }
}
}
