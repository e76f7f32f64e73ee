#include "VorFormulaCalculator.h"

#include "VorExprEvTreeItemOperand.h"
#include "VorExprEvTreeItemOperator.h"
#include "VorExprEvValue.h"

#include <cwchar>
#include <string_view>

VorFormulaCalculator::VorFormulaCalculator(const wchar_t* const* names, const double* values, int count)
    : m_pNames(names), m_pValues(values), m_nCount(count)
{
}

int VorFormulaCalculator::calculate(const wchar_t* formula, int length, double& result)
{
    if (std::wstring_view(formula, static_cast<std::size_t>(length)).find(L';') != std::wstring_view::npos)
        return 0;
    m_formula = VorExprEvTextView(formula, 0, length);
    if (!Reader(m_formula, *this).read() || m_bFails)
        return 0;
    result = VorExprEvValue::readBack(takeNumber());
    return 1;
}

void VorFormulaCalculator::addOperand(int nStart, int nEnd)
{
    double value = 0.0;
    const VorExprEvTextView operand = m_formula.part(nStart, nEnd);
    if (!VorExprEvTreeItemOperand::scanNumber(operand, value) &&
        !findValue(m_formula.text() + nStart, nEnd - nStart, value))
        m_bFails = true;
    m_numbers.push(value);
}

// A missing side counts as 0.0. An assignment is nothing that can be calculated.
void VorFormulaCalculator::reduce(int nPosition)
{
    const wchar_t operation = m_formula.at(nPosition);
    const double right = takeNumber();
    const double left = takeNumber();
    double result = 0.0;
    if (operation == L'=' || !VorExprEvTreeItemOperator::calculate(operation, left, right, result))
        m_bFails = true;
    m_numbers.push(result);
}

int VorFormulaCalculator::findValue(const wchar_t* name, int nLength, double& value) const
{
    const auto length = static_cast<std::size_t>(nLength);
    for (int i = m_nCount - 1; i >= 0; --i)
    {
        if (m_pNames[i] == nullptr || std::wcsncmp(m_pNames[i], name, length) != 0 || m_pNames[i][length] != L'\0')
            continue;
        value = m_pValues[i];
        return 1;
    }
    return 0;
}
