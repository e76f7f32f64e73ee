// Told on rows 1, 2, 3 ... while row 1 is evaluated. Three fetches are on their way, and none needs what another of
// them brings:
//   row 5                   whose address row 4 has, which came a row ago
//   tuples of row 3         whose address row 3 has
//   texts of row 2          whose addresses its tuples have
// When row 2 is evaluated, each step takes the row after.
#include "VorBomRowsAhead.h"

#include "VorBomDataRow.h"

#include "MekRoots/Exp/VorMemoryHint.h"

#include <cstddef>
#include <vector>

namespace
{
constexpr std::size_t kLine = 64; // bytes in a line of the cache

// Must be inlined: g++ takes a function that only fetches for one without effect and drops calls of it.
inline void bringIn(const void* pMemory, std::size_t size)
{
    const char* pLine = static_cast<const char*>(pMemory);
    for (std::size_t offset = 0; offset < size; offset += kLine)
        VorMemoryHint::willRead(pLine + offset);
    VorMemoryHint::willRead(pLine + size - 1); // what begins within a line ends in one more
}

using Positions = std::vector<int>;

void bringInNext(const VorBomItemBase& row, const Positions&)
{
    if (row.next() != nullptr)
        bringIn(row.next(), sizeof(VorBomDataRow));
}

void bringInTuples(const VorBomItemBase& row, const Positions&)
{
    const VorBomDataTupleArray& tuples = row.getData();
    constexpr int kNumAppended = 1; // for a formula, mostly
    if (tuples.isEmpty() == 0)
        bringIn(tuples.begin(), static_cast<std::size_t>(tuples.length() + kNumAppended) * sizeof(VorBomDataTuple));
}

// Bytes of a text of some ten characters with what stands before them.
constexpr std::size_t kShortText = 56;

void bringInText(const VorBomDataValue& value)
{
    if (value.type() != VorBomDataValue::kStringData)
        return;
    if (const void* pMemory = static_cast<const VorString*>(value.data())->memory())
        bringIn(pMemory, kShortText);
}

// Some positions are VorBomTuplePositions::kNone.
void bringInTexts(const VorBomItemBase& row, const Positions& positions)
{
    const VorBomDataTupleArray& tuples = row.getData();
    for (const int position : positions)
        if (position >= 0 && position < tuples.length())
            bringInText(tuples.begin()[position].value());
}
}

// The foremost step stands three rows ahead. The first rows are met with less help or none, which a long list
// does not feel.
VorBomRowsAhead::VorBomRowsAhead(VorBomItemBase* pFirst, const VorBomTuplePositions& positions) : m_positions(positions)
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
    using Step = void (*)(const VorBomItemBase& row, const Positions& positions);
    static constexpr Step kSteps[kNumSteps] = { bringInNext, bringInTuples, bringInTexts };
    for (int step = 0; step < kNumSteps; ++step)
    {
        if (m_pRows[step] == nullptr)
            continue;
        kSteps[step](*m_pRows[step], m_positions.usual());
        m_pRows[step] = m_pRows[step]->next();
    }
}
