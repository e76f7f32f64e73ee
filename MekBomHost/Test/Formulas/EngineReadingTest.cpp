#include "EngineReading.h"

#include "Utf8.h"

#include "ExpressionEvaluator/Src/evaluateFormula.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
struct ReadingCase
{
    const wchar_t* formula;
    const char* text;
};

// What the engine computes of a formula of numbers.
double valueOf(const VorString& formula)
{
    const wchar_t* const names[] = { nullptr };
    const double values[] = { 0.0 };
    double value = -1.0;
    evaluateFormula(formula.getStringW(), names, values, 0, &value);
    return value;
}
}

TEST(EngineReadingTest, FormulasAreReadAsTheEngineReadsThem)
{
    const ReadingCase cases[] = {
        { L"a*2+b", "((a*2)+b)" },
        { L"8-3-2", "((8-3)-2)" },
        { L"2*3+(4+5)*6", "(((2*3)+(4+5))*6)" },
        { L"%W-(%Q-1)*2", "((%W-(%Q-1))*2)" },
        { L"8/-2/2", "(8/(-(2/2)))" },
        { L"-a", "(-a)" },
        { L"round(%W*2.2)", "(%W*2.2)" },
        { L"2(3+4)", "(3+4)" },
        { L"(a)(b)", "b" },
        { L" my length * 2 ", "(my length*2)" },
        { L"5*", "(0*5)" },
        { L"+", "(0+0)" },
        { L"2,5*%W", "(2*%W)" },
        { L"1e-3*%W", "(0.001-(3*%W))" },
        { L"a=4;a*2", "a=4;(a*2)" },
        { L"a=4;2*a", "a=4;(2*a)" },
        { L"a=b=3", "(a=b)=3" },
        { L"a=4;", "a=4;" },
        { L"", "" },
        { L")2+3(", "(2+3)" },
    };
    for (const ReadingCase& c : cases)
    {
        const EngineReading reading = EngineReading::read(c.formula);
        EXPECT_TRUE(reading.isBalanced) << c.text;
        EXPECT_EQ(c.text, reading.tree.text());
    }
}

// The text has a pair of brackets for each operator, which leaves the engine nothing to decide.
TEST(EngineReadingTest, TheTextHasTheValueOfTheFormula)
{
    for (const VorString formula :
         { L"2*3+(4+5)*6", L"8/-2/2", L"(1+2)*2-(3-1)*3", L"1+(2)*3", L"10-(2)-3", L"2*-3+4/2" })
    {
        const std::string text = EngineReading::read(formula).tree.text();
        EXPECT_EQ(valueOf(formula), valueOf(Utf8::toWide(text))) << text;
    }
}

TEST(EngineReadingTest, ParenthesesThatDoNotBalanceAreTold)
{
    EXPECT_FALSE(EngineReading::read(L"(1+2").isBalanced);
    EXPECT_FALSE(EngineReading::read(L"1+2)").isBalanced);
    EXPECT_FALSE(EngineReading::read(L"a=(4;a)*2").isBalanced);
}

TEST(EngineReadingTest, ANameAtTheEndOfTheLastStatementHasZeroCharactersBehindIt)
{
    const FormulaTree tree = EngineReading::read(L"a=4;2*a").tree;

    const FormulaNode& name = tree.nodes()[static_cast<std::size_t>(tree.nodes()[5].right)];
    EXPECT_EQ(VorString(L"a\0", 2), name.text);
    EXPECT_EQ(VorString(L"a"), EngineReading::read(L"a=4;2*a;").tree.nodes()[4].text);
}

TEST(EngineReadingTest, NumbersTellHowFarTheyWereRead)
{
    const FormulaTree tree = EngineReading::read(L"2,5*1e-3").tree;

    EXPECT_EQ(1, tree.nodes()[0].numRead);
    EXPECT_EQ(VorString(L"2,5"), tree.nodes()[0].text);
    EXPECT_EQ(4, tree.nodes()[1].numRead);
    EXPECT_EQ(VorString(L"1e"), tree.nodes()[1].text);
}

TEST(EngineReadingTest, OnlyWhatIsComputedIsMarked)
{
    const FormulaTree tree = EngineReading::read(L"a=b=3").tree;

    std::string marks;
    for (const FormulaNode& node : tree.nodes())
        marks += node.isComputed ? '1' : '0';
    EXPECT_EQ("00011", marks); // a, b and their '=' are the name that 3 is assigned to
}

TEST(EngineReadingTest, DepthAndLengthTakeNoRecursion)
{
    const int depth = 100000;
    VorString nested;
    nested.append(L'(', depth);
    nested += L"1+2";
    nested.append(L')', depth);
    VorString negated;
    negated.append(L'-', depth);
    negated += L"1";

    EXPECT_EQ("(1+2)", EngineReading::read(nested).tree.text());
    EXPECT_EQ(static_cast<std::size_t>(3 * depth + 1), EngineReading::read(negated).tree.text().size());
}
}
