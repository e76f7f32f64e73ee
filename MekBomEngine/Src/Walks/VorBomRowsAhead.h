// Brings the next rows of a list into the caches while one is evaluated. Sorted rows lie anywhere in memory, and each
// is three steps away: the row, its tuples, the texts these refer to. A row takes one step at a time, while the rows
// before it are evaluated, so that no step waits for memory.
//
//   VorBomRowsAhead ahead(data.child(), positions);
//   for (row = data.child(); row; row = row->next()) { ahead.advance(); evaluate(row); }
#pragma once

#include "VorBomItemBase.h"
#include "VorBomTuplePositions.h"

class VorBomRowsAhead
{
public:
    // Texts are fetched where rows usually have what `positions` are asked for. It is not owned.
    VorBomRowsAhead(VorBomItemBase* pFirst, const VorBomTuplePositions& positions);

    // Call it once for each row, before the row is looked at.
    void advance();

private:
    static constexpr int kNumSteps = 3;

    const VorBomTuplePositions& m_positions;
    VorBomItemBase* m_pRows[kNumSteps]; // the rows that take each step next, the foremost first; null past the end
};
