// How much a workbook holds. Bounds of the format: programs that open it know of no more.
#pragma once

#include <cstddef>
#include <cstdint>

namespace mekbom::WorkbookLimits
{
inline constexpr std::uint32_t kMostRows = 1048576; // of a sheet
inline constexpr std::size_t kMostColumns = 16384;
inline constexpr std::size_t kLongestText = 32767; // of a cell, in UTF-16
inline constexpr std::size_t kLongestName = 31;    // of a sheet, in UTF-16
inline constexpr int kDeepestOutline = 7;
}
