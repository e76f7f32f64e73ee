#include "ExpressionEvaluator/Src/OneShot/VorFormulaCalculator.h"

#include "ExpressionEvaluator/Src/VorExprEvVariableList.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
// Over a = 2, b = 3 and my length = 1000: the result, "-" for none, and how many variables there are.
std::string calculated(const wchar_t* formula)
{
    const wchar_t* const names[] = { L"a", L"b", L"my length" };
    const double values[] = { 2.0, 3.0, 1000.0 };
    VorExprEvVariableList variables;
    variables.announce(names, values, 3);
    double result = -1.0;
    const int nResult = VorFormulaCalculator(variables).calculate(formula, result);
    EXPECT_TRUE(nResult == 1 || result == -1.0) << toUtf8(formula);
    return (nResult ? toUtf8(VorString(std::to_wstring(result).c_str())) : "-") + " " +
           std::to_string(variables.count());
}
}

TEST(VorFormulaCalculatorTest, FormulasAreComputedWhileTheyAreRead)
{
    EXPECT_EQ("8.000000 3", calculated(L"2*(1+b)"));
    EXPECT_EQ("90.000000 3", calculated(L"2*3+(4+5)*6"));
    EXPECT_EQ("-6.000000 3", calculated(L"-a*b"));
    EXPECT_EQ("500.000000 3", calculated(L"my length / a"));
    EXPECT_EQ("0.333333 3", calculated(L"1/3+0"));
    EXPECT_EQ("100005.000000 3", calculated(L"1e+5"));
    EXPECT_EQ("8.000000 4", calculated(L"c=b+1;a*c*1"));
    EXPECT_EQ("7.000000 4", calculated(L" a = 7 ; a * 1 "));
    EXPECT_EQ("5.000000 4", calculated(L"2abc=5"));
    EXPECT_EQ("40.000000 3",
              calculated(L"((((((((((((((((((((((((((((((((((((((((40))))))))))))))))))))))))))))))))))))))))"));
}

TEST(VorFormulaCalculatorTest, WhereAnythingCouldGoWrongNothingIsAnsweredAndNothingChanged)
{
    for (const wchar_t* formula :
         { L"12345", L"a",         L"1;2",     L"x+1",    L"a+",          L"*a",     L"(a)(b)", L"(a",
           L"a)",    L"a/0.00005", L"c=4;2*c", L"c=4;c=", L"a=b=3",       L"2+c=3",  L"(c)=3",  L"=3",
           L"c=4;",  L"c=x",       L"c=1;x*1", L"nan*1",  L"c=nan;c*0+1", L"inf-inf" })
        EXPECT_EQ("- 3", calculated(formula)) << toUtf8(formula);
}
