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

VorBomDataRow::VorBomDataRow(const VorBomDataRow& other)
    : VorBomItemBase(other), m_objectHandle(other.m_objectHandle), m_nUseThisDataForSums(other.m_nUseThisDataForSums)
{
    setEqualPartObjectHandles(other.EqualPartObjectHandles());
}

VorBomDataRow& VorBomDataRow::operator=(const VorBomDataRow& other)
{
    VorBomItemBase::operator=(other);
    m_objectHandle = other.m_objectHandle;
    setEqualPartObjectHandles(other.EqualPartObjectHandles());
    m_nUseThisDataForSums = other.m_nUseThisDataForSums;
    return *this;
}

const VorStringArray& VorBomDataRow::EqualPartObjectHandles() const
{
    static const VorStringArray kNone;
    return m_pEqualPartObjectHandles != nullptr ? *m_pEqualPartObjectHandles : kNone;
}

void VorBomDataRow::setEqualPartObjectHandles(const VorStringArray& handles)
{
    if (&handles == m_pEqualPartObjectHandles.get())
        return;
    m_pEqualPartObjectHandles = handles.isEmpty() ? nullptr : std::make_unique<VorStringArray>(handles);
}

void VorBomDataRow::setFrom(VorBomDataRow* pRow)
{
    if (pRow == nullptr)
        return;
    setData(pRow->getData());
    m_objectHandle = pRow->m_objectHandle;
    setEqualPartObjectHandles(pRow->EqualPartObjectHandles());
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
    rowHandles.append(EqualPartObjectHandles());
    handles.append(std::move(rowHandles));
    tokens.append(std::move(rowTokens));
}
