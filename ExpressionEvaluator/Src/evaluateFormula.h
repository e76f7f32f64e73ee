// Computes one formula over named numbers.
//
//   const wchar_t* names[] = { L"%Weight", L"%Paint" };
//   const double values[] = { 12.5, 3.2 };
//   double result = 0.0;
//   evaluateFormula(L"(%Weight+%Paint)*2", names, values, 2, &result);   // 1, result 31.4
//
// A second form says why a formula gave no number.
//
// A formula is one or more statements, separated by ';', of numbers, names and the operators "*/+-=()"; '=' makes a
// variable for the statements after it, and the last statement's value is the result. VorExpressionEvaluator.h tells
// how a statement is read.
#pragma once

#include "VorFormulaError.h"

#include "MekRoots/Exp/MekExport.h"

// Evaluates zero-terminated `formula`, in which names[i] stands for values[i]; null names are passed over, and of equal
// names the last counts. Both arrays have `count` entries. Nothing is kept of the arguments. Any number of threads may
// be in here at once. Throws nothing.
//
// Returns 1 with the value in `*result`, unless `result` is null. The value is rounded to six decimals (1/3 gives
// 0.333333), and numbers in the formula are read in single precision.
//
// Returns 0 with `*result` untouched when
//   - the formula is null, shorter than four characters (on purpose, however valid), or has none of "*/+-=()",
//   - `names` or `values` is null, or `count` is negative,
//   - the parentheses do not balance, a name is unknown, a divisor lies within 0.0001 of zero, or a '=' has no
//     left side.
// The thread's variables and errors are then and after a success those of this formula, with names of their own. A null
// formula leaves both as they are.
extern "C" MEK_EXPRESSION_API int evaluateFormula(const wchar_t* formula, const wchar_t* const* names,
                                                  const double* values, int count, double* result);

// The same, and says why there is no number, and where: `error` is kNone after a success. It is not kept.
// VorFormulaError.h shows it.
// Of several errors the one that was met first is told; a statement behind it is not looked at.
MEK_EXPRESSION_API int evaluateFormula(const wchar_t* formula, const wchar_t* const* names, const double* values,
                                       int count, double* result, VorFormulaError& error);
