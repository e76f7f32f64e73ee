#include "NotationEvidence.h"

#include "CsvDelimiter.h"
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
    const bool isMixed = m_point.number > 0 && m_comma.number > 0;
    const NumberNotation::eCertainty certainty = isMixed ? NumberNotation::kMixed : NumberNotation::kShown;
    if (m_comma.number > m_point.number)
        return { NumberNotation::kComma, certainty, "as " + m_comma.first + " shows" };
    if (m_point.number > 0)
        return { NumberNotation::kPoint, certainty, "as " + m_point.first + " shows" };
    if (delimiter == CsvDelimiter::kPlain)
        return { NumberNotation::kPoint, NumberNotation::kAssumed, "as files with commas between columns have it" };
    return { NumberNotation::kPoint, NumberNotation::kOpen, "as no number of the first rows shows a comma" };
}
}
