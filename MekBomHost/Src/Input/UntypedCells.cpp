#include "ContentColumn.h"

#include "CellNumber.h"

namespace mekbom
{
void ContentColumn::add(std::string_view cell)
{
    m_bytes += cell;
    m_ends.push_back(m_bytes.size());
    if (!m_allAreNumbers)
        return;
    int whole = 0;
    double number = 0;
    m_allAreInts = m_allAreInts && CellNumber::parse(cell, whole);
    m_allAreWhole = m_allAreWhole && CellNumber::isWhole(cell);
    m_allAreNumbers = CellNumber::parse(cell, number) && !CellNumber::hasLeadingZeros(cell);
}

VorBomDataValue::eBomDataValueType ContentColumn::type() const
{
    if (m_ends.empty() || !m_allAreNumbers)
        return VorBomDataValue::kStringData;
    if (m_allAreInts)
        return VorBomDataValue::kIntData;
    return m_allAreWhole ? VorBomDataValue::kStringData : VorBomDataValue::kDoubleData;
}

VorBomDataValue ContentColumn::takeNext()
{
    const std::size_t begin = m_next == 0 ? 0 : m_ends[m_next - 1];
    const std::string_view cell = std::string_view(m_bytes).substr(begin, m_ends[m_next] - begin);
    ++m_next;
    int whole = 0;
    double number = 0;
    switch (type())
    {
        case VorBomDataValue::kIntData: CellNumber::parse(cell, whole); return VorBomDataValue(whole);
        case VorBomDataValue::kDoubleData: CellNumber::parse(cell, number); return VorBomDataValue(number);
        default: return VorBomDataValue(m_texts.textOf(cell));
    }
}
}
