// Brings the next rows of a list into the caches while one is evaluated. Sorted rows lie anywhere in memory, and each
// is four steps away: the row, its tuples, their payloads, the texts these refer to. A row takes one step at a time,
// while the rows before it are evaluated, so that no step waits for memory.
//
//   VorBomRowsAhead ahead(data.child());
//   for (row = data.child(); row; row = row->next()) { ahead.advance(); evaluate(row); }
#pragma once

#include "VorBomItemBase.h"

class VorBomRowsAhead
{
public:
    explicit VorBomRowsAhead(VorBomItemBase* pFirst);

    // Call it once for each row, before the row is looked at.
    void advance();

private:
    static constexpr int kNumSteps = 4;

    VorBomItemBase* m_pRows[kNumSteps]; // the rows that take each step next, the foremost first; null past the end
};
