#include "VorExprEvTreeItemOperand.h"

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
    if (!m_text.hasText() || scanNumber(number))
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

// 0 with `number` untouched when something else than a number stands here. At the end of the text it stands untouched
// too, but counts as read.
int VorExprEvTreeItemOperand::scanNumber(double& number) const
{
    float scanned = 0.0F;
    const wchar_t* pStart = m_text.text() + m_text.start();
    const wchar_t* pEnd = m_text.text() + m_text.textLength();
    const VorNumberText::eScanResult result = VorNumberText::scanFloat(pStart, pEnd, scanned);
    if (result == VorNumberText::kNoNumber)
        return 0;
    if (result == VorNumberText::kNumber)
        number = scanned;
    return 1;
}
