#include "WholeNumberRule.h"

#include "MistakeCodes.h"
#include "Utf8.h"

namespace mekbom
{
WholeNumberRule::WholeNumberRule(const CheckedTuple& tuple) : m_tuple(tuple), m_datum(Utf8::toWide(tuple.token)) {}

void WholeNumberRule::see(const VorBomDataRow& row)
{
    const VorBomDataTuple* const pTuple = m_datum.findIn(row);
    if (pTuple != nullptr && pTuple->value().type() == VorBomDataValue::kIntData)
        ++m_numRows;
}

void WholeNumberRule::tell(MistakeList& mistakes) const
{
    if (m_numRows > 0)
        mistakes.add(MistakeCodes::kWholeNumberUnderUnit, m_tuple,
                     std::to_string(m_numRows) + (m_numRows == 1 ? " row has" : " rows have") + " a whole number " +
                         m_tuple.token + ", which is printed as it is, in the model's unit",
                     "give the rows a number with decimals, such as 12.0");
}
}
