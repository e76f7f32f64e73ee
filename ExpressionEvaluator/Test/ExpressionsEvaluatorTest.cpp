#include "ExpressionEvaluator/Src/ExpressionsEvaluator.h"
#include "Support/DebugLog.h"
#include "Support/FormulaSupport.h"

namespace
{
class ExpressionsEvaluatorTest : public testing::Test
{
protected:
    FormulaLeakCheck m_leaks;
};

struct TextCase
{
    const wchar_t* formula;
    const wchar_t* text; // left in the buffer
};

template <int N>
void expectTexts(const TextCase (&cases)[N])
{
    for (const TextCase& c : cases)
        EXPECT_EQ(VorString(c.text), evaluated(c.formula)) << toUtf8(c.formula);
}

// As evaluated(), with `before` in the buffer.
int evaluateInto(wchar_t* buffer, const wchar_t* formula)
{
    ExpressionsEvaluator evaluator(formula, static_cast<unsigned int>(std::wcslen(formula)));
    return evaluator.evaluate(buffer);
}
}

TEST_F(ExpressionsEvaluatorTest, ArithmeticGivesItsText)
{
    const TextCase cases[] = {
        { L"7", L"7.000000" }, // no shortest length and no operator asked for here
        { L"8-3-2", L"3.000000" },     { L"8/4/2", L"1.000000" },
        { L"a=2+3", L"5.000000" },     { L"-2*3", L"-6.000000" },
        { L"2*-3", L"-6.000000" },     { L"-2+3", L"1.000000" },
        { L"(-3)", L"-3.000000" },     { L"--3", L"3.000000" },
        { L"2--3", L"5.000000" },      { L"8/-2/2", L"-8.000000" },
        { L"5*", L"0.000000" },        { L"+", L"0.000000" },
        { L"*", L"0.000000" },         { L"1/3", L"0.333333" },
        { L"1e+5", L"100005.000000" }, // "1e" runs on to 100000, then 5 is added
        { L"1e-2", L"-1.990000" },     { L"2e", L"2.000000" },
        { L"0x10*2", L"32.000000" },   { L"inf-1", L"inf" },
    };
    expectTexts(cases);
}

TEST_F(ExpressionsEvaluatorTest, ParenthesesGroup)
{
    const TextCase cases[] = {
        { L"(2+3)*4", L"20.000000" },
        { L"2*(3+4)", L"14.000000" },
        { L"2*3+(4+5)*6", L"90.000000" }, // not 60: ')' groups all that stands before it
        { L"1+(2)*3", L"9.000000" },
        { L"10-(2)-3", L"5.000000" },
        { L"  7 * ( 2 + 1 )  ", L"21.000000" },
        { L"=-(5(6))", L"-1.000000" },
    };
    expectTexts(cases);
}

TEST_F(ExpressionsEvaluatorTest, ErrorsLeaveTheirMessage)
{
    const TextCase cases[] = {
        { L"(1+2", L"Impaired paranthesis" },
        { L"1+2)", L"Impaired paranthesis" },
        { L"10/0", L"Division by zero" },
        { L"1/0.00005", L"Division by zero" },
        { L"1/-0.00005", L"Division by zero" },
        { L"1/0.0001", L"Division by zero" }, // read in single precision, it is a little less
        { L"1/0.0002", L"5000.000126" },
        { L"x + 1", L"Syntax error" },
        { L"abc", L"Syntax error" },
        { L"in*1", L"Syntax error" },
        { L"infix*1", L"Syntax error" },
        { L"0x*1", L"Syntax error" },
        { L"0xg*1", L"Syntax error" },
        { L"=5+1", L"Syntax error" },
        { L"=10/0", L"Division by zero" }, // the right side is evaluated first
    };
    expectTexts(cases);
}

TEST_F(ExpressionsEvaluatorTest, TheOldestErrorIsTold)
{
    EXPECT_EQ(VorString(L"Division by zero"), evaluated(L"1/0+nobody"));
    EXPECT_EQ("0 5", errorCodes());
    EXPECT_EQ(VorString(L"Syntax error"), evaluated(L"nobody+1/0"));
    EXPECT_EQ("5 0", errorCodes());
}

TEST_F(ExpressionsEvaluatorTest, TheFirstStatementWithAnErrorIsTheLast)
{
    EXPECT_EQ(VorString(L"Syntax error"), evaluated(L"a=4;nobody;b=1/0;c=5"));

    EXPECT_EQ("0", errorCodes());
    EXPECT_EQ(VorString(L"a=4.000000"), variables());
}

TEST_F(ExpressionsEvaluatorTest, UnbalancedStatementsAreNotEvaluated)
{
    EXPECT_EQ(VorString(L"Impaired paranthesis"), evaluated(L"(a=1/0"));

    EXPECT_EQ("4", errorCodes());
    EXPECT_EQ(VorString(), variables());
}

TEST_F(ExpressionsEvaluatorTest, StatementsRunFromTheLeft)
{
    const TextCase cases[] = {
        { L"a=4;a*2", L"8.000000" },           { L"a=4;b=5;a*b*1", L"20.000000" },
        { L"a=4;a=a+1;a*1", L"5.000000" },     { L"1+1;2+2;3+3", L"6.000000" },
        { L"(1;1)", L"Impaired paranthesis" }, { L"a=4;b=nobody;a*1", L"Syntax error" },
    };
    expectTexts(cases);
}

TEST_F(ExpressionsEvaluatorTest, TheLastStatementIsReadPastTheFormulasEnd)
{
    const TextCase cases[] = {
        { L"a=4;2*a", L"Syntax error" },     // its last operand is "a" and a zero character
        { L"a=4;a", L"Syntax error" },       //
        { L"a=4;b=5;a*b", L"Syntax error" }, //
        { L"a=4;2*a ", L"Syntax error" },    // the blank stands before the zeros and is not trimmed
        { L"a=4;a*2", L"8.000000" },         // numbers are read by scanning
        { L"a=4;a*2abc", L"8.000000" },
        { L"a=4;(2*a)", L"8.000000" }, // the name ends at the parenthesis
        { L"a=4;2*a;", L"8.000000" },  // and at the separator
        { L"2*1", L"2.000000" },
        { L";2*1", L"2.000000" },
    };
    expectTexts(cases);
}

TEST_F(ExpressionsEvaluatorTest, TheLastViewIsTheFormulaWithoutTheStatementBefore)
{
    struct
    {
        const wchar_t* formula;
        int nZeros; // behind the last operand
    } const cases[] = {
        { L"n", 0 },           // a single statement is the whole formula
        { L";n", 1 },          // 2 - 0, one of them exists
        { L"1;n", 1 },         // 3 - 1
        { L"12345;n", 1 },     // 7 - 5
        { L"1;2;n", 3 },       // 5 - 1: what stands before the statement before counts in full
        { L"12345;2;n", 7 },   // 9 - 1
        { L"1;12345;n", 3 },   // 9 - 5
        { L"1;;n", 3 },        // 4 - 0
        { L"1;2;3;4;5;n", 9 }, // 11 - 1
    };
    for (const auto& c : cases)
    {
        for (int nZeros = 0; nZeros < 12; ++nZeros)
        {
            const std::wstring name = L"n" + std::wstring(static_cast<std::size_t>(nZeros), L'\0');
            ExpressionsEvaluator evaluator(c.formula, static_cast<unsigned int>(std::wcslen(c.formula)));
            VorExprEvValue value = doubleValue(8.0);
            evaluator.addVariable(VorExprEvTextView(name.c_str(), 0, nZeros + 1), value);
            wchar_t buffer[VorExprEvValue::kBufferLength];
            EXPECT_EQ(nZeros == c.nZeros ? 1 : 0, evaluator.evaluate(buffer)) << toUtf8(c.formula) << nZeros;
        }
    }
}

TEST_F(ExpressionsEvaluatorTest, AnEmptyLastStatementLeavesTheTextBefore)
{
    const TextCase cases[] = {
        { L"a=4;", L"4.000000" },   { L"1+1; \t", L"2.000000" },  { L"1+1;;;", L"2.000000" },
        { L"1+1;()", L"2.000000" }, { L"1+1;()()", L"2.000000" },
    };
    expectTexts(cases);
}

TEST_F(ExpressionsEvaluatorTest, WithoutAnyOperandTheTextIsEmpty)
{
    for (const wchar_t* formula : { L"", L" ", L";", L";;;;", L"()", L"()()", L")(", L"();()" })
    {
        wchar_t buffer[VorExprEvValue::kBufferLength] = L"from before";
        EXPECT_EQ(1, evaluateInto(buffer, formula)) << toUtf8(formula);
        EXPECT_EQ(VorString(), VorString(buffer)) << toUtf8(formula);
    }
}

TEST_F(ExpressionsEvaluatorTest, NumbersAreReadInSinglePrecisionAndComputedInDouble)
{
    EXPECT_EQ(VorString(L"0.100000"), evaluated(L"0.1"));
    EXPECT_EQ(VorString(L"100000.001490"), evaluated(L"0.1*1000000"));
    EXPECT_EQ(VorString(L"16777216.000000"), evaluated(L"16777217"));
    EXPECT_EQ(VorString(L"33554431.000000"), evaluated(L"16777216+16777215"));
}

TEST_F(ExpressionsEvaluatorTest, BlanksOfTheCLibraryAreReadByTheNumberAlone)
{
    EXPECT_EQ(VorString(L"6.000000"), evaluated(L"\v5+1"));
    EXPECT_EQ(VorString(L"1.000000"), evaluated(L"1+\v")); // the text ends before a number
    EXPECT_EQ(VorString(L"2.000000"), evaluated(L"\v+1")); // "\v" runs on to "+1", and 1 is added
    EXPECT_EQ(VorString(L"Syntax error"), evaluated(L"\v*1"));
}

TEST_F(ExpressionsEvaluatorTest, VariablesMayHaveAnyType)
{
    const wchar_t formula[] = L"n";
    const struct
    {
        VorExprEvValue value;
        const wchar_t* text;
    } cases[] = {
        { integerValue(3), L"3" },     { doubleValue(3.0), L"3.000000" }, { booleanValue(1), L"True" },
        { booleanValue(0), L"False" }, { VorExprEvValue(), L"UnkValue" },
    };
    for (const auto& c : cases)
    {
        ExpressionsEvaluator evaluator(formula, 1);
        VorExprEvValue value = c.value;
        EXPECT_EQ(1, evaluator.addVariable(view(L"n"), value));
        wchar_t buffer[VorExprEvValue::kBufferLength];
        EXPECT_EQ(1, evaluator.evaluate(buffer));
        EXPECT_EQ(VorString(c.text), VorString(buffer));
        EXPECT_EQ(VorExprEvValue::kUnknown, value.type()); // released
    }
}

TEST_F(ExpressionsEvaluatorTest, ALaterVariableShadowsAnEarlierOne)
{
    ExpressionsEvaluator evaluator(L"a+0", 3);
    VorExprEvValue first = doubleValue(1.0);
    VorExprEvValue second = doubleValue(2.0);
    evaluator.addVariable(view(L"a"), first);
    evaluator.addVariable(view(L"a"), second);
    wchar_t buffer[VorExprEvValue::kBufferLength];

    evaluator.evaluate(buffer);

    EXPECT_EQ(VorString(L"2.000000"), VorString(buffer));
}

TEST_F(ExpressionsEvaluatorTest, ConstructingEmptiesTheLists)
{
    evaluated(L"a=4;nobody");
    ASSERT_EQ(VorString(L"a=4.000000"), variables());
    ASSERT_EQ("0", errorCodes());

    const ExpressionsEvaluator evaluator(L"1+1", 3);

    EXPECT_EQ(VorString(), variables());
    EXPECT_EQ("", errorCodes());
    EXPECT_EQ(0, VorExprEvalErrorHandler::ofThread().count());
}

TEST_F(ExpressionsEvaluatorTest, TheListsStayAfterTheEvaluatorIsGone)
{
    const wchar_t formula[] = L"x=5;y=x+1;1/0";
    evaluated(formula);

    EXPECT_EQ(VorString(L"y=6.000000 x=5.000000"), variables());
    EXPECT_EQ("5", errorCodes());
}

TEST_F(ExpressionsEvaluatorTest, ASecondEvaluationSeesWhatTheFirstLeft)
{
    ExpressionsEvaluator evaluator(L"a=a+1", 5);
    VorExprEvValue value = doubleValue(1.0);
    evaluator.addVariable(view(L"a"), value);
    wchar_t buffer[VorExprEvValue::kBufferLength];

    evaluator.evaluate(buffer);
    EXPECT_EQ(VorString(L"2.000000"), VorString(buffer));
    evaluator.evaluate(buffer);
    EXPECT_EQ(VorString(L"3.000000"), VorString(buffer));
}

TEST_F(ExpressionsEvaluatorTest, AnErrorStaysUntilTheNextConstruction)
{
    ExpressionsEvaluator evaluator(L"a*1", 3);
    wchar_t buffer[VorExprEvValue::kBufferLength];
    EXPECT_EQ(0, evaluator.evaluate(buffer));
    VorExprEvValue value = doubleValue(1.0);
    evaluator.addVariable(view(L"a"), value);

    EXPECT_EQ(0, evaluator.evaluate(buffer));

    EXPECT_EQ(VorString(L"Syntax error"), VorString(buffer));
}

TEST_F(ExpressionsEvaluatorTest, AssignmentsInARowRunOnlyTheOuter)
{
    const wchar_t formula[] = L"a=b=3";

    EXPECT_EQ(VorString(L"3.000000"), evaluated(formula));
    EXPECT_EQ(VorString(L"==3.000000"), variables());
}

TEST_F(ExpressionsEvaluatorTest, ANullTextIsAnEmptyFormula)
{
    ExpressionsEvaluator evaluator(nullptr, 7);
    wchar_t buffer[VorExprEvValue::kBufferLength] = L"from before";

    EXPECT_EQ(1, evaluator.evaluate(buffer));
    EXPECT_EQ(VorString(), VorString(buffer));
}

TEST_F(ExpressionsEvaluatorTest, NumbersEndWithTheTextAndNotWithTheLength)
{
    wchar_t buffer[VorExprEvValue::kBufferLength];

    EXPECT_EQ(1, ExpressionsEvaluator(L"1+23", 3).evaluate(buffer));
    EXPECT_EQ(VorString(L"24.000000"), VorString(buffer));
    EXPECT_EQ(1, ExpressionsEvaluator(L"a=4;a*123", 8).evaluate(buffer));
    EXPECT_EQ(VorString(L"492.000000"), VorString(buffer));
}

TEST_F(ExpressionsEvaluatorTest, NothingIsReadPastTheTerminatingZero)
{
    const wchar_t text[] = L"a=4;a*12\0003";
    wchar_t buffer[VorExprEvValue::kBufferLength];

    EXPECT_EQ(1, ExpressionsEvaluator(text, 8).evaluate(buffer));
    EXPECT_EQ(VorString(L"48.000000"), VorString(buffer));
}

TEST_F(ExpressionsEvaluatorTest, LongNumbersFitTheBuffer)
{
    const wchar_t formula[] = L"n*1+0";
    ExpressionsEvaluator evaluator(formula, 5);
    VorExprEvValue value = doubleValue(-1.7976931348623157e308);
    evaluator.addVariable(view(L"n"), value);
    wchar_t buffer[VorExprEvValue::kBufferLength];

    EXPECT_EQ(1, evaluator.evaluate(buffer));
    EXPECT_EQ(317U, std::wcslen(buffer));
}

TEST_F(ExpressionsEvaluatorTest, WithoutTheSwitchNothingIsTraced)
{
    const DebugLog log;

    evaluated(L"1+2*3");

    EXPECT_EQ(VorString(), log.text());
}

TEST_F(ExpressionsEvaluatorTest, EveryStatementsTreeIsTraced)
{
    VorString written;
    ExpressionsEvaluator::m_nTraceTrees = 1;
    {
        const DebugLog log;
        evaluated(L"a=2*3;;-(4+5)");
        written = log.text();
    }
    ExpressionsEvaluator::m_nTraceTrees = 0;

    EXPECT_EQ(VorString(L"\n\n=\n\na\n\n*\n\n2\n\n3"
                        L"\n\n-\n\n0\n\n+\n\n4\n\n5"),
              written);
}

TEST_F(ExpressionsEvaluatorTest, UnbalancedTreesAreTracedToo)
{
    VorString written;
    ExpressionsEvaluator::m_nTraceTrees = 1;
    {
        const DebugLog log;
        evaluated(L"(1+2");
        written = log.text();
    }
    ExpressionsEvaluator::m_nTraceTrees = 0;

    EXPECT_EQ(VorString(L"\n\n2"), written);
}
