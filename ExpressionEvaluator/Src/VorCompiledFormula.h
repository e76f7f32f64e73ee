// A formula that is read once and computed for many rows.
//
//   VorCompiledFormula formula(L"(%Weight+%Paint)*2", 18);
//   formula.isCompiled()                   ->  1
//   formula.names()                        ->  "%Weight", "%Paint"
//   const double values[] = { 12.5, 3.2 };
//   formula.evaluate(values, result)       ->  1, result 31.4
//
// Only formulas of one statement without an assignment, not nested deeper than usual, are compiled; all others are left
// to ExpressionsEvaluator. For those that are, success and result are those that ExpressionsEvaluator and the
// conversion of its text give, bit for bit, the rounding to six decimals and the sign of a NaN included. Neither
// compiling nor evaluating touches the variables and errors of the thread, and nothing is traced.
//
// Owns all it needs; the text may go. Objects may be shared by threads once they are built.
#pragma once

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorString.h"

#include <cmath>
#include <vector>

class MEK_EXPRESSION_API VorCompiledFormula
{
public:
    VorCompiledFormula(const wchar_t* text, int length);

    // 0 for a formula that must go through ExpressionsEvaluator; it has no names and may not be evaluated.
    int isCompiled() const { return m_bCompiled; }

    // The names to be given a value, each once.
    const std::vector<VorString>& names() const { return m_names; }

    // 1 with `result`, or 0 with it untouched when it divides by zero.
    // values[i] is the value of names()[i]. When a name has no value there is nothing to compute: the formula fails.
    int evaluate(const double* values, double& result) const
    {
        const int nResult = compute<false, true>(values, result);
        return nResult != 0 && std::isnan(result) ? compute<true, true>(values, result) : nResult; // rare, and dear
    }

    // The same with all the digits of the result, for who is bound to no text of it: evaluate() makes 0.000566 of a
    // weight of 0.00056568 kg/mm. A NaN has either sign.
    int evaluateUnrounded(const double* values, double& result) const { return compute<false, false>(values, result); }

private:
    // Deeper formulas are left to ExpressionsEvaluator. Arbitrary; formulas of reports nest a few deep.
    static constexpr int kDeepest = 32;

    // One step of a computation on a stack: push a number, push a name's value, or replace the two on top.
    struct Step
    {
        wchar_t operation; // an operator, kPushNumber or kPushName
        int name;
        double number;
    };
    static constexpr wchar_t kPushNumber = L'#';
    static constexpr wchar_t kPushName = L'%';

    class StepWriter;

    // With the left of two NaNs going on, and with the result rounded as its text is, if asked for.
    template <bool kLeftFirst, bool kIsRounded>
    int compute(const double* values, double& result) const;

    std::vector<Step> m_steps; // at least one in a compiled formula
    std::vector<VorString> m_names;
    int m_bCompiled = 0;
};
