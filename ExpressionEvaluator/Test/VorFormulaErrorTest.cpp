#include "ExpressionEvaluator/Src/ExpressionsEvaluator.h"
#include "ExpressionEvaluator/Src/VorExprEvalError.h"
#include "ExpressionEvaluator/Src/evaluateFormula.h"
#include "Support/FormulaSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
class VorFormulaErrorTest : public testing::Test
{
protected:
    FormulaLeakCheck m_leaks;
};

// Over the variables a = 2 and b = 0.5.
VorFormulaError errorOf(const wchar_t* formula)
{
    const wchar_t* const names[] = { L"a", L"b" };
    const double values[] = { 2.0, 0.5 };
    VorFormulaError error;
    error.code = VorFormulaError::kNotComputed;
    error.position = 99;
    double result = 7.0;
    const int nResult = evaluateFormula(formula, names, values, 2, &result, error);
    EXPECT_EQ(nResult, error.code == VorFormulaError::kNone ? 1 : 0) << toUtf8(formula);
    EXPECT_EQ(nResult, evaluateFormula(formula, names, values, 2, nullptr)) << toUtf8(formula);
    EXPECT_TRUE(nResult != 0 || result == 7.0) << toUtf8(formula);
    return error;
}

struct ErrorCase
{
    const wchar_t* formula;
    VorFormulaError::eCode code;
    int position;
};

using E = VorFormulaError;

const ErrorCase kCases[] = {
    { L"a*b+1", E::kNone, E::kNoPosition },
    { L"a*unknown", E::kSyntaxError, 2 },
    { L"a* unknown +1", E::kSyntaxError, 3 },
    { L"x*y+z", E::kSyntaxError, 0 },     // the first that is met
    { L"c=a*2;c*d", E::kSyntaxError, 8 }, // counted from the start of the formula, not of the statement
    { L"=5+1", E::kSyntaxError, 0 },
    { L"a*2;=5", E::kSyntaxError, 4 },
    { L"a/0.0", E::kDivisionByZero, 1 },
    { L"a/(b-0.5)+1/0", E::kDivisionByZero, 1 },
    { L"(1+2", E::kImpairedParenthesis, 0 },
    { L"((1+2)", E::kImpairedParenthesis, 0 },
    { L"(1+(2", E::kImpairedParenthesis, 3 },
    { L"1+2)*3", E::kImpairedParenthesis, 3 },
    { L")(1+2)", E::kImpairedParenthesis, 0 },
    { L"a+b;(a", E::kImpairedParenthesis, 4 },
    { L"a=4;2*a", E::kSyntaxError, 6 }, // on purpose: the last of several statements is read past the end
    { L"1+2", E::kTooShort, E::kNoPosition },
    { L"", E::kTooShort, E::kNoPosition },
    { L"longname", E::kNoOperator, E::kNoPosition },
};
}

TEST_F(VorFormulaErrorTest, CodeAndPlaceOfTheFirstErrorAreTold)
{
    for (const ErrorCase& c : kCases)
    {
        const VorFormulaError error = errorOf(c.formula);
        EXPECT_EQ(c.code, error.code) << toUtf8(c.formula);
        EXPECT_EQ(c.position, error.position) << toUtf8(c.formula);
    }
}

TEST_F(VorFormulaErrorTest, ArgumentsThatAreNoneAreTold)
{
    const wchar_t* const names[] = { L"a" };
    const double values[] = { 2.0 };
    VorFormulaError error;

    EXPECT_EQ(0, evaluateFormula(nullptr, names, values, 1, nullptr, error));
    EXPECT_EQ(E::kNoArguments, error.code);
    error = VorFormulaError();
    EXPECT_EQ(0, evaluateFormula(L"a*a+1", nullptr, values, 1, nullptr, error));
    EXPECT_EQ(E::kNoArguments, error.code);
    EXPECT_EQ(0, evaluateFormula(L"a*a+1", names, nullptr, 1, nullptr, error));
    EXPECT_EQ(0, evaluateFormula(L"a*a+1", names, values, -1, nullptr, error));
    EXPECT_EQ(E::kNoArguments, error.code);
}

TEST_F(VorFormulaErrorTest, SuccessClearsTheErrorBefore)
{
    VorFormulaError error = errorOf(L"a/0.0");
    const wchar_t* const names[] = { L"a" };
    const double values[] = { 2.0 };

    EXPECT_EQ(1, evaluateFormula(L"a*a+1", names, values, 1, nullptr, error));
    EXPECT_EQ(E::kNone, error.code);
    EXPECT_EQ(E::kNoPosition, error.position);
}

// Each code of a formula's own error is the one that VorExprEvalError has, under the text that it has there.
TEST_F(VorFormulaErrorTest, EveryCodeHasAMessage)
{
    for (const int code : { 0, 4, 5 })
    {
        E error;
        error.code = static_cast<E::eCode>(code);
        EXPECT_STREQ(VorExprEvalError::message(code), error.message());
    }
    for (const int code : { 0, 4, 5, 100, 101, 102, 103 })
    {
        E error;
        error.code = static_cast<E::eCode>(code);
        EXPECT_STRNE(L"", error.message());
    }
    EXPECT_STREQ(L"", E().message());
}

TEST_F(VorFormulaErrorTest, EvaluatorForgetsThePlaceWithTheNextSuccess)
{
    wchar_t buffer[VorExprEvValue::kBufferLength];
    ExpressionsEvaluator failing(L"1+2)*3", 6);
    EXPECT_EQ(VorExprEvalError::kNoPosition, failing.errorPosition());
    EXPECT_EQ(0, failing.evaluate(buffer));
    EXPECT_EQ(3, failing.errorPosition());
    ExpressionsEvaluator succeeding(L"1+2", 3);
    EXPECT_EQ(1, succeeding.evaluate(buffer));
    EXPECT_EQ(VorExprEvalError::kNoPosition, succeeding.errorPosition());
}

TEST_F(VorFormulaErrorTest, PlaceInAVeryLongFormulaIsFoundInOnePass)
{
    std::wstring formula = std::wstring(100'000, L'(') + L"1" + std::wstring(99'999, L')');

    const VorFormulaError error = errorOf(formula.c_str());

    EXPECT_EQ(E::kImpairedParenthesis, error.code);
    EXPECT_EQ(0, error.position);
}
