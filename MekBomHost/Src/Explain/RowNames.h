// What rows are called: by their number in the parts list, with the handle of the object behind it.
//
//   const RowNames names(rowNumbers);
//   names.name(row)      ->  "row 5 (2A4)", or "row 5" for one without handle
//   names.names(rows)    ->  "row 5 (2A4), row 7 (2A6) and 97 more"
#pragma once

#include "RowNumbers.h"
#include "SectionRows.h"

#include <string>

namespace mekbom
{
class RowNames
{
public:
    // Not owned; outlives this object.
    explicit RowNames(const RowNumbers& numbers) : m_numbers(numbers) {}

    std::string name(const VorBomDataRow& row) const;
    std::string names(const RowList& rows) const;

private:
    const RowNumbers& m_numbers;
};
}
