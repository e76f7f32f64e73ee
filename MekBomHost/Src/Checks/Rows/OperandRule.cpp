// A formula finds its operands in two places, the row and the tuples of its own section. What the section shows with a
// starting number is therefore never lacking, and only the other tokens are looked for in the rows. A text in the row
// is as good as nothing: no formula computes with one.
#include "OperandRule.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "NumberInValue.h"
#include "Utf8.h"

#include "VorBomDataToken.h"

#include "MekRoots/Exp/VorArray.h"

namespace mekbom
{
namespace
{
bool isNumber(const VorBomDataTuple* pTuple)
{
    return pTuple != nullptr && holdsNumber(pTuple->value().type());
}
}

OperandRule::OperandRule(const CheckedTuple& formula) : m_formula(formula)
{
    VorStringHashMap<int> seen;
    for (const VorString& token : VorBomDataToken::getTokensFromFormula(Utf8::toWide(formula.request.subject)))
    {
        bool isNew = false;
        seen.findOrInsert(token, 0, isNew);
        if (isNew && !isNumber(formula.pSection->getTupleAt(token)))
            m_operands.push_back({ DatumFinder(token), 0 });
    }
}

void OperandRule::see(const VorBomDataRow& row)
{
    ++m_numRows;
    for (Operand& operand : m_operands)
        if (!isNumber(operand.datum.findIn(row)))
            ++operand.numLacking;
}

void OperandRule::tell(MistakeList& mistakes) const
{
    for (const Operand& operand : m_operands)
        if (operand.numLacking > 0)
            mistakes.add(MistakeCodes::kOperandMissingInRows, m_formula,
                         std::to_string(operand.numLacking) + " of " + std::to_string(m_numRows) +
                             " rows have no number " + Utf8::toBytes(operand.datum.token()) + ": " +
                             inQuotes(m_formula.token) + " is not computed for them",
                         "fill it in, or leave these rows out: \"queryFilter\": " +
                             inQuotes(Utf8::toBytes(operand.datum.token())));
}
}
