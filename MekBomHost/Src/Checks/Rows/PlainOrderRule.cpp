#include "PlainOrderRule.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "Utf8.h"

namespace mekbom
{
PlainOrderRule::PlainOrderRule(const SortKey& key) : m_key(key), m_token(Utf8::toWide(key.token)) {}

// The first text settles it: a column of a parts list has either texts or numbers from its first cell to its last.
void PlainOrderRule::see(const VorBomDataRow& row)
{
    if (!m_text.empty())
        return;
    const VorBomDataTuple* const pTuple = row.getTupleAt(m_token);
    if (pTuple != nullptr && pTuple->value().type() == VorBomDataValue::kStringData)
        m_text = Utf8::toBytes(pTuple->value().asString());
}

void PlainOrderRule::tell(MistakeList& mistakes) const
{
    if (!m_text.empty())
        mistakes.add(MistakeCodes::kSortingByUnknown, *m_key.pTuple,
                     inQuotes(m_key.pTuple->token) + " sorts by " + m_key.token +
                         ", which the catalogue does not know: texts such as " + inQuotes(m_text) +
                         " come in plain order, \"10\" before \"2\"",
                     helpForOpenOrder(m_key.token));
}
}
