// The client of the reader keeps one number, the operand read or computed last; an operator that waits keeps the one on
// its left. "2*3+4":
//   readOperand 2    value 2
//   readOperand 3    value 3      waiting 2*
//   combine *        value 6
//   readOperand 4    value 4      waiting 6+
//   combine +        value 10
// With operands and operators taking turns no third number has to be kept.
#include "VorFormulaCalculator.h"

#include "ExpressionEvaluator/Src/Reading/VorStatementReader.h"
#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperator.h"
#include "ExpressionEvaluator/Src/VorExprEvValue.h"
#include "VorFormulaOperands.h"

#include <cmath>
#include <string_view>

namespace
{
using VorFormulaCharacters::eKind;

class NumberClient
{
public:
    using Left = double;
    static constexpr bool kTakesOddStatements = false;
    static constexpr bool kIsTraced = false;

    explicit NumberClient(VorFormulaOperands& operands) : m_operands(operands) {}

    double value() const { return m_value; }
    bool hasFailed() const { return m_bFails; }

    void beginStatement(const wchar_t* pText) { m_pStatement = pText; }

    eKind kindAt(const wchar_t* pText) const { return VorFormulaCharacters::kKindsInFormula[*pText]; }

    // What has no value may be the name that is assigned to.
    const wchar_t* readOperand(const wchar_t* pText, eKind kind)
    {
        if (const wchar_t* pNext = m_operands.read(pText, kind, m_value))
            return pNext;
        const wchar_t* pNext = nullptr;
        VorFormulaOperands::textAt(pText, pNext);
        return *pNext == L'=' ? pNext : nullptr;
    }

    void addNothing() { m_value = 0.0; }

    double left(const wchar_t*) const { return m_value; }

    // Of a statement only what stands at its start.
    bool canAssign(const wchar_t* pText)
    {
        const wchar_t* pNext = nullptr;
        m_assigned = VorFormulaOperands::textAt(m_pStatement, pNext);
        return !m_assigned.empty() && pNext == pText;
    }

    void combine(const VorWaitingOperator<double>& waiting)
    {
        if (!VorExprEvTreeItemOperator::calculate(waiting.character, waiting.left, m_value, m_value))
            m_bFails = true;
    }

    void assign(const VorWaitingOperator<double>&)
    {
        // The sign of a NaN is not known here, and a later statement could show it.
        if (std::isnan(m_value) || !m_operands.assign(m_assigned, m_value))
            m_bFails = true;
    }

    void trace(const VorOperatorStack<double>&) const {}

private:
    VorFormulaOperands& m_operands;
    double m_value = 0.0;
    const wchar_t* m_pStatement = nullptr;
    std::wstring_view m_assigned;
    bool m_bFails = false;
};
}

// A step that fails is noticed only at the end. Until then the number is a wrong one and does no harm: what it is
// assigned to is taken back with all other assignments. One reader reads all statements, as any of them may have the
// operator that makes the text a formula.
int VorFormulaCalculator::calculate(const wchar_t* formula, double& result)
{
    VorFormulaOperands operands(m_variables);
    NumberClient client(operands);
    VorOperatorStack<double>::Room room;
    VorStatementReader<NumberClient> reader(client, room);
    const wchar_t* pText = formula;
    for (;; ++pText)
    {
        client.beginStatement(pText);
        pText = reader.read(pText);
        if (pText == nullptr || *pText == L'\0')
            break;
        operands.beginNextStatement();
    }
    if (pText == nullptr || client.hasFailed() || !reader.hasOperators() || std::isnan(client.value()))
    {
        operands.forgetAssigned();
        return 0;
    }
    result = VorExprEvValue::readBack(client.value());
    return 1;
}
