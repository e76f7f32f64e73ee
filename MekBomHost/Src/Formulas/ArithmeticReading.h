// A formula as ordinary arithmetic reads it, which is how its author most likely means it.
//
//   ArithmeticReading::read(L"2*3+(4+5)*6").tree.text()   ->  "((2*3)+((4+5)*6))"
//   ArithmeticReading::read(L"8/-2/2").tree.text()        ->  "((8/(-2))/2)"
//   ArithmeticReading::read(L"round(a*2.2)").fault        ->  kFactorLost, what "round"
//
// A sign binds tightest, then '*' and '/', then '+' and '-', then '='; all from the left. Parentheses group what is
// between them. There are no functions, and no factors without a sign between them. Names may have blanks within.
#pragma once

#include "FormulaTree.h"

namespace mekbom
{
struct ArithmeticReading
{
    // Why a formula is none by these rules; the tree is of no use then.
    enum eFault
    {
        kNone,
        kOperandMissing, // "a*", "()", "a+*b"
        kFactorLost,     // "round(a)", "2(3+4)", "(a)(b)": an operand with another behind it
        kNoNumber,       // "2,5", "10%", "2nd": begins as a number and goes on as something else
        kCrossed,        // ")a+b(": a ')' closes nothing
        kNotClosed       // "(a+b"
    };

    FormulaTree tree;
    eFault fault = kNone;
    std::string what; // the operand that is lost or no number; UTF-8

    // Reads the text behind "%Formula:", up to the first fault. The text is not needed afterwards.
    static ArithmeticReading read(const VorString& formula);
};
}
