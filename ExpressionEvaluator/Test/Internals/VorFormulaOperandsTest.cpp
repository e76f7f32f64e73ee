#include "ExpressionEvaluator/Src/OneShot/VorFormulaOperands.h"

#include "ExpressionEvaluator/Test/Support/FormulaSupport.h"

namespace
{
// Over a = 2 and my length = 1000, and a second a = 5 that hides the first.
class VorFormulaOperandsTest : public testing::Test
{
protected:
    VorFormulaOperandsTest()
    {
        const wchar_t* const names[] = { L"a", L"my length", L"a" };
        const double values[] = { 2.0, 1000.0, 5.0 };
        m_variables.announce(names, values, 3);
    }

    // The value, and what is left to read: "5 *2"; "none" where no operand begins or it has no value.
    static std::string read(VorFormulaOperands& operands, const wchar_t* text)
    {
        double value = 0.0;
        const wchar_t* pNext = operands.read(text, VorFormulaCharacters::kKindsInFormula[*text], value);
        if (pNext == nullptr)
            return "none";
        return std::to_string(value) + " " + toUtf8(VorString(pNext));
    }

    // As the first operand of a formula.
    std::string read(const wchar_t* text)
    {
        VorFormulaOperands operands(m_variables);
        return read(operands, text);
    }

    VorExprEvVariableList m_variables;
};
}

TEST_F(VorFormulaOperandsTest, NamesStandForTheNewestVariableSoCalled)
{
    EXPECT_EQ("5.000000 *2", read(L"a*2"));
    EXPECT_EQ("1000.000000 *2", read(L"my length \t*2"));
    for (const wchar_t* text : { L"b", L"A", L"ab", L"my  length", L"my", L"%" })
        EXPECT_EQ("none", read(text)) << toUtf8(text);
}

// An operand has neither operators in it nor a blank at its end.
TEST_F(VorFormulaOperandsTest, NamesThatNoOperandCanHaveStandForNothingAndHideNothing)
{
    const wchar_t* const names[] = { L"a", L"a ", L"a+b", L"a*", L"b ;", L"c\t", L"d=", L"(e)", L"" };
    const double values[] = { 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0 };
    m_variables.clear();
    ASSERT_EQ(1, m_variables.announce(names, values, 9));

    EXPECT_EQ("1.000000 *2", read(L"a *2"));
    EXPECT_EQ("1.000000 +b*2", read(L"a+b*2"));
    EXPECT_EQ("1.000000 **2", read(L"a**2"));
    for (const wchar_t* text : { L"b ;", L"b ;a", L"c\t+a", L"d=", L"d==2", L"(e)" })
        EXPECT_EQ("none", read(text)) << toUtf8(text);
}

TEST_F(VorFormulaOperandsTest, NumbersAreReadWhicheverWay)
{
    EXPECT_EQ("2.000000 +a", read(L"2+a"));
    EXPECT_EQ("2.500000 ;a", read(L"2.5 ;a"));
    EXPECT_EQ("0.500000 ", read(L".5"));
    EXPECT_EQ("2.000000 ", read(L"2abc"));
    EXPECT_EQ("16777216.000000 ", read(L"16777217")); // single precision
    EXPECT_EQ("100000.000000 +5", read(L"1e+5"));     // on purpose: the number runs past its operand
    EXPECT_EQ("inf ", read(L"info"));
}

TEST_F(VorFormulaOperandsTest, WhereNoOperandBeginsNoneIsRead)
{
    for (const wchar_t* text : { L"", L"(2)", L"*2", L";a", L" a" })
        EXPECT_EQ("none", read(text)) << toUtf8(text);
}

TEST_F(VorFormulaOperandsTest, InTheLastOfSeveralStatementsNoNameIsLast)
{
    VorFormulaOperands operands(m_variables);
    operands.beginNextStatement();

    EXPECT_EQ("5.000000 *2", read(operands, L"a*2"));
    EXPECT_EQ("none", read(operands, L"a"));
    EXPECT_EQ("2.000000 ", read(operands, L"2"));
}

TEST_F(VorFormulaOperandsTest, WhatIsAssignedIsFoundUntilItIsForgotten)
{
    VorFormulaOperands operands(m_variables);
    EXPECT_EQ(1, operands.assign(L"a", 8.0));
    EXPECT_EQ(1, operands.assign(L"c", 9.0));
    EXPECT_EQ("8.000000 ", read(operands, L"a"));
    EXPECT_EQ("9.000000 ", read(operands, L"c"));

    operands.forgetAssigned();

    EXPECT_EQ("5.000000 ", read(operands, L"a"));
    EXPECT_EQ("none", read(operands, L"c"));
    EXPECT_EQ(3, m_variables.count());
}

TEST_F(VorFormulaOperandsTest, TooManyAssignmentsAreRefused)
{
    VorFormulaOperands operands(m_variables);
    int numAssigned = 0;
    while (numAssigned <= VorExprEvVariableList::kMostAnnounced && operands.assign(L"x", numAssigned))
        ++numAssigned;

    EXPECT_EQ(VorExprEvVariableList::kMostAnnounced - 3, numAssigned);
}

TEST_F(VorFormulaOperandsTest, TheTextOfAnOperandHasNoBlanksAtItsEnds)
{
    const wchar_t* pNext = nullptr;
    EXPECT_EQ(L"my length", VorFormulaOperands::textAt(L" \tmy length \n=3", pNext));
    EXPECT_STREQ(L"=3", pNext);
    EXPECT_EQ(L"", VorFormulaOperands::textAt(L"  +3", pNext));
    EXPECT_STREQ(L"+3", pNext);
}
