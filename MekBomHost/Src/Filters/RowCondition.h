// One condition of a filter, and how conditions are joined.
//
//   "%Material = 'S355' and not %BoltName"   is two conditions and the steps
//       kCondition 0, kCondition 1, kNot, kAnd
//
// which leave one answer when each kCondition puts one on a stack and the others take theirs from there.
#pragma once

#include "VorBomDataRow.h"

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <string>

namespace mekbom
{
struct RowCondition
{
    enum eOperator
    {
        kIsThere,
        kEqual,
        kUnequal,
        kLess,
        kLessOrEqual,
        kGreater,
        kGreaterOrEqual
    };

    // Whether the row meets the condition. Values of another kind than the one compared with meet none but kUnequal.
    bool isMetBy(const VorBomDataRow& row) const;

    VorString token;
    eOperator comparison = kIsThere;
    std::string operand;   // UTF-8, as it was written, without its quotes
    bool isQuoted = false; // it was written with quotes, and is no number

    // What RowFilter::settle makes of the operand.
    bool isNumber = false;
    double number = 0; // in the model's unit
    VorString text;

private:
    bool isMetBySign(int sign) const;
};

struct FilterStep
{
    enum eAction
    {
        kCondition,
        kNot,
        kAnd,
        kOr
    };

    eAction action;
    std::size_t condition = 0; // of kCondition
};
}
