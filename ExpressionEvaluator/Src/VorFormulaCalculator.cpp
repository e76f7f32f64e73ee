#include "VorFormulaCalculator.h"

#include "VorExprEvTreeItemOperator.h"
#include "VorExprEvValue.h"
#include "VorFixedStack.h"
#include "VorFormulaOperands.h"
#include "VorStatementReader.h"

#include <cstddef>
#include <string_view>

namespace
{
// Deeper formulas are left to the tree. Arbitrary; formulas of reports nest a few deep.
constexpr std::size_t kDeepest = 32;

// Computes one statement while it is read: operands and results stand on one stack of numbers.
//
// The name on the left of an assignment is no number and is kept aside. It stands below all numbers, so an operator that
// finds none left would take the name for its side: that is for the tree to sort out, as is all that is odd.
class StatementCalculator : public VorStatementReader<StatementCalculator, VorFixedStack<VorWaitingOperator, kDeepest>>
{
public:
    // The rooms are for operators that wait and for numbers.
    StatementCalculator(VorFormulaOperands& operands, VorWaitingOperator (&operatorRoom)[kDeepest],
                        double (&numberRoom)[kDeepest])
        : VorStatementReader(operatorRoom), m_operands(operands), m_numbers(numberRoom)
    {
    }

    const VorFixedStack<double, kDeepest>& numbers() const { return m_numbers; }

    bool fails() const { return m_bFails || m_numbers.hasOverflown() || operators().hasOverflown(); }

    static VorFormulaCharacters::eKind kindAt(const wchar_t* pText)
    {
        return VorFormulaCharacters::kKindsInFormula[*pText];
    }

    void addNothing() { m_numbers.push(0.0); }

    const wchar_t* readOperand(const wchar_t* pText)
    {
        double value = 0.0;
        const wchar_t* pNext = m_operands.read(pText, value);
        if (pNext == nullptr || *pNext == L'=')
            return readName(pText);
        m_numbers.push(value);
        return pNext;
    }

    void reduce(const VorWaitingOperator& waiting)
    {
        if (waiting.kind == VorFormulaCharacters::kAssignment)
            assign();
        else
            compute(waiting.character());
    }

    void trace(const OperatorStack&) {}

private:
    // Without a value, unless it is the name to be assigned to.
    const wchar_t* readName(const wchar_t* pText)
    {
        const wchar_t* pNext = nullptr;
        const std::wstring_view name = VorFormulaOperands::textAt(pText, pNext);
        if (*pNext == L'=' && m_numbers.isEmpty() && m_name.empty())
            m_name = name;
        else
            m_bFails = true;
        return pNext;
    }

    void compute(wchar_t operation)
    {
        if (m_numbers.size() < 2)
            addMissingSides();
        const double right = m_numbers.pop();
        double& left = m_numbers.top();
        if (!VorExprEvTreeItemOperator::calculate(operation, left, right, left))
            m_bFails = true;
    }

    // A missing side counts as 0.0; the one that is there is the right one.
    void addMissingSides()
    {
        if (!m_name.empty())
            m_bFails = true;
        const double right = m_numbers.isEmpty() ? 0.0 : m_numbers.pop();
        m_numbers.push(0.0);
        m_numbers.push(right);
    }

    void assign()
    {
        const bool isPlain = !m_name.empty() && m_numbers.size() == 1 && !m_bFails;
        if (!isPlain || !m_operands.assign(m_name, m_numbers.top()))
            m_bFails = true;
        m_name = {};
    }

    VorFormulaOperands& m_operands;
    VorFixedStack<double, kDeepest> m_numbers;
    std::wstring_view m_name; // to be assigned to; empty in a statement without assignment
    bool m_bFails = false;
};

struct Outcome
{
    double value = 0.0; // of the last statement with operands
    bool hasOperators = false;
};

// Where the statement at `pText` ends; null when it is not for this calculator.
const wchar_t* calculateStatement(const wchar_t* pText, VorFormulaOperands& operands, Outcome& outcome)
{
    VorWaitingOperator operatorRoom[kDeepest];
    double numberRoom[kDeepest];
    StatementCalculator calculator(operands, operatorRoom, numberRoom);
    if (!calculator.read(pText) || calculator.fails())
        return nullptr;
    if (!calculator.numbers().isEmpty())
        outcome.value = calculator.numbers().top();
    outcome.hasOperators = outcome.hasOperators || calculator.hasOperators();
    return pText;
}
}

int VorFormulaCalculator::calculate(const wchar_t* formula, double& result)
{
    VorFormulaOperands operands(formula, m_variables);
    Outcome outcome;
    const wchar_t* pNext = formula;
    while ((pNext = calculateStatement(pNext, operands, outcome)) != nullptr && *pNext != L'\0')
    {
        ++pNext;
        operands.beginNextStatement();
    }
    if (pNext == nullptr || !outcome.hasOperators)
    {
        operands.forgetAssigned();
        return 0;
    }
    result = VorExprEvValue::readBack(outcome.value);
    return 1;
}
