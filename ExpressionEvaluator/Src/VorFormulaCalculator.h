// Computes a formula over named numbers at once, without a tree and without variables: the quick way of
// evaluateFormula.
//
//   const wchar_t* names[] = { L"a", L"b" };
//   const double values[] = { 2.0, 3.0 };
//   VorFormulaCalculator(names, values, 2).calculate(L"a*(b+1)", 7, result)   ->  1, result 8
//
// Answers only where nothing can go wrong: formulas of one statement without assignment, all of whose operands are
// numbers or known names, and which divide by nothing near zero. For any other 0 is answered, `result` is untouched, and
// ExpressionsEvaluator has to tell what it is worth. Where both answer, they give the same number, bit for bit, that of
// ExpressionsEvaluator read from its text.
//
// Owns nothing; names and values must live as long as it does. Null names are passed over; of equal ones the last
// counts.
#pragma once

#include "VorShortStack.h"
#include "VorStatementReader.h"

class VorFormulaCalculator
{
public:
    VorFormulaCalculator(const wchar_t* const* names, const double* values, int count);

    int calculate(const wchar_t* formula, int length, double& result);

private:
    friend class VorStatementReader<VorFormulaCalculator>; // reads for it
    using Reader = VorStatementReader<VorFormulaCalculator>;

    void addNothing() { m_numbers.push(0.0); }
    void addOperand(int nStart, int nEnd);
    void reduce(int nPosition);
    void trace(const Reader::OperatorStack&) {}

    int findValue(const wchar_t* name, int nLength, double& value) const;
    double takeNumber() { return m_numbers.isEmpty() ? 0.0 : m_numbers.pop(); }

    const wchar_t* const* m_pNames;
    const double* m_pValues;
    int m_nCount;
    VorExprEvTextView m_formula;
    VorShortStack<double, Reader::kUsualDepth> m_numbers;
    bool m_bFails = false;
};
