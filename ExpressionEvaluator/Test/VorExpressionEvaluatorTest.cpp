#include "ExpressionEvaluator/Src/VorExpressionEvaluator.h"
#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperand.h"
#include "Support/DebugLog.h"
#include "Support/FormulaSupport.h"

#include <memory>

namespace
{
class VorExpressionEvaluatorTest : public testing::Test
{
protected:
    FormulaLeakCheck m_leaks;
};

// The tree of a statement, followed by the codes of the errors raised, if any.
VorString parsed(const VorExprEvTextView& statement)
{
    emptyThreadLists();
    VorExpressionEvaluator evaluator;
    const int nResult = evaluator.parse(statement);
    EXPECT_EQ(errorCodes().empty() ? 1 : 0, nResult);
    return textOf(evaluator.root());
}

struct TreeCase
{
    const wchar_t* statement;
    const wchar_t* tree;
};

template <int N>
void expectTrees(const TreeCase (&cases)[N])
{
    for (const TreeCase& c : cases)
    {
        EXPECT_EQ(VorString(c.tree), parsed(view(c.statement))) << toUtf8(c.statement);
        EXPECT_EQ("", errorCodes()) << toUtf8(c.statement);
    }
}
}

TEST_F(VorExpressionEvaluatorTest, OperatorsBindByPrecedence)
{
    const TreeCase cases[] = {
        { L"2+3*4", L"+(2, *(3, 4))" },
        { L"2*3+4", L"+(*(2, 3), 4)" },
        { L"a=2+3", L"=(a, +(2, 3))" },
        { L"a = 3", L"=(a, 3)" },
        { L"1+2*3/4-5", L"-(+(1, /(*(2, 3), 4)), 5)" },
    };
    expectTrees(cases);
}

TEST_F(VorExpressionEvaluatorTest, OperatorsGroupFromTheLeft)
{
    const TreeCase cases[] = {
        { L"8-3-2", L"-(-(8, 3), 2)" }, { L"8/4/2", L"/(/(8, 4), 2)" }, { L"8-3+2", L"+(-(8, 3), 2)" },
        { L"8/4*2", L"*(/(8, 4), 2)" }, { L"a=b=3", L"=(=(a, b), 3)" }, { L"2+a=3", L"=(+(2, a), 3)" },
    };
    expectTrees(cases);
}

TEST_F(VorExpressionEvaluatorTest, ParenthesesGroup)
{
    const TreeCase cases[] = {
        { L"(2+3)*4", L"*(+(2, 3), 4)" },           { L"2*(3+4)", L"*(2, +(3, 4))" },           { L"((7))", L"7" },
        { L"2*(3*(4+5))", L"*(2, *(3, +(4, 5)))" }, { L"  7 * ( 2 + 1 )  ", L"*(7, +(2, 1))" },
    };
    expectTrees(cases);
}

TEST_F(VorExpressionEvaluatorTest, AClosingParenthesisGroupsAllThatStandsBeforeIt)
{
    const TreeCase cases[] = {
        { L"2*3+(4+5)*6", L"*(+(*(2, 3), +(4, 5)), 6)" },
        { L"1+(2)*3", L"*(+(1, 2), 3)" },
        { L"8-(3)-2", L"-(-(8, 3), 2)" },
        { L"a=1+(2)*3", L"=(a, *(+(1, 2), 3))" }, // back to the '=' only
        { L"(1)+2*3", L"+(1, *(2, 3))" },         // what follows binds as ever
        { L"2*(3)+4*(5)*6", L"*(+(*(2, 3), *(4, 5)), 6)" },
    };
    expectTrees(cases);
}

TEST_F(VorExpressionEvaluatorTest, AMinusNegatesAtTheStartAndAfterOperators)
{
    const TreeCase cases[] = {
        { L"-2*3", L"-(0, *(2, 3))" },
        { L"2*-3", L"*(2, -(0, 3))" },
        { L"-2+3", L"+(-(0, 2), 3)" },
        { L"(-3)", L"-(0, 3)" },
        { L"--3", L"-(0, -(0, 3))" },
        { L"2--3", L"-(2, -(0, 3))" },
        { L"2- -3", L"-(2, -(0, 3))" },
        { L"(2)-3", L"-(2, 3)" }, // not after a closing parenthesis
        { L"a=-3", L"=(a, -(0, 3))" },
        { L"8/-2/2", L"/(8, -(0, /(2, 2)))" }, // a negation binds looser than what follows it
        { L"2*-3+4", L"+(*(2, -(0, 3)), 4)" },
        { L"-", L"-(none, 0)" },
    };
    expectTrees(cases);
}

TEST_F(VorExpressionEvaluatorTest, OtherOperatorsHaveNoSignForm)
{
    const TreeCase cases[] = {
        { L"+3", L"+(none, 3)" },
        { L"2*+3", L"+(*(none, 2), 3)" },
        { L"2+*3", L"+(none, *(2, 3))" },
    };
    expectTrees(cases);
}

TEST_F(VorExpressionEvaluatorTest, OperandsAreTrimmedAndKeepTheirInnerBlanks)
{
    const TreeCase cases[] = {
        { L"my length * 2", L"*(my length, 2)" },
        { L" \t\n\ra \t\n\r", L"a" },
        { L"1 2 3", L"1 2 3" },
        { L"a,b;c", L"a,b;c" }, // everything but the seven operators
        { L"%%x.y+$[]", L"+(%%x.y, $[])" },
        { L"\v5\v", L"\v5\v" }, // blank to the C library, not here
        { L"\u00A05", L"\u00A05" },
    };
    expectTrees(cases);
}

TEST_F(VorExpressionEvaluatorTest, MissingOperandsLeaveSidesEmpty)
{
    const TreeCase cases[] = {
        { L"5*", L"*(none, 5)" },
        { L"*5", L"*(none, 5)" },
        { L"+", L"+(none, none)" },
        { L"*", L"*(none, none)" },
        { L"*/", L"/(none, *(none, none))" },
        { L"=5+1", L"=(none, +(5, 1))" },
        { L"()+()", L"+(none, none)" },
    };
    expectTrees(cases);
}

TEST_F(VorExpressionEvaluatorTest, OfOperandsWithoutOperatorTheLastIsKept)
{
    const TreeCase cases[] = {
        { L"(1)(2)", L"2" },
        { L"1(2)(3)", L"3" },
        { L"2(3+4)", L"+(3, 4)" },
        { L"2*3(4)", L"*(3, 4)" },         // the '*' takes the upper two
        { L"=-(5(6))", L"=(0, -(5, 6))" }, // the name is the negation's missing side
    };
    expectTrees(cases);
}

TEST_F(VorExpressionEvaluatorTest, UnbalancedParenthesesAreAnError)
{
    for (const wchar_t* statement : { L"(1+2", L"1+2)", L"((1)", L"(1))", L"(", L")", L")))", L"1+2)*(3)+4)" })
    {
        parsed(view(statement));
        EXPECT_EQ("4", errorCodes()) << toUtf8(statement);
    }
}

TEST_F(VorExpressionEvaluatorTest, OnlyTheNumbersOfParenthesesCount)
{
    EXPECT_EQ(VorString(L"none"), parsed(view(L")(")));
    EXPECT_EQ("", errorCodes());
    EXPECT_EQ(VorString(L"+(1, 2)"), parsed(view(L")1+2(")));
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExpressionEvaluatorTest, AfterAnErrorTheTopOperandIsTheTree)
{
    EXPECT_EQ(VorString(L"2"), parsed(view(L"(1+2")));
    EXPECT_EQ(VorString(L"+(1, 2)"), parsed(view(L"1+2)")));
    EXPECT_EQ(VorString(L"none"), parsed(view(L"(")));
}

TEST_F(VorExpressionEvaluatorTest, AStatementWithoutOperandsLeavesTheTreeAsItIs)
{
    VorExpressionEvaluator evaluator;
    evaluator.parse(view(L"1+2"));
    const VorExprEvTreeItem* pBefore = evaluator.root();

    for (const wchar_t* statement : { L"", L" \t\n\r", L"()", L")(" })
    {
        EXPECT_EQ(1, evaluator.parse(view(statement))) << toUtf8(statement);
        EXPECT_EQ(pBefore, evaluator.root()) << toUtf8(statement);
    }
    EXPECT_EQ(1, evaluator.parse(VorExprEvTextView()));
    EXPECT_EQ(pBefore, evaluator.root());
    EXPECT_EQ(VorString(L"+(1, 2)"), textOf(evaluator.root()));
}

TEST_F(VorExpressionEvaluatorTest, AFreshEvaluatorHasNoTree)
{
    VorExpressionEvaluator evaluator;

    EXPECT_EQ(nullptr, evaluator.root());
    EXPECT_EQ(1, evaluator.parse(view(L"  ")));
    EXPECT_EQ(nullptr, evaluator.root());
}

TEST_F(VorExpressionEvaluatorTest, ANewTreeReplacesTheOldOne)
{
    VorExpressionEvaluator evaluator;
    evaluator.parse(view(L"1+2"));
    evaluator.parse(view(L"3*4"));

    EXPECT_EQ(VorString(L"*(3, 4)"), textOf(evaluator.root()));
}

TEST_F(VorExpressionEvaluatorTest, TheTreeMayBeTheCallers)
{
    VorExpressionEvaluator evaluator;
    VorExprEvTreeItem* pTree = nullptr;

    EXPECT_EQ(1, evaluator.parse(view(L"1+2"), pTree));

    const std::unique_ptr<VorExprEvTreeItem> pOwner(pTree);
    EXPECT_EQ(VorString(L"+(1, 2)"), textOf(pTree));
    EXPECT_EQ(nullptr, evaluator.root());
}

TEST_F(VorExpressionEvaluatorTest, OnlyTheViewIsParsed)
{
    EXPECT_EQ(VorString(L"+(2, 3)"), parsed(view(L"1+2+3+4").part(2, 5)));
    EXPECT_EQ(VorString(L"12"), parsed(view(L"12)").part(0, 2)));
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExpressionEvaluatorTest, ZeroCharactersAreBlankBetweenOperands)
{
    EXPECT_EQ(VorString(L"+(1, 2)"), parsed(VorExprEvTextView(L"\0001+\0\0002", 0, 6)));
    EXPECT_EQ(VorString(L"+(1, 2)"), parsed(VorExprEvTextView(L"(1+2)", 0, 8, 5)));
}

TEST_F(VorExpressionEvaluatorTest, ZeroCharactersBelongToTheOperandTheyFollow)
{
    EXPECT_EQ(VorString(L"*(2, a\\0\\0)"), parsed(VorExprEvTextView(L"2*a", 0, 5, 3)));
    EXPECT_EQ(VorString(L"a \\0"), parsed(VorExprEvTextView(L"a ", 0, 3, 2))); // blanks before them are not trimmed
    EXPECT_EQ(3, parsed(VorExprEvTextView(L"a\0b", 0, 3)).length());
    EXPECT_EQ(2, parsed(VorExprEvTextView(L"a\0 ", 0, 3)).length());
}

TEST_F(VorExpressionEvaluatorTest, NothingIsReadBeyondTheText)
{
    const wchar_t text[] = { L'2', L'*', L'a', L')' };

    EXPECT_EQ(VorString(L"*(2, a\\0)"), parsed(VorExprEvTextView(text, 0, 4, 3)));
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExpressionEvaluatorTest, NodesViewTheFormula)
{
    const wchar_t text[] = L" ab * 2";
    VorExpressionEvaluator evaluator;
    evaluator.parse(view(text));

    const VorExprEvTextView name = evaluator.root()->left()->getText();
    EXPECT_EQ(text, name.text());
    EXPECT_EQ(1, name.start());
    EXPECT_EQ(3, name.end());
    EXPECT_EQ(4, evaluator.root()->getText().start());
    EXPECT_EQ(5, evaluator.root()->getText().end());
}

TEST_F(VorExpressionEvaluatorTest, TheLeftSideOfANegationHasNoText)
{
    VorExpressionEvaluator evaluator;
    evaluator.parse(view(L"-3"));

    const VorExprEvTextView none = evaluator.root()->left()->getText();
    EXPECT_EQ(0, none.hasText());
    EXPECT_EQ(-1, none.start());
    EXPECT_EQ(-1, none.end());
}

TEST_F(VorExpressionEvaluatorTest, ParsedNodesAreOnNoStack)
{
    VorExpressionEvaluator evaluator;
    evaluator.parse(view(L"1+2*3"));

    EXPECT_EQ(nullptr, evaluator.root()->next());
    EXPECT_EQ(nullptr, evaluator.root()->right()->next());
    EXPECT_EQ(1, evaluator.root()->isComplete());
}

TEST_F(VorExpressionEvaluatorTest, WithoutTheSwitchNothingIsTraced)
{
    const DebugLog log;

    parsed(view(L"1+2*3"));

    EXPECT_EQ(VorString(), log.text());
}

TEST_F(VorExpressionEvaluatorTest, TheStacksAreTracedAroundReductionsAndAtTheEnd)
{
    VorString written;
    VorExpressionEvaluator::m_nTraceStacks = 1;
    {
        const DebugLog log;
        parsed(view(L"1*2-a"));
        written = log.text();
    }
    VorExpressionEvaluator::m_nTraceStacks = 0;

    EXPECT_EQ(VorString(L"\nOperator Stack\n"
                        L"\n\n*"
                        L"\nOperand Stack\n"
                        L"\n\n2\n\n1"
                        L"\nOperator Stack\n" // after the '-' has reduced the '*'
                        L"\nOperand Stack\n"
                        L"\n\n*"
                        L"\nOperator Stack\n" // at the end of the text
                        L"\n\n-"
                        L"\nOperand Stack\n"
                        L"\n\na\n\n*"
                        L"\nOperator Stack\n" // at the very end
                        L"\nOperand Stack\n"
                        L"\n\n-"),
              written);
}

TEST_F(VorExpressionEvaluatorTest, NegationsAndOpeningParenthesesTraceNothing)
{
    VorString written;
    VorExpressionEvaluator::m_nTraceStacks = 1;
    {
        const DebugLog log;
        parsed(view(L"-("));
        written = log.text();
    }
    VorExpressionEvaluator::m_nTraceStacks = 0;

    const VorString atTheEnd = L"\nOperator Stack\n"
                               L"\n\n(\n\n-"
                               L"\nOperand Stack\n"
                               L"\n\n0";
    VorString twice = atTheEnd;
    twice += atTheEnd;
    EXPECT_EQ(twice, written);
}
