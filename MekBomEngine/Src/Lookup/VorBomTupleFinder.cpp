// A table pays only where both lists are long. Told on rows that are compared by some tokens:
//   3 tokens, 1,000 tuples      three walks; filling a table with 1,000 entries would cost more
//   100 tokens, 10 tuples       a hundred short walks; as many look-ups in a table would hardly be cheaper
//   1,000 tokens and tuples     up to a million steps; with a table 1,000 entries and 1,000 look-ups
// Both ways find the same one of several tuples with equal tokens: a walk stops at the first, the table keeps it.
#include "VorBomTupleFinder.h"

VorBomTupleFinder::VorBomTupleFinder(const VorBomDataTupleArray& tuples, int numTokens) : m_tuples(tuples)
{
    // Without a table the cost is the product of the two numbers; while one of them is small, so is that.
    if (numTokens <= kFewTokens || tuples.length() <= kFewTokens)
        return;
    m_indices.emplace();
    bool inserted = false; // a later tuple with the same token is not: the first counts
    for (int i = 0; i < tuples.length(); ++i)
        m_indices->findOrInsert(tuples[i].token().token(), i, inserted);
}

const VorBomDataTuple* VorBomTupleFinder::find(const VorString& token) const
{
    const int index = indexOf(token);
    return index == kNone ? nullptr : m_tuples.begin() + index;
}

int VorBomTupleFinder::indexOf(const VorString& token) const
{
    if (m_indices.has_value())
    {
        const auto* pNode = m_indices->find(token);
        return pNode == nullptr ? kNone : pNode->value;
    }
    for (int i = 0; i < m_tuples.length(); ++i)
        if (m_tuples[i].token().token() == token)
            return i;
    return kNone;
}
