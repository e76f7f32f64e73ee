// What the number formats of a workbook make of the numbers in its cells: a cell of numbers names its style by a number.
//
//   CellStyles styles;
//   styles.read(part, "parts.xlsx");
//   styles.formatOf(3).kind             ->  NumberFormat::kDate, where the fourth style shows dates
#pragma once

#include "ByteSource.h"
#include "NumberFormat.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace mekbom
{
class CellStyles
{
public:
    CellStyles() = default;
    CellStyles(const CellStyles&) = delete;
    CellStyles& operator=(const CellStyles&) = delete;

    // Takes the styles of `part`, which belongs to `workbook`. Throws a Fault of status kInvalidInput where they are
    // damaged. To be called once.
    void read(ByteSource& part, const std::string& workbook);

    // The format of that style, from 0; the plain one for a style that there is not, as spreadsheet programs have it.
    const NumberFormat& formatOf(std::size_t style) const;

private:
    NumberFormat m_plain;
    std::map<int, NumberFormat> m_formats;     // by their numbers
    std::vector<const NumberFormat*> m_styles; // into m_formats
};
}
