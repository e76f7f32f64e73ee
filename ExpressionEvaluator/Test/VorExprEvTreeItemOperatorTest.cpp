#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperator.h"
#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperand.h"
#include "Support/FormulaSupport.h"

#include <cmath>
#include <memory>

namespace
{
const wchar_t kSourcePath[] = L"ExpressionEvaluator/Src/VorExprEvTreeItemOperator";

class VorExprEvTreeItemOperatorTest : public testing::Test
{
protected:
    VorExprEvTreeItemOperatorTest() { emptyThreadLists(); }
    ~VorExprEvTreeItemOperatorTest() override { emptyThreadLists(); }

    AssertLog m_log;
};

using Item = std::unique_ptr<VorExprEvTreeItem>;

Item operand(const wchar_t* text)
{
    return std::make_unique<VorExprEvTreeItemOperand>(view(text));
}

Item node(const wchar_t* text, Item pLeft, Item pRight)
{
    auto pItem = std::make_unique<VorExprEvTreeItemOperator>(view(text));
    pItem->setChildren(pLeft.release(), pRight.release());
    return pItem;
}

Item node(const wchar_t* text, const wchar_t* left, const wchar_t* right)
{
    return node(text, operand(left), operand(right));
}

// What a node evaluates to, from a value that held something else.
VorString valueOf(const Item& pItem)
{
    VorExprEvValue value = booleanValue(1);
    return textOf(pItem->evaluate(value));
}
}

TEST_F(VorExprEvTreeItemOperatorTest, EveryOperatorHasItsPrecedence)
{
    EXPECT_EQ(0, VorExprEvTreeItemOperator::precedence(L'='));
    EXPECT_EQ(1, VorExprEvTreeItemOperator::precedence(L'('));
    EXPECT_EQ(1, VorExprEvTreeItemOperator::precedence(L')'));
    EXPECT_EQ(2, VorExprEvTreeItemOperator::precedence(L'+'));
    EXPECT_EQ(2, VorExprEvTreeItemOperator::precedence(L'-'));
    EXPECT_EQ(3, VorExprEvTreeItemOperator::precedence(L'*'));
    EXPECT_EQ(3, VorExprEvTreeItemOperator::precedence(L'/'));
    EXPECT_TRUE(m_log.isEmpty());
}

TEST_F(VorExprEvTreeItemOperatorTest, OtherCharactersAreReportedAndHaveNone)
{
    EXPECT_EQ(0, VorExprEvTreeItemOperator::precedence(L'x'));
    EXPECT_EQ(0, VorExprEvTreeItemOperator::precedence(L'\0'));

    EXPECT_TRUE(m_log.holdsOnly(L"false", kSourcePath));
    EXPECT_EQ(2, m_log.count(L"false", kSourcePath, 55));
}

TEST_F(VorExprEvTreeItemOperatorTest, ArithmeticGivesDoubles)
{
    EXPECT_EQ(VorString(L"12.000000"), valueOf(node(L"*", L"8", L"1.5")));
    EXPECT_EQ(VorString(L"9.500000"), valueOf(node(L"+", L"8", L"1.5")));
    EXPECT_EQ(VorString(L"6.500000"), valueOf(node(L"-", L"8", L"1.5")));
    EXPECT_EQ(VorString(L"5.333333"), valueOf(node(L"/", L"8", L"1.5")));
}

TEST_F(VorExprEvTreeItemOperatorTest, CalculatingRaisesNoError)
{
    double result = 99.0;

    EXPECT_EQ(1, VorExprEvTreeItemOperator::calculate(L'-', 8.0, 1.5, result));
    EXPECT_EQ(6.5, result);
    EXPECT_EQ(0, VorExprEvTreeItemOperator::calculate(L'/', 8.0, 0.00005, result));
    EXPECT_EQ(0.0, result);
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExprEvTreeItemOperatorTest, IntegersAreComputedAsDoubles)
{
    define(L"a", integerValue(3));
    define(L"b", integerValue(2));

    EXPECT_EQ(VorString(L"1.500000"), valueOf(node(L"/", L"a", L"b")));
    EXPECT_EQ(VorString(L"6.000000"), valueOf(node(L"*", L"a", L"b")));
}

TEST_F(VorExprEvTreeItemOperatorTest, BooleansAndUnknownValuesCountAsZero)
{
    define(L"b", booleanValue(1));
    define(L"u", VorExprEvValue());

    EXPECT_EQ(VorString(L"5.000000"), valueOf(node(L"+", L"b", L"5")));
    EXPECT_EQ(VorString(L"5.000000"), valueOf(node(L"-", L"5", L"b")));
    EXPECT_EQ(VorString(L"0.000000"), valueOf(node(L"*", L"u", L"5")));
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExprEvTreeItemOperatorTest, AMissingSideCountsAsZero)
{
    EXPECT_EQ(VorString(L"0.000000"), valueOf(node(L"+", Item(), Item())));
    EXPECT_EQ(VorString(L"-5.000000"), valueOf(node(L"-", Item(), operand(L"5"))));
    EXPECT_EQ(VorString(L"5.000000"), valueOf(node(L"-", operand(L"5"), Item())));
    EXPECT_EQ("", errorCodes());
    EXPECT_EQ(VorString(L"0.000000"), valueOf(node(L"/", operand(L"5"), Item())));
    EXPECT_EQ("5", errorCodes());
}

TEST_F(VorExprEvTreeItemOperatorTest, SidesThatFailCountAsZeroAndTheRestGoesOn)
{
    EXPECT_EQ(VorString(L"5.000000"), valueOf(node(L"+", L"nobody", L"5")));
    EXPECT_EQ("0", errorCodes());
}

TEST_F(VorExprEvTreeItemOperatorTest, TheLeftSideIsEvaluatedFirst)
{
    valueOf(node(L"+", node(L"/", L"1", L"0"), operand(L"nobody")));
    EXPECT_EQ("0 5", errorCodes());

    emptyThreadLists();
    valueOf(node(L"+", operand(L"nobody"), node(L"/", L"1", L"0")));
    EXPECT_EQ("5 0", errorCodes());
}

TEST_F(VorExprEvTreeItemOperatorTest, AnAssignmentOnTheLeftIsSeenOnTheRight)
{
    EXPECT_EQ(VorString(L"8.000000"), valueOf(node(L"+", node(L"=", L"a", L"4"), operand(L"a"))));
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExprEvTreeItemOperatorTest, DivisorsNearZeroAreErrors)
{
    struct
    {
        double divisor;
        double quotient;
        const char* errors;
    } const cases[] = {
        { 0.0, 0.0, "5" },
        { -0.0, 0.0, "5" },
        { 0.00005, 0.0, "5" },
        { -0.00005, 0.0, "5" },
        { std::nextafter(0.0001, 0.0), 0.0, "5" },
        { std::nextafter(-0.0001, 0.0), 0.0, "5" },
        { 0.0001, 1.0 / 0.0001, "" }, // the band's ends do not belong to it
        { -0.0001, 1.0 / -0.0001, "" },
        { 0.5, 2.0, "" },
    };
    for (const auto& c : cases)
    {
        emptyThreadLists();
        define(L"d", doubleValue(c.divisor));
        VorExprEvValue value;
        EXPECT_EQ(c.quotient, node(L"/", L"1", L"d")->evaluate(value).toNumber()) << c.divisor;
        EXPECT_EQ(c.errors, errorCodes()) << c.divisor;
    }
}

TEST_F(VorExprEvTreeItemOperatorTest, DividingByNotANumberIsNoError)
{
    VorExprEvValue value;

    EXPECT_TRUE(std::isnan(node(L"/", L"1", L"nan")->evaluate(value).toNumber()));
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExprEvTreeItemOperatorTest, AssigningMakesAVariable)
{
    EXPECT_EQ(VorString(L"5.000000"), valueOf(node(L"=", L"x", L"5")));
    EXPECT_EQ(VorString(L"x=5.000000"), variables());
}

TEST_F(VorExprEvTreeItemOperatorTest, AssigningShadowsOlderVariables)
{
    define(L"x", doubleValue(1.0));

    valueOf(node(L"=", L"x", L"5"));

    EXPECT_EQ(VorString(L"x=5.000000 x=1.000000"), variables());
    EXPECT_EQ(VorString(L"10.000000"), valueOf(node(L"+", L"x", L"x")));
}

TEST_F(VorExprEvTreeItemOperatorTest, AnAssignedValueKeepsItsType)
{
    define(L"i", integerValue(3));
    define(L"b", booleanValue(1));
    define(L"u", VorExprEvValue());

    EXPECT_EQ(VorString(L"3"), valueOf(node(L"=", L"x", L"i")));
    EXPECT_EQ(VorString(L"True"), valueOf(node(L"=", L"y", L"b")));
    EXPECT_EQ(VorString(L"UnkValue"), valueOf(node(L"=", L"z", L"u")));
    EXPECT_EQ(VorString(L"z=UnkValue y=True x=3 u=UnkValue b=True i=3"), variables());
}

TEST_F(VorExprEvTreeItemOperatorTest, AssigningNothingMakesAVariableWithoutValue)
{
    EXPECT_EQ(VorString(L"UnkValue"), valueOf(node(L"=", operand(L"x"), Item())));
    EXPECT_EQ(VorString(L"x=UnkValue"), variables());
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExprEvTreeItemOperatorTest, TheNameAssignedToIsNotEvaluated)
{
    EXPECT_EQ(VorString(L"3.000000"), valueOf(node(L"=", node(L"/", L"nobody", L"0"), operand(L"3"))));
    EXPECT_EQ("", errorCodes());
    EXPECT_EQ(VorString(L"/=3.000000"), variables());
}

TEST_F(VorExprEvTreeItemOperatorTest, OnlyTheOuterOfTwoAssignmentsRuns)
{
    EXPECT_EQ(VorString(L"3.000000"), valueOf(node(L"=", node(L"=", L"a", L"b"), operand(L"3"))));
    EXPECT_EQ(VorString(L"==3.000000"), variables());
}

TEST_F(VorExprEvTreeItemOperatorTest, AssigningToNothingIsASyntaxError)
{
    EXPECT_EQ(VorString(L"UnkValue"), valueOf(node(L"=", Item(), operand(L"5"))));
    EXPECT_EQ("0", errorCodes());
    EXPECT_EQ(VorString(), variables());
}

TEST_F(VorExprEvTreeItemOperatorTest, TheAssignedValueIsEvaluatedBeforeTheNameIsMissed)
{
    valueOf(node(L"=", Item(), node(L"/", L"10", L"0")));

    EXPECT_EQ("0 5", errorCodes());
}

TEST_F(VorExprEvTreeItemOperatorTest, AnImpossibleOperatorIsReportedAndGivesAnUnknownValue)
{
    EXPECT_EQ(VorString(L"UnkValue"), valueOf(node(L"?", L"nobody", L"2")));

    EXPECT_TRUE(m_log.holdsOnly(L"false", kSourcePath));
    EXPECT_EQ(1, m_log.count(L"false", kSourcePath, 145));
    EXPECT_EQ("", errorCodes());
}

TEST_F(VorExprEvTreeItemOperatorTest, ParenthesesAndMissingTextAreImpossibleOperators)
{
    EXPECT_EQ(VorString(L"5.000000"), valueOf(node(L"+", node(L"(", L"1", L"2"), operand(L"5"))));
    EXPECT_EQ(VorString(L"UnkValue"), valueOf(node(L")", L"1", L"2")));
    EXPECT_EQ(VorString(L"UnkValue"), valueOf(node(L"", L"1", L"2")));

    EXPECT_EQ(3, m_log.count(L"false", kSourcePath, 145));
}

TEST_F(VorExprEvTreeItemOperatorTest, ItIsCompleteWithBothSides)
{
    EXPECT_EQ(1, node(L"+", L"1", L"2")->isComplete());
    EXPECT_EQ(0, node(L"+", Item(), operand(L"2"))->isComplete());
    EXPECT_EQ(0, node(L"+", operand(L"1"), Item())->isComplete());
    EXPECT_EQ(0, node(L"++", L"1", L"2")->isComplete());
    EXPECT_EQ(0, node(L"", L"1", L"2")->isComplete());
}

TEST_F(VorExprEvTreeItemOperatorTest, ItIsAnOperatorAndShowsItsText)
{
    const VorExprEvTreeItemOperator item(view(L"2*3").part(1, 2));

    EXPECT_EQ(1, item.isOperator());
    EXPECT_EQ(L"*", item.getText().existingPart());
    EXPECT_EQ(L'*', item.character());
}
