// What a workbook may ask for before it is refused: a packed file of a megabyte can hold a thousand times as much.
//
//   a cell of 100 MB          is beyond kMostElementBytes
//   a million columns         are beyond kMostColumns
//   a sheet of a terabyte     is beyond kMostSheetBytes, which bounds the time; rows are read one by one
//
// So a workbook takes its own size in memory, up to twice that of its texts, since they grow, and some ten times
// kMostElementBytes for a row.
#pragma once

#include "InputLimits.h"

#include <cstddef>

namespace mekbom::XlsxLimits
{
// Rules of the format: rows end at 1,048,576 and columns at XFD.
constexpr int kMostRows = 1 << 20;
constexpr int kMostColumns = 1 << 14;

// A row, a text, or a tag. A row of all columns with numbers takes one megabyte.
constexpr std::size_t kMostElementBytes = InputLimits::kMostRecordBytes;

// The texts of a workbook, which are kept. Arbitrary: a million rows with ten texts of their own take half of it.
constexpr std::size_t kMostTextBytes = std::size_t{ 512 } << 20;

// A sheet, or the list of texts, unpacked. Arbitrary: four thousand bytes for each row that there may be.
constexpr std::size_t kMostSheetBytes = std::size_t{ 4 } << 30;

// What says which sheets and formats there are. Arbitrary: the 64,000 formats that there may be take a third.
constexpr std::size_t kMostIndexBytes = std::size_t{ 32 } << 20;

// How deep elements stand within each other. Arbitrary: the format has less than ten levels.
constexpr int kDeepest = 64;

// Blocks of merged cells over several rows. Arbitrary: nobody merges as many by hand.
constexpr std::size_t kMostMergedBlocks = 1 << 16;
}
