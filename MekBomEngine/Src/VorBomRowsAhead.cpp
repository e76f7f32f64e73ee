#include "VorBomRowsAhead.h"

#include "VorBomDataRow.h"

#include <cstddef>

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

void bringInNext(const VorBomItemBase& row)
{
    if (row.next() != nullptr)
        bringIn(row.next(), sizeof(VorBomDataRow));
}

void bringInTuples(const VorBomItemBase& row)
{
    const VorBomDataTupleArray& tuples = row.getData();
    constexpr int kNumAppended = 1; // for a formula, mostly
    bringIn(tuples.begin(), static_cast<std::size_t>(tuples.length() + kNumAppended) * sizeof(VorBomDataTuple));
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
    VorBomItemBase* pRow = pFirst;
    for (int step = kNumSteps; step-- > 0;)
    {
        if (pRow != nullptr)
            pRow = pRow->next();
        m_pRows[step] = pRow;
    }
}

void VorBomRowsAhead::advance()
{
    using Step = void (*)(const VorBomItemBase& row);
    static constexpr Step kSteps[kNumSteps] = { bringInNext, bringInTuples, bringInPayloads, bringInTexts };
    for (int step = 0; step < kNumSteps; ++step)
    {
        if (m_pRows[step] == nullptr)
            continue;
        kSteps[step](*m_pRows[step]);
        m_pRows[step] = m_pRows[step]->next();
    }
}
