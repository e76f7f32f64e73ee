// Computes a formula over announced variables while it reads it, without a tree: the quick way of evaluateFormula.
//
//   VorExprEvVariableList variables;
//   const wchar_t* const names[] = { L"a", L"b" };
//   const double values[] = { 2.0, 3.0 };
//   variables.announce(names, values, 2);
//   double result = 0.0;
//   VorFormulaCalculator(variables).calculate(L"c=b+1;a*c*1", result);      // 1, result 8; c is announced, too
//
// Answers only where nothing can go wrong: the formula has an operator, operands and operators take turns, all operands
// are numbers or known names, nothing is divided by anything near zero, an assignment is all of its statement and has a
// name on its left, and variables are few. For any other formula 0 is answered, `result` is as before, the variables
// are announced as they were, and ExpressionsEvaluator has to tell what it is worth. Where both answer, they give the
// same number, bit for bit, that of ExpressionsEvaluator read from its text, and leave the same variables. A NaN is
// left to ExpressionsEvaluator, too: its sign depends on which side of an operator comes first.
#pragma once

class VorExprEvVariableList;

class VorFormulaCalculator
{
public:
    // All that `variables` holds must be announced alone. It is not owned.
    explicit VorFormulaCalculator(VorExprEvVariableList& variables) : m_variables(variables) {}

    // `formula` is zero-terminated.
    int calculate(const wchar_t* formula, double& result);

private:
    VorExprEvVariableList& m_variables;
};
