// A number or a name in a formula, or the missing left side of a negation, which has no text. It has no children.
//
//   "12.5", "2abc"  ->  12.5, 2.0        numbers are read from the start of the text, names are not
//   "abc"           ->  the newest variable of that name, or a syntax error and an unknown value
//   no text         ->  0.0
#pragma once

#include "VorExprEvTreeItem.h"

class MEK_EXPRESSION_API VorExprEvTreeItemOperand : public VorExprEvTreeItem
{
public:
    explicit VorExprEvTreeItemOperand(const VorExprEvTextView& text) : VorExprEvTreeItem(text) {}

    int print() const override;

    // Numbers are read in single precision, as "%f" reads them: "0.1" is 0.10000000149011612. On purpose the number
    // runs on as far as the formula allows, past the end of the view: "1e+5" is the sum of the operands "1e" and "5",
    // and gives 100000 + 5. Pinned by VorExprEvTreeItemOperandTest.TheNumberRunsPastTheView.
    // A text that ends before any number (a vertical tab alone) is 0.0.
    VorExprEvValue& evaluate(VorExprEvValue& value) const override;

    // The number that evaluating gives, 0.0 for no text; 0 with `number` untouched for a name.
    int getNumber(double& number) const { return scanNumber(m_text, number); }
    static int scanNumber(const VorExprEvTextView& text, double& number);

    VorExprEvTextView getText() const override { return m_text; }
    int isComplete() const override { return 1; }
    int isOperator() const override { return 0; }
};
