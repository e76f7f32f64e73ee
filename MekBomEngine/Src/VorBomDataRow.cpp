#include "VorBomDataRow.h"

#include "VorBomTupleFinder.h"

#include <utility>

namespace
{
VorStringArray usedTokens(const VorBomDataTupleArray& tuples)
{
    VorStringArray tokens;
    for (const VorBomDataTuple& tuple : tuples)
        if (tuple.used() == 1)
            tokens.append(tuple.token().token());
    return tokens;
}
}

void VorBomDataRow::setFrom(VorBomDataRow* pRow)
{
    if (pRow == nullptr)
        return;
    setData(pRow->getData());
    m_objectHandle = pRow->m_objectHandle;
    m_equalPartObjectHandles = pRow->m_equalPartObjectHandles;
    m_nUseThisDataForSums = pRow->m_nUseThisDataForSums;
}

int VorBomDataRow::compare(VorBomDataRow* pOther, const VorStringArray& tokens) const
{
    const VorBomTupleFinder finder(getData(), tokens.length());
    const VorBomTupleFinder otherFinder(pOther->getData(), tokens.length());
    for (const VorString& token : tokens)
    {
        const int result = VorBomDataTuple::compareValues(finder.find(token), otherFinder.find(token));
        if (result != 0)
            return result;
    }
    return 0;
}

void VorBomDataRow::appendUsedHandlesAndTokens(VorStringArrayArray& handles, VorStringArrayArray& tokens) const
{
    VorStringArray rowTokens = usedTokens(getData());
    if (rowTokens.isEmpty())
        return;
    VorStringArray rowHandles;
    rowHandles.append(m_objectHandle);
    rowHandles.append(m_equalPartObjectHandles);
    handles.append(std::move(rowHandles));
    tokens.append(std::move(rowTokens));
}
