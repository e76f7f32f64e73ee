#include "NotationEvidence.h"

#include "InQuotes.h"

namespace mekbom
{
void NotationEvidence::add(std::string_view cell, int line)
{
    const NumberNotation::eSign sign = NumberNotation::shownBy(cell);
    if (sign == NumberNotation::kNoSign)
        return;
    Shown& shown = sign == NumberNotation::kComma ? m_comma : m_point;
    if (shown.number++ == 0)
        shown.first = inQuotes(cell) + " on line " + std::to_string(line);
}

NumberNotation NotationEvidence::notation(char delimiter) const
{
    if (m_point.number == 0 && m_comma.number == 0)
        return { NumberNotation::kPoint, delimiter == ',' ? NumberNotation::kAssumed : NumberNotation::kOpen, "" };
    const bool isComma = m_comma.number > m_point.number;
    const bool isSettled = m_point.number == 0 || m_comma.number == 0;
    return { isComma ? NumberNotation::kComma : NumberNotation::kPoint,
             isSettled ? NumberNotation::kShown : NumberNotation::kOpen,
             "as " + (isComma ? m_comma : m_point).first + " shows" };
}
}
