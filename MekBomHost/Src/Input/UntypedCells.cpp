// The type is narrowed down while the cells come in, so that no cell is looked at again before its value is made:
//
//   "4"              whole numbers so far
//   "12345678901"    whole, but beyond 32 bits: numbers, all of them
//   "M16"            texts, whatever comes
//
// The cells are kept in one text, with the places where they end: a million cells are two allocations that grow.
#include "UntypedCells.h"

#include "NumberReader.h"

#include <algorithm>

namespace mekbom
{
// Once a cell was no number the others are not looked at: type() asks for that first.
void UntypedCells::add(std::string_view cell)
{
    m_bytes += cell;
    m_ends.push_back(m_bytes.size());
    if (!m_allAreNumbers)
        return;
    const std::string_view plain = numberIn(cell);
    m_allAreNumbers = m_mustBeNumbers || NumberReader::isPlain(plain);
    int whole = 0;
    if (m_allAreInts && NumberReader::read(plain, whole))
        return;
    m_allAreInts = false;
    double number = 0;
    int numDecimals = 0;
    NumberReader::read(plain, number, numDecimals);
    m_numDecimals = std::max(m_numDecimals, numDecimals);
}

VorBomDataValue::eBomDataValueType UntypedCells::type() const
{
    if (m_ends.empty() || !m_allAreNumbers)
        return VorBomDataValue::kStringData;
    return m_allAreInts ? VorBomDataValue::kIntData : VorBomDataValue::kDoubleData;
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
        case VorBomDataValue::kIntData: NumberReader::read(numberIn(cell), whole); return VorBomDataValue(whole);
        case VorBomDataValue::kDoubleData: NumberReader::read(numberIn(cell), number); return VorBomDataValue(number);
        default: return VorBomDataValue(m_texts.textOf(cell));
    }
}
// The cell as NumberReader has numbers; empty for what is none as it stands. Where groups are gone the text is shorter.
std::string_view UntypedCells::numberIn(std::string_view cell)
{
    if (m_notation.isPlain())
        return cell;
    const bool isReadable = m_notation.toPlain(cell, m_plain) == NumberNotation::kReadable;
    return isReadable && m_plain.size() == cell.size() ? std::string_view(m_plain) : std::string_view();
}
}
