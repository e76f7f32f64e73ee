// One of the operators "*/+-=()" with its left and right side. Parentheses never get into a tree.
//
//   left * right, left + right, left - right    over doubles, whatever the sides' types; always a double
//   left / right                                a divisor within 0.0001 of zero is an error and gives 0.0
//   name = right                                a new variable; the result is the assigned value with its type
//
// A missing side counts as an unknown value, and that as 0.0.
#pragma once

#include "VorExprEvTreeItem.h"

class MEK_EXPRESSION_API VorExprEvTreeItemOperator : public VorExprEvTreeItem
{
public:
    // How tightly an operator binds: 0 '=', 1 '(' and ')', 2 '+' and '-', 3 '*' and '/'. Anything else reports "false"
    // and answers 0.
    static int precedence(wchar_t character);

    // Divisors closer to zero than this count as zero. Absolute and on purpose this coarse: existing formulas rely on
    // it.
    static constexpr double kSmallestDivisor = 0.0001;

    // Computes "*", "+", "-" or "/"; 0 with `result` 0.0 for a division by zero. Raises no error. Takes any character
    // but the first three for a division.
    static int calculate(wchar_t operation, double left, double right, double& result)
    {
        switch (operation)
        {
            case L'*': result = left * right; return 1;
            case L'+': result = left + right; return 1;
            case L'-': result = left - right; return 1;
            default: break;
        }
        const bool canDivide = !(right > -kSmallestDivisor && right < kSmallestDivisor);
        result = canDivide ? left / right : 0.0;
        return canDivide ? 1 : 0;
    }

    // As calculate, and what trees are evaluated by: when a side is a NaN, the result is that NaN, and of two the left
    // one. calculate leaves its sign open: processors keep that of the first operand that is a NaN, and which side of a
    // '*' or '+' comes first is the compiler's choice.
    static int calculateInOrder(wchar_t operation, double left, double right, double& result);

    explicit VorExprEvTreeItemOperator(const VorExprEvTextView& text) : VorExprEvTreeItem(text) {}

    int print() const override;

    // The left side is evaluated before the right, and an assignment's left side not at all: its text is the name. So
    // "a=b=3", which is (a=b)=3, makes a variable named "=". An assignment without a left side raises a syntax error
    // after its right side has been evaluated, and gives an unknown value. An operator that is none of "*/+-=" reports
    // "false" and gives an unknown value, its sides unevaluated.
    VorExprEvValue& evaluate(VorExprEvValue& value) const override;

    VorExprEvTextView getText() const override { return m_text; }

    // 1 when both sides are there and the text is one character.
    int isComplete() const override;

    int isOperator() const override { return 1; }

    wchar_t character() const { return m_text.at(m_text.start()); }
};
