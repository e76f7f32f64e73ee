#include "ExpressionEvaluator/Src/VorCompiledFormula.h"

#include "ExpressionEvaluator/Src/ExpressionsEvaluator.h"
#include "ExpressionEvaluator/Src/VorExprEvVariableList.h"
#include "ExpressionEvaluator/Src/VorExprEvalErrorHandler.h"
#include "ExpressionEvaluator/Src/evaluateFormula.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

namespace
{
VorCompiledFormula compile(const VorString& text)
{
    return VorCompiledFormula(text.getStringW(), text.length());
}

// What the statement evaluator and the conversion of its text give; 0 for an error.
int evaluateAsText(const VorString& text, const std::vector<VorString>& names, const std::vector<double>& values,
                   double& result)
{
    ExpressionsEvaluator evaluator(text.getStringW(), static_cast<unsigned int>(text.length()));
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        VorExprEvValue value;
        value.setDouble(values[i]);
        evaluator.addVariable(VorExprEvTextView(names[i].getStringW(), 0, names[i].length()), value);
    }
    wchar_t buffer[VorExprEvValue::kBufferLength];
    if (!evaluator.evaluate(buffer))
        return 0;
    result = VorString::toDouble(buffer, 0);
    return 1;
}

bool isSameDouble(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0;
}

void expectSame(const VorString& text, const std::vector<double>& values)
{
    const VorCompiledFormula formula = compile(text);
    ASSERT_EQ(1, formula.isCompiled()) << text;
    ASSERT_LE(formula.names().size(), values.size()) << text;
    double expected = -1;
    double result = -1;
    EXPECT_EQ(evaluateAsText(text, formula.names(), values, expected), formula.evaluate(values.data(), result)) << text;
    EXPECT_TRUE(isSameDouble(expected, result)) << text << ": " << result << " for " << expected;
}
}

TEST(VorCompiledFormulaTest, NamesAreFoundOnceInTheOrderOfTheFormula)
{
    const VorCompiledFormula formula = compile(L"(%Weight+%Paint)*2*%Weight + my length");

    ASSERT_EQ(3U, formula.names().size());
    EXPECT_EQ(VorString(L"%Weight"), formula.names()[0]);
    EXPECT_EQ(VorString(L"%Paint"), formula.names()[1]);
    EXPECT_EQ(VorString(L"my length"), formula.names()[2]);
}

TEST(VorCompiledFormulaTest, StatementsAssignmentsAndDeepFormulasAreLeftToTheEvaluator)
{
    EXPECT_EQ(0, compile(L"a=4;a*2").isCompiled());
    EXPECT_EQ(0, compile(L"1+2;3+4").isCompiled());
    EXPECT_EQ(0, compile(L"a=4").isCompiled());

    VorString deep;
    for (int i = 0; i < 100; ++i)
        deep += L"1+(";
    deep += L"1";
    deep.append(L')', 100);
    EXPECT_EQ(0, compile(deep).isCompiled());

    VorString deepNames;
    for (int i = 0; i < 100; ++i)
        deepNames += L"a+(";
    deepNames += L"a";
    deepNames.append(L')', 100);
    EXPECT_EQ(0, compile(deepNames).isCompiled());
    EXPECT_EQ(0U, compile(deepNames).names().size());
}

TEST(VorCompiledFormulaTest, FormulasWhoseOperandsAndOperatorsDoNotTakeTurnsAreLeftToTheEvaluator)
{
    for (const wchar_t* text : { L"5*", L"*5", L"+", L"()()", L")(1", L"(1)(2)", L"2(3)", L"(1+2", L"1+2)", L"", L" " })
    {
        EXPECT_EQ(0, compile(text).isCompiled()) << VorString(text);
        EXPECT_EQ(0U, compile(text).names().size()) << VorString(text);
    }
}

TEST(VorCompiledFormulaTest, CompilingAndComputingLeaveVariablesAndErrorsAlone)
{
    double result = 0.0;
    const wchar_t* const names[] = { L"a" };
    evaluateFormula(L"a/0.0", names, &result, 1, nullptr);

    const double divisor = 0.0;
    EXPECT_EQ(0, compile(L"b/c-(c").isCompiled());
    EXPECT_EQ(0, compile(L"1/c+2").evaluate(&divisor, result));

    EXPECT_EQ(1, VorExprEvalErrorHandler::ofThread().count());
    EXPECT_EQ(1, VorExprEvVariableList::ofThread().count());
    ExpressionsEvaluator(nullptr, 0);
}

TEST(VorCompiledFormulaTest, ANanHasTheSignThatTheEvaluatorGivesIt)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double values[] = { nan, -nan, HUGE_VAL, -HUGE_VAL, 0.0, 2.5 };
    const wchar_t* const kFormulas[] = { L"a+b",       L"a*b",         L"a-b",         L"a/b",       L"b+a*1",
                                         L"0*(a*1+b)", L"0*((b*1)+a)", L"1+(a+2)*b",   L"(1-a)+b*b", L"a*b+b*a",
                                         L"-a+b",      L"-(a*b)",      L"a+nan*1+b*2", L"2*b-3*a",   L"(a-b)*(a+b)" };
    for (const wchar_t* pFormula : kFormulas)
        for (const double a : values)
            for (const double b : values)
            {
                const VorCompiledFormula formula = compile(pFormula);
                const std::vector<double> given =
                    formula.names()[0] == L"a" ? std::vector<double>{ a, b } : std::vector<double>{ b, a };
                double expected = 1.0;
                double result = 1.0;
                evaluateAsText(pFormula, formula.names(), given, expected);
                formula.evaluate(given.data(), result);
                EXPECT_EQ(std::signbit(expected), std::signbit(result)) << VorString(pFormula) << a << b;
            }
}

TEST(VorCompiledFormulaTest, VeryManyNamesAreFoundWithoutSearchingThemOneByOne)
{
    const int numNames = 200000;
    VorString sum(L"0");
    for (int i = 0; i < numNames; ++i)
    {
        VorString name;
        name.format(L"+%%n%d", i);
        sum += name;
    }

    const VorCompiledFormula formula = compile(sum);

    ASSERT_EQ(1, formula.isCompiled());
    ASSERT_EQ(static_cast<std::size_t>(numNames), formula.names().size());
    EXPECT_EQ(VorString(L"%n199999"), formula.names().back());
    const std::vector<double> values(formula.names().size(), 0.5);
    double result = 0.0;
    EXPECT_EQ(1, formula.evaluate(values.data(), result));
    EXPECT_EQ(100000.0, result);
}

TEST(VorCompiledFormulaTest, FormulasGiveWhatTheStatementEvaluatorGives)
{
    const wchar_t* const kFormulas[] = {
        L"1 + 2",  L"a*3.5", L"2*3+(4+5)*6", L"8-3-2",     L"8/4/2",    L"-2*3",      L"2*-3",         L"(-3)*a",
        L"1e+5",   L"0.1+0", L"10/0",        L"1/0.00005", L"1/0.0001", L"inf+1",     L"nan*1",        L"0x1p3+a",
        L"2abc+1", L"\v5*1", L"1/3+0",       L"a/b",       L"a - b",    L"-a",        L"--a",          L"a*b-b*a",
        L"0*-1",   L"a/b/b", L"(a+b)/(a-b)", L"1e30*10",   L"b*b*b*b",  L"0.5/1e6*1", L"-0.0000001*1",
    };
    for (const wchar_t* pFormula : kFormulas)
        for (const double a : { 2.0, -7.25, 0.0, 1e9, 0.0000005, 1.0000005 })
            for (const double b : { 3.0, 1e-7, -2.5, 123456.7890625 })
                expectSame(pFormula, { a, b, a });
}

TEST(VorCompiledFormulaTest, AResultIsHadUnroundedToo)
{
    const VorCompiledFormula formula = compile(L"%Weight/%Length");
    const double values[] = { 1, 3000 };
    double result = -1;

    EXPECT_EQ(1, formula.evaluate(values, result));
    EXPECT_EQ(0.000333, result);
    EXPECT_EQ(1, formula.evaluateUnrounded(values, result));
    EXPECT_EQ(1.0 / 3000, result);
    const double byZero[] = { 1, 0 };
    EXPECT_EQ(0, formula.evaluateUnrounded(byZero, result));
    EXPECT_EQ(1.0 / 3000, result) << "untouched";
}

TEST(VorCompiledFormulaTest, RoundingIsThatOfTheTextForEveryMagnitude)
{
    const VorCompiledFormula formula = compile(L"a*1");
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    for (int i = 0; i < 200000; ++i)
    {
        double value = std::ldexp(mantissa(random), static_cast<int>(random() % 60) - 25);
        if (i % 4 == 0) // next to the middle between two texts
            value = (std::floor(value * 1e6) + 0.5) / 1e6;
        double expected = 0;
        double result = 0;
        evaluateAsText(L"a*1", formula.names(), { value }, expected);
        formula.evaluate(&value, result);
        ASSERT_TRUE(isSameDouble(expected, result)) << value;
    }
}
