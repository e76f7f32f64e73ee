#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The verb as the program runs it: what it prints, what it says, and its status.

namespace mekbom
{
namespace
{
ProgramRun formula(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "formula");
    return runHere(arguments);
}

// The output of a formula that has nothing said against it.
std::string computed(const std::vector<std::string>& arguments)
{
    const ProgramRun run = formula(arguments);
    EXPECT_EQ(kDone, run.status) << run.errors;
    EXPECT_EQ("", run.errors);
    return run.output;
}
}

TEST(FormulaVerbTest, TheValueStandsAboveTheTree)
{
    EXPECT_EQ("10\n((a*2)+b)\n", computed({ "a*2+b", "a=3", "b=4" }));
    EXPECT_EQ("0.333333\n(1/3)\n", computed({ "1 / 3" }));
    EXPECT_EQ("-0.5\n(1-a)\n", computed({ "1 - a", "a=1.5" }));
}

TEST(FormulaVerbTest, NamesMayBeTokensAndHaveBlanks)
{
    EXPECT_EQ("1.2\n((%Length*%Width)/1000000)\n",
              computed({ "%Length*%Width/1000000", "%Length=6000", "%Width=200" }));
    EXPECT_EQ("5\n(my length*2)\n", computed({ "my length*2", "my length = 2.5" }));
    EXPECT_EQ("12000\na=%Length;(a*2)\n", computed({ "a=%Length ;a*2", "%Length=6000" }));
}

TEST(FormulaVerbTest, BothReadingsAreShownWhereTheyDiffer)
{
    EXPECT_EQ("90\n(((2*3)+(4+5))*6)   as lists read it\n((2*3)+((4+5)*6))   as ordinary arithmetic reads it\n",
              computed({ "2*3+(4+5)*6" }));
    EXPECT_EQ("-8\n(8/(-(2/2)))   as lists read it\n((8/(-2))/2)   as ordinary arithmetic reads it\n",
              computed({ "8/-2/2" }));
    EXPECT_EQ("14\n(2*(3+4))\n", computed({ "2*(3+4)" }));
}

TEST(FormulaVerbTest, AFormulaMayBeginWithAMinusSign)
{
    EXPECT_EQ("-6\n(-(a*2))\n", computed({ "--", "-a*2", "a=3" }));
    EXPECT_EQ("-6\n(a*2)\n", computed({ "a * 2", "a=-3" }));
}

TEST(FormulaVerbTest, WhatIsComputedOtherwiseThanWrittenIsWarnedOf)
{
    const ProgramRun run = formula({ "round(a*2,5)", "a=3" });

    EXPECT_EQ(kDone, run.status);
    EXPECT_EQ("6\n(a*2)\n", run.output);
    EXPECT_EQ(
        "warning MB405: \"round\" disappears: \"round(a*2,5)\" is read as \"(a*2)\"; help: there are no functions, and "
        "a product needs its '*'\n"
        "warning MB408: \"2,5\" is read as the number 2; help: the decimal sign is a point, and the operators are "
        "\"*/+-=()\"\n",
        run.errors);
}

TEST(FormulaVerbTest, AFormulaThatFailsHasItsErrorTextAndStatusOne)
{
    const struct
    {
        std::vector<std::string> arguments;
        const char* errors;
    } cases[] = {
        { { "10/0" },
          "error MB422: Division by zero\n"
          "error MB414: the divisor 0 lies within 0.0001 of zero: \"Division by zero\"\n" },
        { { "(1+2" },
          "error MB422: Impaired paranthesis\n"
          "error MB422: \"(1+2\" has more '(' than ')', or the reverse: \"Impaired paranthesis\"; help: close each "
          "parenthesis, in each statement\n" },
        { { "%W*2" }, "error MB422: Syntax error\nerror MB422: \"%W\" has no value; give it one, such as \"%W=1\"\n" },
        { { "a=4;2*a" },
          "error MB422: Syntax error\n"
          "error MB406: \"a\" ends the last statement, which is read further than it goes: \"Syntax error\"; help: put "
          "a "
          "';' behind the formula\n" },
        { { "1+2" },
          "error MB401: \"1+2\" has 3 characters and is never computed; help: make it longer by blanks, as in \"a * "
          "b\"\n" },
        { { "%Weight", "%Weight=3" },
          "error MB402: \"%Weight\" has none of the operators \"*/+-=()\" and is never computed; help: show the token "
          "without "
          "%Formula:, or multiply it by 1\n" },
    };
    for (const auto& c : cases)
    {
        const ProgramRun run = formula(c.arguments);
        EXPECT_EQ(kMistakes, run.status) << c.arguments.front();
        EXPECT_EQ("", run.output);
        EXPECT_EQ(c.errors, run.errors);
    }
}

TEST(FormulaVerbTest, ValuesAreNamesAndNumbers)
{
    EXPECT_EQ("mekbom: found \"a\", expected a name and its number such as a=3\n", formula({ "a*2+1", "a" }).errors);
    EXPECT_EQ("mekbom: found \"=3\", expected a name and its number such as a=3\n", formula({ "a*2+1", "=3" }).errors);
    EXPECT_EQ("mekbom: found \"3,5\", expected a number for a\n", formula({ "a*2+1", "a=3,5" }).errors);
    EXPECT_EQ(kWrongUsage, formula({ "a*2+1", "a=" }).status);
    EXPECT_EQ(kWrongUsage, formula({}).status);
}

TEST(FormulaVerbTest, HelpHasExamples)
{
    const ProgramRun run = formula({ "--help" });

    EXPECT_EQ(kDone, run.status);
    EXPECT_NE(std::string::npos, run.output.find("mekbom formula 'a*2+b' a=3 b=4"));
}

TEST(FormulaVerbTest, AHostileFormulaEnds)
{
    std::string product = "1";
    for (int i = 0; i < 50000; ++i)
        product += "*1";

    EXPECT_EQ("1\n", computed({ product }).substr(0, 2));
    EXPECT_EQ(kMistakes, formula({ std::string(100000, '(') }).status);
}
}
