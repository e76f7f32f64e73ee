// The numbers that rows have in their parts list, for words about a report: filters take rows out, and the evaluation
// puts the others into another order.
//
//   const RowNumbers numbers(*reportTemplate.pTemplate->getBomData());
//   evaluate(reportTemplate);
//   numbers.numberOf(row)   ->  1 for the first row under the heading
#pragma once

#include "VorBomData.h"
#include "VorBomDataRow.h"

#include <unordered_map>

namespace mekbom
{
class RowNumbers
{
public:
    // Knows no row.
    RowNumbers() = default;

    // Numbers the rows from 1, in the order in which they hang in `data`. They are known by their address.
    explicit RowNumbers(const VorBomData& data);

    // 0 for a row that is not known.
    int numberOf(const VorBomDataRow& row) const;

private:
    std::unordered_map<const VorBomItemBase*, int> m_numbers;
};
}
