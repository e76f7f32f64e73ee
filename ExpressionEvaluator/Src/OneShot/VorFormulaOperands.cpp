#include "VorFormulaOperands.h"

#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperand.h"

#include <algorithm>
#include <cwchar>
#include <limits>

// A number with an exponent, say, or a name that begins like a number. Numbers run on past the end of their operand.
const wchar_t* VorFormulaOperands::readUnusual(const wchar_t* pText, double& value)
{
    if (m_pFormulaEnd == nullptr)
        m_pFormulaEnd = pText + std::wcslen(pText);
    const std::ptrdiff_t nRest = std::min<std::ptrdiff_t>(m_pFormulaEnd - pText, std::numeric_limits<int>::max());
    const VorExprEvTextView rest(pText, 0, static_cast<int>(nRest));
    if (!VorExprEvTreeItemOperand::scanNumber(rest, value))
        return findName(pText, value);
    const wchar_t* pNext = nullptr;
    textAt(pText, pNext);
    return pNext;
}
