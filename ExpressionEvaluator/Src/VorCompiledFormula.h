// A formula that is read once and computed for many rows.
//
//   VorCompiledFormula formula(L"(%Weight+%Paint)*2", 18);
//   formula.isCompiled()                   ->  1
//   formula.names()                        ->  "%Weight", "%Paint"
//   const double values[] = { 12.5, 3.2 };
//   formula.evaluate(values, result)       ->  1, result 31.4
//
// Only formulas of one statement without an assignment, not nested deeper than usual, are compiled; all others are left
// to ExpressionsEvaluator. For those that are, success and result are those that ExpressionsEvaluator and the conversion
// of its text give, bit for bit, the rounding to six decimals included. Evaluating touches neither the variables nor the
// errors of the thread; compiling empties its errors.
//
// Owns all it needs; the text may go. Objects may be shared by threads once they are built.
#pragma once

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorString.h"

#include <map>
#include <string_view>
#include <vector>

class VorExprEvTreeItem;

class MEK_EXPRESSION_API VorCompiledFormula
{
public:
    VorCompiledFormula(const wchar_t* text, int length);

    // 0 for a formula that must go through ExpressionsEvaluator; it has no names and may not be evaluated.
    int isCompiled() const { return m_bCompiled; }

    // The names to be given a value, each once.
    const std::vector<VorString>& names() const { return m_names; }

    // 1 with `result`, or 0 with it untouched for a formula that has an error whatever its values, or divides by zero.
    // values[i] is the value of names()[i]. When a name has no value there is nothing to compute: the formula fails.
    int evaluate(const double* values, double& result) const;

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

    using NameIndices = std::map<std::wstring_view, int>; // into m_names, while they are gathered

    int compile(const VorExprEvTreeItem* pRoot);
    void addOperand(const VorExprEvTreeItem* pOperand, NameIndices& indices);
    int indexOfName(std::wstring_view name, NameIndices& indices);

    std::vector<Step> m_steps; // empty for a formula without operands, whose value is 0
    std::vector<VorString> m_names;
    int m_bCompiled = 0;
    int m_bFails = 0;
};
