// Computes a formula over announced variables at once, without a tree: the quick way of evaluateFormula.
//
//   variables.announce(names, values, 2);                                   // a = 2, b = 3
//   VorFormulaCalculator(variables).calculate(L"c=b+1;a*c*1", result)   ->  1, result 8; c is announced, too
//
// Answers only where nothing can go wrong: the formula has an operator, operands and operators take turns, all operands
// are numbers or known names, nothing is divided by anything near zero, an assignment is all of its statement and has a
// name on its left, and variables are few. For any other formula 0 is answered, `result` and the variables are as before, and ExpressionsEvaluator has to
// tell what it is worth. Where both answer, they give the same number, bit for bit, that of ExpressionsEvaluator read
// from its text, and leave the same variables.
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
