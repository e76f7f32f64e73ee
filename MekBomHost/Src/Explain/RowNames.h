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
    // `numbers` are not owned and outlive this object.
    explicit RowNames(const RowNumbers& numbers) : m_numbers(numbers) {}

    // In UTF-8. A row that `numbers` do not know is "row 0".
    std::string name(const VorBomDataRow& row) const;

    // The first twenty rows by their names, and how many there are more; empty for no rows.
    std::string names(const RowList& rows) const;

private:
    const RowNumbers& m_numbers;
};
}
