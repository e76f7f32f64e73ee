// Handles of equal parts. Of a million rows few have any, so a row has no array but a pointer to one, null at first:
//   setEqualPartObjectHandles with none     the pointer stays null
//   EqualPartObjectHandles                  makes an empty array, which is the row's from now on
//   setEqualPartObjectHandles with two      fills that same array: a reference handed out before shows both
#include "VorBomDataRow.h"

#include "VorBomTupleFinder.h"

#include <memory>
#include <utility>

namespace
{
// Exactly 1 counts: other numbers are a host's own marks.
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
    : VorBomItemBase(other),
      m_objectHandle(other.m_objectHandle),
      m_nHostKey(other.m_nHostKey),
      m_nUseThisDataForSums(other.m_nUseThisDataForSums)
{
    takeHandlesOf(other);
}

VorBomDataRow::~VorBomDataRow()
{
    delete m_pEqualPartObjectHandles.load();
}

VorBomDataRow& VorBomDataRow::operator=(const VorBomDataRow& other)
{
    VorBomItemBase::operator=(other);
    m_objectHandle = other.m_objectHandle;
    takeHandlesOf(other);
    m_nHostKey = other.m_nHostKey;
    m_nUseThisDataForSums = other.m_nUseThisDataForSums;
    return *this;
}

void VorBomDataRow::setEqualPartObjectHandles(const VorStringArray& handles)
{
    if (m_pEqualPartObjectHandles.load() != nullptr || !handles.isEmpty())
        ownHandles() = handles;
}

// Not by assignment, which would copy the links as well: this row stays where it hangs, with its own sub-rows.
void VorBomDataRow::setFrom(VorBomDataRow* pRow)
{
    if (pRow == nullptr)
        return;
    setData(pRow->getData());
    m_objectHandle = pRow->m_objectHandle;
    takeHandlesOf(*pRow);
    m_nHostKey = pRow->m_nHostKey;
    m_nUseThisDataForSums = pRow->m_nUseThisDataForSums;
}

// Told on %Material and %Length, in rows S235 100.0 and S235 without a length: the materials agree, so the lengths
// decide, and the row that has one is more.
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

// A row that shows as one line of a report stands for its object and for all that equal it, so it answers with all of
// their handles, its own first.
void VorBomDataRow::appendUsedHandlesAndTokens(VorStringArrayArray& handles, VorStringArrayArray& tokens) const
{
    VorStringArray rowTokens = usedTokens(getData());
    if (rowTokens.isEmpty())
        return;
    VorStringArray rowHandles;
    rowHandles.append(m_objectHandle);
    if (const VorStringArray* pEqualParts = m_pEqualPartObjectHandles.load())
        rowHandles.append(*pEqualParts);
    handles.append(std::move(rowHandles));
    tokens.append(std::move(rowTokens));
}

// Two threads may ask a row at once: the first array stays.
VorStringArray& VorBomDataRow::ownHandles() const
{
    VorStringArray* pHandles = m_pEqualPartObjectHandles.load(std::memory_order_acquire);
    if (pHandles != nullptr)
        return *pHandles;
    auto pNew = std::make_unique<VorStringArray>();
    if (!m_pEqualPartObjectHandles.compare_exchange_strong(pHandles, pNew.get()))
        return *pHandles;
    return *pNew.release();
}

// Reads the pointer of `other` rather than ask for its handles, which would give it an array.
void VorBomDataRow::takeHandlesOf(const VorBomDataRow& other)
{
    const VorStringArray* pHandles = other.m_pEqualPartObjectHandles.load();
    setEqualPartObjectHandles(pHandles != nullptr ? *pHandles : VorStringArray());
}
