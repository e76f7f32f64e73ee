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
