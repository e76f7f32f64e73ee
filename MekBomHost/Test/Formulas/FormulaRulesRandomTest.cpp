// Random formulas, and what both the engine and plain double arithmetic compute of them.
#include "ArithmeticReading.h"
#include "EngineReading.h"
#include "FormulaRules.h"
#include "FormulaWalk.h"

#include "Support/FormulaSupport.h"
#include "Utf8.h"

#include "ExpressionEvaluator/Src/evaluateFormula.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

namespace mekbom
{
namespace
{
const wchar_t* const kNames[] = { L"a", L"b", L"c" };
constexpr int kNumNames = 3;

// Computes a tree in doubles.
struct Arithmetic
{
    double ofNothing() const { return 0.0; }
    double ofNumber(const FormulaNode& node) const { return node.number; }
    double ofName(const VorString& name) const { return values[*name.getStringW() - L'a']; }
    double combine(const FormulaNode& node, double left, double right) const
    {
        switch (node.operation)
        {
            case L'+': return left + right;
            case L'-': return left - right;
            case L'*': return left * right;
            default: return left / right;
        }
    }

    const double* values;
};

double valueOf(const FormulaTree& tree, const double* values)
{
    Arithmetic arithmetic{ values };
    return FormulaWalk<double, Arithmetic>(arithmetic).run(tree);
}

// Whether the numbers are equal but for rounding to six decimals.
bool areNear(double a, double b)
{
    return std::fabs(a - b) <= 1e-6 + 1e-9 * std::fabs(a);
}

// Operands and operators by turns, mostly, with parentheses here and there.
VorString randomFormula(std::mt19937& random)
{
    static const wchar_t* const kOperands[] = { L"a", L"b", L"c", L"2", L"3", L"(a", L"(b", L"-c", L"((a" };
    static const wchar_t* const kOperators[] = { L"+", L"-", L"*", L"/", L")*", L")+", L")-", L"))-", L"(" };
    VorString formula;
    bool wantsOperand = true;
    for (int n = static_cast<int>(random() % 10) + 3; n > 0; --n)
    {
        formula +=
            wantsOperand ? kOperands[random() % std::size(kOperands)] : kOperators[random() % std::size(kOperators)];
        wantsOperand = (random() % 20 == 0) == wantsOperand;
    }
    formula.append(L')', static_cast<int>(random() % 3));
    return formula;
}

// 0 when the formula ends in an error.
int evaluate(const VorString& formula, const double* values, double& value)
{
    return evaluateFormula(formula.getStringW(), kNames, values, kNumNames, &value);
}
}

TEST(FormulaRulesRandomTest, AFormulaWithoutFindingsIsComputedAsItIsWritten)
{
    std::mt19937 random(20240317);
    int numWithout = 0;
    int numRead = 0;
    for (int i = 0; i < 15000; ++i)
    {
        const VorString formula = randomFormula(random);
        const EngineReading engine = EngineReading::read(formula);
        const ArithmeticReading arithmetic = ArithmeticReading::read(formula);
        const std::vector<Finding> findings = FormulaRules::check(formula, operandOfTest, "none");
        const double values[kNumNames] = { 3.25, 7.5, 19.75 };
        double value = 0.0;
        if (evaluate(formula, values, value) == 0)
            continue;
        ASSERT_TRUE(engine.isBalanced) << Utf8::toBytes(formula);
        EXPECT_TRUE(areNear(value, valueOf(engine.tree, values))) << Utf8::toBytes(formula);
        ++numRead;
        if (!findings.empty())
            continue;
        ++numWithout;
        EXPECT_TRUE(areNear(value, valueOf(arithmetic.tree, values))) << Utf8::toBytes(formula);
    }
    EXPECT_GT(numRead, 1000);
    EXPECT_GT(numWithout, 300);
}

TEST(FormulaRulesRandomTest, ReadingsThatAreSaidToDifferDo)
{
    std::mt19937 random(20240318);
    int numDifferent = 0;
    for (int i = 0; i < 15000; ++i)
    {
        const VorString formula = randomFormula(random);
        const std::vector<Finding> findings = FormulaRules::check(formula, operandOfTest, "none");
        if (findings.empty() || findings.front().code != "MB404")
            continue;
        const FormulaTree engine = EngineReading::read(formula).tree;
        double value = 0.0;
        const FormulaTree arithmetic = ArithmeticReading::read(formula).tree;
        const double sets[][kNumNames] = { { 3.25, 7.5, 19.75 }, { 0.5, -4.125, 2.75 }, { 11.0, 0.375, -6.5 } };
        if (evaluate(formula, sets[0], value) == 0)
            continue; // a name that is none
        bool isDifferent = false;
        for (const double* values : sets)
            isDifferent = isDifferent || !(valueOf(engine, values) == valueOf(arithmetic, values));
        EXPECT_TRUE(isDifferent) << Utf8::toBytes(formula);
        ++numDifferent;
    }
    EXPECT_GT(numDifferent, 40);
}
}
