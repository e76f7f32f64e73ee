#include "VorExprEvTreeItemOperand.h"

#include "VorExprEvValue.h"
#include "VorExprEvVariableList.h"
#include "VorExprEvalErrorHandler.h"
#include "VorFormulaCharacters.h"

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
    VorExprEvalErrorHandler::ofThread().raise(VorExprEvalError::kSyntaxError);
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
    const wchar_t* pStart = text.text() + text.start();
    const wchar_t* pEnd = text.text() + text.textLength();
    if (pStart < pEnd && !VorFormulaCharacters::canStartNumber(*pStart))
        return 0;
    float scanned = 0.0F;
    if (VorNumberText::scanFloat(pStart, pEnd, scanned) == VorNumberText::kNoNumber)
        return 0;
    number = scanned; // still 0.0 where the text ended before any number, which counts as one
    return 1;
}
