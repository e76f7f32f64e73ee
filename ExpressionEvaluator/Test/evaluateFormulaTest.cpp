#include "ExpressionEvaluator/Src/evaluateFormula.h"
#include "Support/DebugLog.h"
#include "Support/FormulaSupport.h"

#include <cfloat>
#include <clocale>
#include <cmath>
#include <limits>
#include <vector>

namespace
{
class evaluateFormulaTest : public testing::Test
{
protected:
    FormulaLeakCheck m_leaks;
};

constexpr double kUntouched = -777.0;

struct Outcome
{
    int nResult;
    double result;
};

// Over the variables a = 2, b = 0.5, my length = 1000.
Outcome evaluate(const wchar_t* formula)
{
    const wchar_t* const names[] = { L"a", L"b", L"my length" };
    const double values[] = { 2.0, 0.5, 1000.0 };
    Outcome outcome = { -1, kUntouched };
    outcome.nResult = evaluateFormula(formula, names, values, 3, &outcome.result);
    return outcome;
}

struct ResultCase
{
    const wchar_t* formula;
    double result;
};

template <int N>
void expectResults(const ResultCase (&cases)[N])
{
    for (const ResultCase& c : cases)
    {
        const Outcome outcome = evaluate(c.formula);
        EXPECT_EQ(1, outcome.nResult) << toUtf8(c.formula);
        EXPECT_EQ(c.result, outcome.result) << toUtf8(c.formula);
    }
}

void expectFailure(const wchar_t* formula)
{
    const Outcome outcome = evaluate(formula);
    EXPECT_EQ(0, outcome.nResult) << VorString(formula);
    EXPECT_EQ(kUntouched, outcome.result) << VorString(formula);
}
}

TEST_F(evaluateFormulaTest, FormulasAreComputed)
{
    const ResultCase cases[] = {
        { L"1 + 2", 3.0 },        { L"a * 3.5", 7.0 },          { L"(a+b)*2", 5.0 },
        { L"2*3+(4+5)*6", 90.0 }, { L"my length * 2", 2000.0 }, { L"1e+5", 100005.0 },
        { L"-a+b", -1.5 },
    };
    expectResults(cases);
}

TEST_F(evaluateFormulaTest, StatementsAreComputedFromTheLeft)
{
    const ResultCase cases[] = {
        { L"a=4;a*2", 8.0 },
        { L"x=my length/1000;x*a*3", 6.0 },
        { L"x=4;", 4.0 },
        { L"x=a;y=b;(x+y)", 2.5 },
    };
    expectResults(cases);
}

TEST_F(evaluateFormulaTest, ParenthesesAndNegationsMayStandAnywhereBeforeAnOperand)
{
    const ResultCase cases[] = {
        { L"1)+(2*3", 7.0 },   { L"2*-3+4", -2.0 },         { L"2--3*4", 14.0 },          { L"-(-(a))*3", 6.0 },
        { L"8/-(2+2)", -2.0 }, { L" ( a ) * ( b ) ", 1.0 }, { L"x=-(a+3)*-2;x*1", 10.0 },
    };
    expectResults(cases);
}

TEST_F(evaluateFormulaTest, FormulasShorterThanFourCharactersAreRefused)
{
    for (const wchar_t* formula : { L"", L"+", L"a", L"1+", L"1+2", L"a*b", L"(1)" })
        expectFailure(formula);
    const ResultCase cases[] = { { L"1+ 2", 3.0 }, { L"1+2;", 3.0 } };
    expectResults(cases);
}

TEST_F(evaluateFormulaTest, FormulasWithoutOperatorAreRefused)
{
    for (const wchar_t* formula : { L"12345", L"my length", L"1;2;3;4", L"    ", L"2^3.5" })
        expectFailure(formula);
}

TEST_F(evaluateFormulaTest, EveryOperatorMakesAFormula)
{
    const ResultCase cases[] = {
        { L"2*10", 20.0 }, { L"2/10", 0.2 },  { L"2+10", 12.0 }, { L"2-10", -8.0 },
        { L"x=10", 10.0 }, { L"(10)", 10.0 }, { L")10(", 10.0 },
    };
    expectResults(cases);
    expectFailure(L"(123");
    expectFailure(L"123)");
}

TEST_F(evaluateFormulaTest, FailuresLeaveTheResultUntouched)
{
    for (const wchar_t* formula : { L"10/0", L"1/0.00005", L"(1+2", L"1+2)", L"x + 1", L"a=4;2*a", L"=5+1", L"A + 1" })
        expectFailure(formula);
}

TEST_F(evaluateFormulaTest, AFormulaWithoutOperandsIsZero)
{
    const ResultCase cases[] = { { L"()()", 0.0 }, { L"(());", 0.0 }, { L"  )(", 0.0 }, { L";;;()", 0.0 } };
    expectResults(cases);
}

TEST_F(evaluateFormulaTest, MissingOperandsCountAsZero)
{
    const ResultCase cases[] = { { L"5*  ", 0.0 }, { L"   +", 0.0 }, { L"5+  ", 5.0 }, { L"5-  ", -5.0 } };
    expectResults(cases);
}

TEST_F(evaluateFormulaTest, ResultsAreRoundedToSixDecimals)
{
    const ResultCase cases[] = {
        { L"1/3+0", 0.333333 }, { L"2/3+0", 0.666667 },
        { L"1/4000000", 0.0 },  { L"3/4000000", 1e-6 },
        { L"0.1+0", 0.1 },      { L"0.1*10000000", 1000000.014901 }, // here single precision shows, there it does not
    };
    expectResults(cases);
}

TEST_F(evaluateFormulaTest, HalvesAreRoundedAsTheExactBinaryNumberSays)
{
    const wchar_t* const names[] = { L"n" };
    struct
    {
        double value;
        double result;
    } const cases[] = {
        { 0.0000152587890625, 0.000015 }, { 0.0000005, 0.0 }, // its double lies a little below the half,
        { 0.0000015, 0.000002 },                              // and these lie above it
        { 1.0000005, 1.000001 },          { -0.0000015, -0.000002 },
        { 0.0078125, 0.007812 }, // 1/128 and 3/128 lie on it: to the even digit
        { 0.0234375, 0.023438 },          { 1e15 + 0.125, 1e15 + 0.125 },
    };
    for (const auto& c : cases)
    {
        double result = kUntouched;
        EXPECT_EQ(1, evaluateFormula(L"n*1+0", names, &c.value, 1, &result));
        EXPECT_EQ(c.result, result) << c.value;
    }
}

TEST_F(evaluateFormulaTest, HugeAndOddNumbersPassThrough)
{
    const wchar_t* const names[] = { L"n" };
    for (const double value : { 1e300, -DBL_MAX, 123456789012345678.0, std::numeric_limits<double>::infinity() })
    {
        double result = kUntouched;
        EXPECT_EQ(1, evaluateFormula(L"n*1+0", names, &value, 1, &result));
        EXPECT_EQ(value, result);
    }
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    double result = kUntouched;
    EXPECT_EQ(1, evaluateFormula(L"n*1+0", names, &notANumber, 1, &result));
    EXPECT_TRUE(std::isnan(result));
}

TEST_F(evaluateFormulaTest, NullArgumentsAreRefused)
{
    const wchar_t* const names[] = { L"a" };
    const double values[] = { 2.0 };
    double result = kUntouched;

    EXPECT_EQ(0, evaluateFormula(nullptr, names, values, 1, &result));
    EXPECT_EQ(0, evaluateFormula(L"1 + 2", nullptr, values, 1, &result));
    EXPECT_EQ(0, evaluateFormula(L"1 + 2", names, nullptr, 1, &result));
    EXPECT_EQ(0, evaluateFormula(L"1 + 2", nullptr, nullptr, 0, &result)); // though there would be nothing to read
    EXPECT_EQ(kUntouched, result);
}

TEST_F(evaluateFormulaTest, TheResultMayBeNull)
{
    const wchar_t* const names[] = { L"a" };
    const double values[] = { 2.0 };

    EXPECT_EQ(1, evaluateFormula(L"a * 3.5", names, values, 1, nullptr));
    EXPECT_EQ(0, evaluateFormula(L"a / 0", names, values, 1, nullptr));
}

TEST_F(evaluateFormulaTest, ANegativeCountIsRefused)
{
    const wchar_t* const names[] = { L"a" };
    const double values[] = { 2.0 };
    double result = kUntouched;

    EXPECT_EQ(0, evaluateFormula(L"1 + 2", names, values, -1, &result));
    EXPECT_EQ(0, evaluateFormula(L"1 + 2", names, values, std::numeric_limits<int>::min(), &result));
    EXPECT_EQ(kUntouched, result);
}

TEST_F(evaluateFormulaTest, OnlyTheFirstEntriesAreRead)
{
    const wchar_t* const names[] = { L"a", L"b" };
    const double values[] = { 2.0, 3.0 };
    double result = kUntouched;

    EXPECT_EQ(1, evaluateFormula(L"1 + 2", names, values, 0, &result));
    EXPECT_EQ(1, evaluateFormula(L"a + 1", names, values, 1, &result));
    EXPECT_EQ(0, evaluateFormula(L"b + 1", names, values, 1, &result));
    EXPECT_EQ(3.0, result);
}

TEST_F(evaluateFormulaTest, NullNamesArePassedOver)
{
    const wchar_t* const names[] = { nullptr, L"b", nullptr };
    const double values[] = { 2.0, 3.0, 4.0 };
    double result = kUntouched;

    EXPECT_EQ(1, evaluateFormula(L"b + 1", names, values, 3, &result));
    EXPECT_EQ(4.0, result);
}

TEST_F(evaluateFormulaTest, OfEqualNamesTheLastCounts)
{
    const wchar_t* const names[] = { L"a", L"a", L"A" };
    const double values[] = { 2.0, 3.0, 4.0 };
    double result = kUntouched;

    EXPECT_EQ(1, evaluateFormula(L"a + 0", names, values, 3, &result));
    EXPECT_EQ(3.0, result);
}

TEST_F(evaluateFormulaTest, AnAssignmentShadowsTheCallersVariable)
{
    const ResultCase cases[] = { { L"a=a*10;a*2", 40.0 }, { L"a+0;", 2.0 } };
    expectResults(cases);
}

TEST_F(evaluateFormulaTest, AnEmptyNameIsNeverFound)
{
    const wchar_t* const names[] = { L"" };
    const double values[] = { 2.0 };
    double result = kUntouched;

    EXPECT_EQ(1, evaluateFormula(L"-1*2", names, values, 1, &result));
    EXPECT_EQ(-2.0, result);
}

TEST_F(evaluateFormulaTest, NothingIsKeptFromOneCallToTheNext)
{
    evaluate(L"x=4;y=1/0");

    expectFailure(L"x*1+0");
    const ResultCase cases[] = { { L"1 + 2", 3.0 } };
    expectResults(cases);
}

TEST_F(evaluateFormulaTest, RefusedFormulasEmptyTheListsToo)
{
    evaluated(L"x=4;1/0");

    expectFailure(L"1+2");

    EXPECT_EQ(VorString(), variables());
    EXPECT_EQ("", errorCodes());
}

TEST_F(evaluateFormulaTest, GivenAndAssignedVariablesStayInTheList)
{
    evaluate(L"x=a*2; my y =x+1;my y*1");
    EXPECT_EQ(VorString(L"my y=5.000000 x=4.000000 my length=1000.000000 b=0.500000 a=2.000000"), variables());

    evaluate(L"x=a*2;nobody+1");
    EXPECT_EQ(VorString(L"x=4.000000 my length=1000.000000 b=0.500000 a=2.000000"), variables());
    EXPECT_EQ("0", errorCodes());
}

TEST_F(evaluateFormulaTest, AssignmentsThatAreNotPlainTakeTheirNamesFromTheTree)
{
    const ResultCase cases[] = {
        { L"x=b=3;", 3.0 },     { L"x==3;", 3.0 },        { L"=x=3;", 3.0 },           { L"x=(5)(6);", 6.0 },
        { L"x=*(5)(6);", 6.0 }, { L"1(x=a+3);", 5.0 },    { L"(x=5)+3;x*1", 8.0 },     { L"5=3;5*1", 5.0 },
        { L"-a=3;", 3.0 },      { L"x = 4 ;x * 1", 4.0 }, { L"a=b;b=a*4;a+b*1", 2.5 },
    };
    expectResults(cases);
    for (const wchar_t* formula : { L"x=b=;", L"x=*5;", L"x=1;y=x", L"x=+;" })
        expectFailure(formula);
}

TEST_F(evaluateFormulaTest, NamesWithOperatorsOrBlanksAtTheirEndsAreNeverFound)
{
    const wchar_t* const names[] = { L"a+b", L"a ", L" a", L"a", L"", L"a;", L"ab" };
    const double values[] = { 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0 };
    double result = kUntouched;

    EXPECT_EQ(1, evaluateFormula(L"a+ab+0", names, values, 7, &result));
    EXPECT_EQ(13.0, result);
    EXPECT_EQ(1, evaluateFormula(L" a *a;", names, values, 7, &result));
    EXPECT_EQ(25.0, result);
    EXPECT_EQ(0, evaluateFormula(L"a+abc", names, values, 7, &result));
}

TEST_F(evaluateFormulaTest, AsManyAssignmentsAsThereIsRoomForAndOneMore)
{
    for (const int numAssigned : { 28, 29, 30, 100 })
    {
        std::wstring formula;
        for (int i = 0; i < numAssigned; ++i)
            formula += L"x" + std::to_wstring(i) + L"=" + std::to_wstring(i) + L";";
        formula += L"(x0+x" + std::to_wstring(numAssigned - 1) + L")";
        const Outcome outcome = evaluate(formula.c_str());
        EXPECT_EQ(1, outcome.nResult);
        EXPECT_EQ(numAssigned - 1.0, outcome.result);
        EXPECT_EQ(numAssigned + 3, VorExprEvVariableList::ofThread().count());
    }
}

TEST_F(evaluateFormulaTest, TracedFormulasShowTheirTrees)
{
    VorString written;
    ExpressionsEvaluator::m_nTraceTrees = 1;
    {
        const DebugLog log;
        evaluate(L"a + 1");
        written = log.text();
    }
    ExpressionsEvaluator::m_nTraceTrees = 0;

    EXPECT_EQ(VorString(L"\n\n+\n\na\n\n1"), written);
}

TEST_F(evaluateFormulaTest, ANullFormulaLeavesTheListsAlone)
{
    const wchar_t formula[] = L"x=4;1/0";
    evaluated(formula);

    expectFailure(nullptr);

    EXPECT_EQ(VorString(L"x=4.000000"), variables());
    EXPECT_EQ("5", errorCodes());
}

TEST_F(evaluateFormulaTest, ThousandsOfVariablesAreFound)
{
    constexpr int kMany = 20000;
    std::vector<std::wstring> texts;
    std::vector<const wchar_t*> names;
    std::vector<double> values;
    std::wstring formula;
    double sum = 0.0;
    for (int i = 0; i < kMany; ++i)
        texts.push_back(L"%v" + std::to_wstring(i));
    for (int i = 0; i < kMany; ++i)
    {
        names.push_back(texts[static_cast<std::size_t>(i)].c_str());
        values.push_back(i);
        formula += texts[static_cast<std::size_t>(i)] + L"+";
        sum += i;
    }
    formula += L"0";
    double result = kUntouched;

    EXPECT_EQ(1, evaluateFormula(formula.c_str(), names.data(), values.data(), kMany, &result));
    EXPECT_EQ(sum, result);
}

TEST_F(evaluateFormulaTest, TheLocaleHasNoInfluence)
{
    bool isSet = false;
    for (const char* name : { "de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8" })
        isSet = isSet || std::setlocale(LC_ALL, name) != nullptr;
    if (!isSet)
        GTEST_SKIP() << "no locale with a decimal comma is installed";

    const Outcome outcome = evaluate(L"1.5 + 0.25");

    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(1, outcome.nResult);
    EXPECT_EQ(1.75, outcome.result);
}

TEST_F(evaluateFormulaTest, NothingOfTheCallersTextsIsLookedAtAfterwards)
{
    const double values[] = { 2.0, 3.0 };
    for (const wchar_t* text : { L"step=a*2;step+%Long Name*1", L"a + x", L"(a+1", L"step=a;step/0.0+1" })
    {
        std::wstring formula(text);
        std::wstring a(L"a");
        std::wstring longName(L"%Long Name");
        const wchar_t* const names[] = { a.c_str(), longName.c_str() };
        evaluateFormula(formula.c_str(), names, values, 2, nullptr);

        formula.assign(formula.size(), L'?');
        a.assign(a.size(), L'?');
        longName.assign(longName.size(), L'?');

        VorString expected(text[0] != L's' ? L"" : text[6] == L'*' ? L"step=4.000000 " : L"step=2.000000 ");
        expected += L"%Long Name=3.000000 a=2.000000";
        EXPECT_EQ(expected, variables()) << toUtf8(text);
        EXPECT_NE(nullptr, VorExprEvVariableList::ofThread().find(view(L"%Long Name")));
        EXPECT_EQ(nullptr, VorExprEvVariableList::ofThread().find(view(L"?")));
    }
}

// The names of few characters once were kept in a place that was gone when the call returned.
TEST_F(evaluateFormulaTest, NamesOfFewCharactersAreKeptBesideAFailedFormula)
{
    const wchar_t* const names[] = { L"a" };
    const double values[] = { 2.0 };
    ASSERT_EQ(0, evaluateFormula(L"a/0+1", names, values, 1, nullptr));

    EXPECT_EQ(VorString(L"a=2.000000"), variables());
}

// Names are copied only where they differ from those of the call before: each call differs from the last in another way.
TEST_F(evaluateFormulaTest, NamesFollowTheCallersFromCallToCall)
{
    struct Call
    {
        std::vector<const wchar_t*> names;
        const wchar_t* formula;
        double result;
        const wchar_t* variables; // the newest first
    };
    const Call calls[] = {
        { { L"%A", L"%Bolt", L"%C" }, L"%A+%Bolt*%C", 7.0, L"%C=3.000000 %Bolt=2.000000 %A=1.000000" },
        { { L"%A", L"%Bolt", L"%C" }, L"%A+%Bolt+%C", 6.0, L"%C=3.000000 %Bolt=2.000000 %A=1.000000" },
        { { L"%A", L"%Bo", L"%C" }, L"%C*10+%Bo", 32.0, L"%C=3.000000 %Bo=2.000000 %A=1.000000" },
        { { L"%Longer", L"%Bo", L"%C" }, L"%C*10+%Bo", 32.0, L"%C=3.000000 %Bo=2.000000 %Longer=1.000000" },
        { { L"%Longer", nullptr, L"%C" }, L"%C-%Longer", 2.0, L"%C=3.000000 %Longer=1.000000" },
        { { L"%Longer", L"%Cx", L"%C" },
          L"x=%C;x*%Cx*1",
          6.0,
          L"x=3.000000 %C=3.000000 %Cx=2.000000 %Longer=1.000000" },
        { { L"%Longer", L"%Cx", L"%C" }, L"%Cx*%C", 6.0, L"%C=3.000000 %Cx=2.000000 %Longer=1.000000" },
    };
    const double values[] = { 1.0, 2.0, 3.0 };
    for (const Call& call : calls)
    {
        double result = 0.0;
        ASSERT_EQ(1, evaluateFormula(call.formula, call.names.data(), values, 3, &result)) << toUtf8(call.formula);
        EXPECT_EQ(call.result, result) << toUtf8(call.formula);
        EXPECT_EQ(VorString(call.variables), variables()) << toUtf8(call.formula);
    }
}

TEST_F(evaluateFormulaTest, NamesAreKeptHoweverManyAndLong)
{
    for (const int numNames : { 3, 32, 33, 100 })
        for (const std::size_t length : { 1U, 3U, 4U, 5U, 8U, 33U, 400U })
        {
            std::vector<std::wstring> texts;
            std::vector<const wchar_t*> names;
            for (int i = 0; i < numNames; ++i)
                texts.push_back(std::wstring(length - 1, L'x') + static_cast<wchar_t>(L'\u0100' + i));
            for (const std::wstring& text : texts)
                names.push_back(text.c_str());
            const std::vector<double> values(texts.size(), 0.5);
            const std::vector<std::wstring> expected = texts;
            double result = kUntouched;

            EXPECT_EQ(1, evaluateFormula((texts[1] + L"*4.0").c_str(), names.data(), values.data(), numNames, &result));

            EXPECT_EQ(2.0, result);
            for (std::wstring& text : texts)
                text.assign(length, L'?');
            std::size_t i = expected.size();
            for (const VorExprEvVariable* p = VorExprEvVariableList::ofThread().head(); p != nullptr; p = p->next())
                ASSERT_EQ(expected[--i], p->name().existingPart());
            EXPECT_EQ(0U, i);
        }
}
