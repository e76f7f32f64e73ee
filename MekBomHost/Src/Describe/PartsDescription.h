// What stands in a parts list, column by column, as texts for people to read.
//
//   parts.csv          Name,Length [ft],Quantity      HEA200,7.5,4     IPE360,10,2
//
//   name "parts.csv", numRows 2
//   columns   Name         %Name      text          2 filled   2 distinct   HEA200 to IPE360
//             Length [ft]  %Length    length, ft    2 filled   2 distinct   7.5 to 10      sum 17.5, of pieces 50
//             Quantity     %Quantity  whole number  2 filled   2 distinct   2 to 4         sum 6
//
// A value, which PartsDescriber makes.
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace mekbom
{
struct ColumnDescription
{
    std::string heading; // as the header row has it
    std::string token;   // "%Length"
    std::string kind;    // "text", "whole number", "number", "length", "weight of all pieces"; "nothing" without cells
    std::string unit;    // of the numbers: "ft", "mm (assumed)", "?"; empty where there is none
    std::size_t numFilled = 0;
    std::string numDistinct; // "2", "more than 100000"

    // In the unit; empty where there is none, or where nobody can tell it. The sums of texts, and of what nobody adds
    // up, such as densities, are empty.
    std::string smallest; // of texts the first in natural order
    std::string largest;
    std::string sumOfRows; // of the cells as they stand
    std::string
        sumOfPieces; // of the cells, each times the pieces of its row; of totals of all pieces as they stand, and
                     // of the column of pieces their number, one for a row that does not say it
};

struct PartsDescription
{
    std::string name;
    std::size_t numRows = 0;
    std::size_t numEmptyRows = 0; // passed over
    bool hasPieces = false; // the file has a column of pieces, and each row says how many; else a row is one piece
    std::vector<ColumnDescription> columns;
    std::vector<std::string> oddities;    // messages, which name their places
    std::set<std::string> doubtfulTokens; // that a column may carry, and nobody can tell which
};
}
