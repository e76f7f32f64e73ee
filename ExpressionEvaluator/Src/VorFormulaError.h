// Why a formula gave no number, and where.
//
//   evaluateFormula(L"%Weight/%Count", names, values, 2, &result, error)   ->  0, where %Count is 0
//   error.code        ->  kDivisionByZero
//   error.position    ->  7: the '/'
//   error.message()   ->  "Division by zero"
//
// A plain value.
#pragma once

#include "MekRoots/Exp/MekExport.h"

struct MEK_EXPRESSION_API VorFormulaError
{
    // Those below 100 are codes of VorExprEvalError.
    enum eCode : int
    {
        kNone = -1,
        kSyntaxError = 0,         // an unknown name, or a '=' without a left side
        kImpairedParenthesis = 4, // more '(' than ')' or the reverse
        kDivisionByZero = 5,      // a divisor within 0.0001 of zero

        // Nothing was computed:
        kNoArguments = 100, // a null formula or array, or a negative count
        kTooShort = 101,    // fewer than four characters
        kNoOperator = 102,  // none of "*/+-=()": a plain name or number
        kNotComputed = 103  // no memory, or more than 2^31 - 1 characters
    };
    static constexpr int kNoPosition = -1;

    // A message for the user, zero-terminated; empty for kNone. The texts of codes below 100 are those that formulas
    // have always failed with, their spelling included.
    const wchar_t* message() const;

    eCode code = kNone;
    int position = kNoPosition; // in characters from the start of the formula; kNoPosition where there is no place
};
