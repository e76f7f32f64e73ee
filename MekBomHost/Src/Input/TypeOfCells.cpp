// No cell is looked at again before its value is made:
//
//   "4"              whole numbers so far
//   "12345678901"    whole, but beyond 32 bits: numbers, all of them
//   "M16"            texts, whatever comes
#include "TypeOfCells.h"

#include "NumberReader.h"

#include <algorithm>

namespace mekbom
{
// Once a cell was no number the others are not looked at: type() asks for that first.
void TypeOfCells::add(std::string_view cell)
{
    m_isEmpty = false;
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

VorBomDataValue::eBomDataValueType TypeOfCells::type() const
{
    if (m_isEmpty || !m_allAreNumbers)
        return VorBomDataValue::kStringData;
    return m_allAreInts ? VorBomDataValue::kIntData : VorBomDataValue::kDoubleData;
}

// Where groups are gone the text is shorter.
std::string_view TypeOfCells::numberIn(std::string_view cell)
{
    if (m_notation.isPlain())
        return cell;
    const bool isReadable = m_notation.toPlain(cell, m_plain) == NumberNotation::kReadable;
    return isReadable && m_plain.size() == cell.size() ? std::string_view(m_plain) : std::string_view();
}
}
