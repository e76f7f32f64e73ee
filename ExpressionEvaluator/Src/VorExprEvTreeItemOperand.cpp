// A number is looked for in the formula from the operand's start on, wherever the operand ends. The operands of "1e+5"
// are "1e" and "5", and evaluate to
//   "1e"     100000     as "1e+5" is a number
//   "5"      5
// so that the sum is 100005. What is no number is the name of a variable. Names begin with '%' or a letter, and few
// with one that numbers begin with ("inf"), so that the first character mostly tells the two apart before any scan.
#include "VorExprEvTreeItemOperand.h"

#include "Reading/VorFormulaCharacters.h"
#include "VorExprEvValue.h"
#include "VorExprEvVariableList.h"
#include "VorExprEvalErrorHandler.h"

#include "MekRoots/Exp/VorNumberText.h"

int VorExprEvTreeItemOperand::print() const
{
    return printText();
}

VorExprEvValue& VorExprEvTreeItemOperand::evaluate(VorExprEvValue& value) const
{
    double number = 0.0;
    if (getNumber(number))
    {
        value.setDouble(number);
        return value;
    }
    if (const VorExprEvVariable* pVariable = VorExprEvVariableList::ofThread().find(m_text))
    {
        pVariable->value().copyTo(value);
        return value;
    }
    VorExprEvalErrorHandler::ofThread().raise(VorExprEvalError::kSyntaxError, m_text.start());
    value.release();
    return value;
}

int VorExprEvTreeItemOperand::scanNumber(const VorExprEvTextView& text, double& number)
{
    if (!text.hasText())
    {
        number = 0.0;
        return 1;
    }
    const std::wstring_view rest = text.restOfText();
    if (!rest.empty() && !VorFormulaCharacters::canStartNumber(rest.front()))
        return 0;
    float scanned = 0.0F;
    if (VorNumberText::scanFloat(rest.data(), rest.data() + rest.size(), scanned) == VorNumberText::kNoNumber)
        return 0;
    number = scanned; // still 0.0 where the text ended before any number, which counts as one
    return 1;
}
