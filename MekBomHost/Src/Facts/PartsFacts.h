// What is known of a parts list once its rows have been read: how many there are, and how far each column is filled.
//
//   const PartsFacts facts = parts.readRows(*pTemplate);
//   const ColumnFacts* const pWeight = facts.find("%Weight");
//   facts.numRows            ->  417
//   pWeight->numFilled       ->  120: what the foot of a list says as "Weight: 120 of 417 rows"
//   pWeight->numDecimals     ->  2, of cells such as "12.50": the decimals that numbers without a unit are shown with
//
// A value. It counts what stands in the file: not the 1 that a row without a number of pieces gets, nor what a filter
// leaves out later.
#pragma once

#include "VorBomDataValue.h"

#include <string>
#include <vector>

namespace mekbom
{
struct ColumnFacts
{
    std::string token;   // "%Weight"
    std::string heading; // as the header row has it: "Weight [kg]"

    // Of all values of the column. kUnknownData where no cell has any and nothing else says it.
    VorBomDataValue::eBomDataValueType type = VorBomDataValue::kUnknownData;

    int numFilled = 0;   // rows that have a value
    int numDecimals = 0; // the most that a number is written with, 0 to 15, in the unit of its cell
};

struct PartsFacts
{
    int numRows = 0;
    int numEmptyRows = 0;             // passed over, since none of their cells holds anything
    std::vector<ColumnFacts> columns; // those that were kept because somebody asked for them, in the file's order

    // The column with this token; null when the parts list has none or nobody asked for it.
    const ColumnFacts* find(const std::string& token) const;
};
}
