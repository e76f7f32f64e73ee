// What the footers of a list show in a column: the sum of their rows, or what the column says instead.
//
//   "total" of the column                                          what its footers show
//   "max"                                                          the greatest value
//   { "formula": "%C/%N", "of": { "%C": "%SumBy:%Cost", ... } }    what is calculated from sums of the same footer
//
// The engine adds up all the same. A value.
#pragma once

#include "MekRoots/Exp/VorString.h"

#include <vector>

namespace mekbom
{
struct ColumnTotal
{
    enum eKind
    {
        kSum,
        kCount,     // how many rows have a value, be it a number or a text
        kLeast,     // the smallest value
        kGreatest,  // the largest one
        kMean,      // of all pieces where a row's value is that of one piece, else of all rows
        kCalculated // what a formula makes of sums of the same footer
    };

    // A name in the formula, and the total that it stands for.
    struct Operand
    {
        VorString name; // "%Weight"
        VorString sum;  // "%SumBy:%Formula:%Weight*%Quantity"
    };

    // "mean", as template files call it; also "sum", which is the usual one, and "formula".
    static const char* nameOf(eKind kind)
    {
        static const char* const names[] = { "sum", "count", "min", "max", "mean", "formula" };
        return names[kind];
    }

    eKind kind = kSum;
    VorString formula; // of kCalculated alone, as are the operands
    std::vector<Operand> operands;
};
}
