// Formulas that nobody would write, as long as anybody could paste: each must end in its value or its error, without a
// deep call stack, without a leak, and in time that grows with the length alone.
#include "ExpressionEvaluator/Src/VorFormulaText.h"
#include "ExpressionEvaluator/Src/evaluateFormula.h"
#include "Support/FormulaSupport.h"

#include <limits>
#include <random>

namespace
{
constexpr int kLong = 100000;
constexpr double kFailed = -777.0;

class evaluateFormulaHostileTest : public testing::Test
{
protected:
    FormulaLeakCheck m_leaks;
};

// The value of a formula over a = 2, kFailed when it has none.
double value(const std::wstring& formula)
{
    const wchar_t* const names[] = { L"a" };
    const double values[] = { 2.0 };
    double result = kFailed;
    const int nResult = evaluateFormula(formula.c_str(), names, values, 1, &result);
    EXPECT_EQ(nResult == 0, result == kFailed);
    return result;
}
}

TEST_F(evaluateFormulaHostileTest, LongChainsOfOneOperator)
{
    const int nTerms = kLong / 2;

    EXPECT_EQ(nTerms + 1.0, value(repeated(L"1+", nTerms) + L"1"));
    EXPECT_EQ(1.0 - nTerms, value(L"1" + repeated(L"-1", nTerms)));
    EXPECT_EQ(1.0, value(repeated(L"1*", nTerms) + L"1"));
    EXPECT_EQ(1.0, value(repeated(L"1/", nTerms) + L"1"));
    EXPECT_EQ(3.0, value(repeated(L"a=", nTerms) + L"3")); // only the last assignment runs
}

TEST_F(evaluateFormulaHostileTest, LongChainsOfTwoOperators)
{
    EXPECT_EQ(kLong / 4 + 1.0, value(repeated(L"1+1*", kLong / 4) + L"1"));
    EXPECT_EQ(6.0, value(repeated(L"x=1+", kLong / 4) + L"5")); // (..(x = 1+x) = ..) = 1+5
}

TEST_F(evaluateFormulaHostileTest, LongRowsOfNegations)
{
    EXPECT_EQ(1.0, value(repeated(L"-", kLong) + L"1"));
    EXPECT_EQ(-1.0, value(repeated(L"-", kLong - 1) + L"1"));
    EXPECT_EQ(0.0, value(repeated(L"-", kLong)));
    EXPECT_EQ(2.0, value(repeated(L"1*-", kLong) + L"2"));
    EXPECT_EQ(1.0, value(repeated(L"-(", kLong / 2) + L"1" + repeated(L")", kLong / 2)));
}

TEST_F(evaluateFormulaHostileTest, DeepParentheses)
{
    const int nDepth = kLong / 2;
    const std::wstring open = repeated(L"(", nDepth);
    const std::wstring close = repeated(L")", nDepth);

    EXPECT_EQ(7.0, value(open + L"7" + close));
    EXPECT_EQ(0.0, value(open + close));
    EXPECT_EQ(0.0, value(close + open));
    EXPECT_EQ(nDepth + 7.0, value(repeated(L"1+(", nDepth) + L"7" + close));
    EXPECT_EQ(nDepth + 7.0, value(open + L"7" + repeated(L"+1)", nDepth)));
    EXPECT_EQ(0.0, value(repeated(L"()", nDepth)));
}

TEST_F(evaluateFormulaHostileTest, UnbalancedParentheses)
{
    EXPECT_EQ(kFailed, value(repeated(L"(", kLong)));
    EXPECT_EQ(kFailed, value(repeated(L")", kLong)));
    EXPECT_EQ(kFailed, value(repeated(L"1+(", kLong / 3)));
    EXPECT_EQ(kFailed, value(repeated(L"1)+", kLong / 3)));
    EXPECT_EQ(kFailed, value(repeated(L"(", kLong / 2) + L"1" + repeated(L")", kLong / 2 - 1)));
    EXPECT_EQ(kFailed, value(repeated(L"(1", kLong / 2)));
}

TEST_F(evaluateFormulaHostileTest, ManyOperandsWithoutOperators)
{
    EXPECT_EQ(1.0, value(repeated(L"(1)", kLong / 3)));
    EXPECT_EQ(1.0, value(repeated(L"1(", kLong / 3) + L"1" + repeated(L")", kLong / 3)));
    EXPECT_EQ(2.0, value(repeated(L"(1)", kLong / 3) + L"+1")); // the last two are added, the others dropped
    EXPECT_EQ(2.0, value(repeated(L"nobody(1)", kLong / 9) + L"+1"));
}

TEST_F(evaluateFormulaHostileTest, ManyOperatorsWithoutOperands)
{
    for (const wchar_t* operation : { L"*", L"+", L"*+", L"+*" })
        EXPECT_EQ(0.0, value(repeated(operation, kLong / 2))) << VorString(operation);
    EXPECT_EQ(kFailed, value(repeated(L"/", kLong))); // nothing divided by nothing
    EXPECT_EQ(kFailed, value(repeated(L"=", kLong)));
    EXPECT_EQ(kFailed, value(repeated(L"=+", kLong / 2)));
}

TEST_F(evaluateFormulaHostileTest, ManyStatements)
{
    EXPECT_EQ(2.0, value(repeated(L"1+1;", kLong / 4)));
    EXPECT_EQ(3.0, value(repeated(L";", kLong) + L"1+2"));
    EXPECT_EQ(kLong / 6 + 2.0, value(repeated(L"a=a+1;", kLong / 6))); // every one makes a variable
    EXPECT_EQ(kFailed, value(repeated(L"1+1;", kLong / 4) + L"nobody"));
}

TEST_F(evaluateFormulaHostileTest, ManyVariables)
{
    constexpr int kMany = 20000;
    std::wstring formula;
    for (int i = 0; i < kMany; ++i)
        formula += L"v" + std::to_wstring(i) + L"=" + std::to_wstring(i) + L";";
    formula += L"(v0+v1+v" + std::to_wstring(kMany - 1) + L")";

    EXPECT_EQ(kMany, value(formula));
}

TEST_F(evaluateFormulaHostileTest, ManyErrors)
{
    EXPECT_EQ(kFailed, value(repeated(L"nobody+", kLong / 7) + L"1"));
    EXPECT_EQ(kFailed, value(repeated(L"1/0+", kLong / 4) + L"1"));
}

TEST_F(evaluateFormulaHostileTest, LongOperands)
{
    EXPECT_EQ(kFailed, value(repeated(L"x", kLong) + L"+1"));
    EXPECT_EQ(std::numeric_limits<double>::infinity(), value(repeated(L"9", kLong) + L"+1"));
    EXPECT_EQ(1.0, value(L"0." + repeated(L"0", kLong) + L"1+1"));
    EXPECT_EQ(2.0, value(repeated(L"0", kLong) + L"1+1"));
    EXPECT_EQ(3.0, value(repeated(L" ", kLong) + L"1" + repeated(L"\t", kLong) + L"+2" + repeated(L"\n", kLong)));
    EXPECT_EQ(3.0, value(L"1" + repeated(L" x", kLong) + L"+2"));
    EXPECT_EQ(3.0, value(repeated(L"\v", kLong) + L"1+2"));
    EXPECT_EQ(1.0, value(L"1e" + repeated(L"0", kLong) + L"+0"));
}

TEST_F(evaluateFormulaHostileTest, ALongViewPastTheEnd)
{
    const std::wstring statements = repeated(L";", kLong);

    EXPECT_EQ(8.0, value(L"x=4;" + statements + L"(x*2)"));
    EXPECT_EQ(8.0, value(L"x=4;" + statements + L"x*2"));
    EXPECT_EQ(kFailed, value(L"x=4;" + statements + L"2*x"));
}

TEST_F(evaluateFormulaHostileTest, RandomCharacters)
{
    const std::wstring alphabet = std::wstring(VorFormulaText::kOperators) + L";;()+-*/aab12.05ex \t\v\u00e9\U0001F600";
    std::mt19937 random(20240501); // arbitrary
    for (int i = 0; i < 20000; ++i)
    {
        std::wstring formula;
        const std::size_t nLength = random() % 40;
        while (formula.size() < nLength)
            formula += alphabet[random() % alphabet.size()];
        value(formula); // checks that result and success agree, under leak check and sanitizers
    }
}
