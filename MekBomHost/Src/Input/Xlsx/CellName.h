// Where a cell stands on its sheet, and what spreadsheet programs call it.
//
//   CellName::of({ 7, 2 })             ->  "C7"
//   CellName::parse("C7")              ->  row 7, column 2
//   CellName::parse("7C")              ->  nothing
//   CellName::inSheet("Parts", "C7")   ->  "Parts!C7"
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mekbom
{
struct CellPlace
{
    int row;    // from 1
    int column; // from 0
};

namespace CellName
{
std::string of(const CellPlace& place);

// Nothing for what is no name, or one beyond the last row or column that a sheet can have (XlsxLimits).
std::optional<CellPlace> parse(std::string_view name);

// A sheet's name with other characters than letters, digits and '_' stands in quotes: "'Parts list'!C7".
std::string inSheet(std::string_view sheet, const std::string& name);
}
}
