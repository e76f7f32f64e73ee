// What a parts list may ask for before it is refused, whatever its format: a file that is damaged, or made to do harm,
// must not take all memory there is.
//
//   a million columns       are beyond kMostColumns
//   a cell of 100 MB        is in a record beyond kMostRecordBytes
//
// Rows have no such bound. Workbooks, whose files are packed, have further ones (XlsxLimits).
#pragma once

#include <cstddef>

namespace mekbom::InputLimits
{
// As many as spreadsheet programs have.
constexpr std::size_t kMostColumns = std::size_t{ 1 } << 14;

// All bytes of a record. Arbitrary: each of these columns may have five hundred.
constexpr std::size_t kMostRecordBytes = std::size_t{ 8 } << 20;
}
