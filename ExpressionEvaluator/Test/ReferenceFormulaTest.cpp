// The slow evaluator that the product is compared with must be right by itself, or agreement with it says nothing.

#include "ExpressionEvaluator/Test/Reference/ReferenceFormula.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
struct WorkedFormula
{
    const wchar_t* formula;
    const wchar_t* text;
};

// Worked out by hand; `a` is 2 and `my length` 1000.
const WorkedFormula kWorkedFormulas[] = {
    { L"7", L"7.000000" },
    { L"1 + 2", L"3.000000" },
    { L"8-3-2", L"3.000000" },
    { L"8/4/2", L"1.000000" },
    { L"(2+3)*4", L"20.000000" },
    { L"2*(3+4)", L"14.000000" },
    { L"2*3+(4+5)*6", L"90.000000" },
    { L"7 * ( 2 + 1 )", L"21.000000" },
    { L"-2*3", L"-6.000000" },
    { L"2*-3", L"-6.000000" },
    { L"-2+3", L"1.000000" },
    { L"(-3)", L"-3.000000" },
    { L"5*", L"0.000000" },
    { L"+", L"0.000000" },
    { L"0.1*1", L"0.100000" },
    { L"16777217+0", L"16777216.000000" },
    { L"1/3+0", L"0.333333" },
    { L"a * 3.5", L"7.000000" },
    { L"my length * 2", L"2000.000000" },
    { L"my  length * 2", L"Syntax error" },
    { L"x + 1", L"Syntax error" },
    { L"2abc", L"2.000000" },
    { L"abc", L"Syntax error" },
    { L"2e+5", L"200005.000000" },
    { L"2e*5", L"10.000000" },
    { L"0x1p3", L"8.000000" },
    { L"0x*1", L"Syntax error" },
    { L"inf+1", L"inf" },
    { L"infix+1", L"Syntax error" },
    { L"10/0", L"Division by zero" },
    { L"1/0.00005", L"Division by zero" },
    { L"1/0.0002", L"5000.000126" },
    { L"=10/0", L"Division by zero" },
    { L"=5+1", L"Syntax error" },
    { L"(1+2", L"Impaired paranthesis" },
    { L"1+2)", L"Impaired paranthesis" },
    { L")(", L"" },
    { L"()()", L"" },
    { L" \t ", L"" },
    { L"", L"" },
    { L"b=4;b*2", L"8.000000" },
    { L"b=4;2*b", L"Syntax error" },
    { L"b=4;", L"4.000000" },
    { L"10/0;1+1", L"Division by zero" },
    { L"b=c=3;", L"3.000000" },
    { L"5+\f", L"5.000000" },
    { L"\f-5", L"-10.000000" },
};
}

TEST(ReferenceFormulaTest, WorkedFormulasComeOutAsWorkedOutByHand)
{
    const std::vector<FormulaVariable> variables = { { L"a", FormulaValue::real(2) },
                                                     { L"my length", FormulaValue::real(1000) } };
    for (const WorkedFormula& worked : kWorkedFormulas)
        EXPECT_EQ(worked.text, ReferenceFormula(worked.formula, variables).run().text) << worked.formula;
}
