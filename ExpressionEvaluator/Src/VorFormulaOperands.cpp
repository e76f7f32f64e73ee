#include "VorFormulaOperands.h"

#include "VorExprEvTreeItemOperand.h"

#include <algorithm>
#include <cwchar>
#include <limits>

std::wstring_view VorFormulaOperands::textAt(const wchar_t* pText, const wchar_t*& pNext)
{
    while (VorFormulaCharacters::kBlanks.holds(*pText))
        ++pText;
    pNext = pText;
    while (!VorFormulaCharacters::kOperandEnds.holds(*pNext))
        ++pNext;
    const wchar_t* pEnd = pNext;
    while (pEnd != pText && VorFormulaCharacters::kBlanks.holds(pEnd[-1]))
        --pEnd;
    return { pText, static_cast<std::size_t>(pEnd - pText) };
}

const wchar_t* VorFormulaOperands::findAssigned(const wchar_t* pText, double& value) const
{
    for (const Variable* pVariable = m_variables.announcedEnd(); pVariable != m_pGivenEnd;)
    {
        --pVariable;
        const auto nLength = static_cast<std::size_t>(pVariable->nLength);
        if (*pText != *pVariable->pName || std::wcsncmp(pText, pVariable->pName, nLength) != 0)
            continue;
        const wchar_t* pNext = VorFormulaCharacters::endOperand(pText + nLength);
        if (pNext == nullptr)
            continue;
        value = pVariable->value;
        return canBeName(pNext) ? pNext : nullptr;
    }
    return nullptr;
}

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
