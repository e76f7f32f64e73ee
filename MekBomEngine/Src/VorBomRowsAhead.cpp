#include "VorBomRowsAhead.h"

namespace
{
void bringIn(const void* pMemory)
{
#if defined(__GNUC__)
    __builtin_prefetch(pMemory);
#else
    static_cast<void>(pMemory);
#endif
}

constexpr std::size_t kLine = 64; // bytes in a line of the cache

void bringIn(const void* pMemory, std::size_t size)
{
    const char* pLine = static_cast<const char*>(pMemory);
    for (std::size_t offset = 0; offset < size; offset += kLine)
        bringIn(pLine + offset);
}

void bringInTuples(const VorBomItemBase& row)
{
    const VorBomDataTupleArray& tuples = row.getData();
    bringIn(tuples.begin(), static_cast<std::size_t>(tuples.length() + 1) * sizeof(VorBomDataTuple));
}

void bringInPayloads(const VorBomItemBase& row)
{
    for (const VorBomDataTuple& tuple : row.getData())
        bringIn(tuple.value().data());
}

void bringInTexts(const VorBomItemBase& row)
{
    for (const VorBomDataTuple& tuple : row.getData())
        if (tuple.value().type() == VorBomDataValue::kStringData)
            bringIn(static_cast<const VorString*>(tuple.value().data())->getStringW());
}
}

VorBomRowsAhead::VorBomRowsAhead(VorBomItemBase* pFirst)
{
    for (VorBomItemBase*& pRow : m_pRows)
        pRow = pFirst;
    for (int step = 0; step < kNumSteps; ++step)
        for (int i = 0; i < (kNumSteps - step) * kRowsPerStep && m_pRows[step] != nullptr; ++i)
            m_pRows[step] = m_pRows[step]->next();
}

void VorBomRowsAhead::advance()
{
    if (m_pRows[0] != nullptr && m_pRows[0]->next() != nullptr)
        bringIn(m_pRows[0]->next(), sizeof(VorBomItemBase));
    if (m_pRows[1] != nullptr)
        bringInTuples(*m_pRows[1]);
    if (m_pRows[2] != nullptr)
        bringInPayloads(*m_pRows[2]);
    if (m_pRows[3] != nullptr)
        bringInTexts(*m_pRows[3]);
    for (VorBomItemBase*& pRow : m_pRows)
        if (pRow != nullptr)
            pRow = pRow->next();
}
