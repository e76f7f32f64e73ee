#include "VorFormulaCalculator.h"

#include "VorExprEvTreeItemOperator.h"
#include "VorExprEvValue.h"
#include "VorFixedStack.h"
#include "VorFormulaOperands.h"

#include <cstddef>
#include <string_view>

namespace
{
using VorFormulaCharacters::eKind;

// Deeper formulas are left to the tree. Arbitrary; formulas of reports nest a few deep.
constexpr std::size_t kDeepest = 32;

// An operator that waits for its right side.
struct Waiting
{
    double left; // 0.0 for a '('
    eKind kind;
    wchar_t operation;
};

// Computes statements in which operands and operators take turns, while it reads them. "2*3+4":
//   2      value 2
//   *                     waiting 2*
//   3      value 3        waiting 2*
//   +      value 6        waiting 6+      '*' binds tighter than '+'
//   4      value 4        waiting 6+
//   end    value 10
// A ')' computes all that waits, as the end does. It need not wait itself: nothing is left below that it could hold back.
class StatementCalculator
{
public:
    // The room is for operators that wait. At its bottom stands a '=', which binds less than all that may follow.
    StatementCalculator(VorFormulaOperands& operands, Waiting (&room)[kDeepest]) : m_operands(operands), m_waiting(room)
    {
        m_waiting.push({ 0.0, VorFormulaCharacters::kAssignment, L'=' });
    }

    double value() const { return m_value; }
    bool hasOperators() const { return m_bHasOperators; }

    // Where the statement at `pText` ends; null when it is not for this calculator, which is of no use then. What reads
    // like no expression may be an assignment: the name and the '=' leave nothing that waits.
    const wchar_t* read(const wchar_t* pText)
    {
        const wchar_t* pEnd = nullptr;
        std::wstring_view name;
        while ((pEnd = readExpression(pText)) == nullptr)
            if (!name.empty() || (pText = readName(pText, name)) == nullptr)
                return nullptr;
        if (!name.empty() && !m_operands.assign(name, m_value))
            return nullptr;
        return pEnd;
    }

private:
    // Where the expression at `pText` and its statement end; null when it is not for this calculator.
    const wchar_t* readExpression(const wchar_t* pText)
    {
        for (;; ++pText)
        {
            pText = readOperand(pText);
            if (pText == nullptr)
                return nullptr;
            while (*pText == L')')
                pText = close(pText);
            const eKind kind = VorFormulaCharacters::kKindsInFormula[*pText];
            if (kind == VorFormulaCharacters::kEnd)
                return finish() ? pText : nullptr;
            if (kind != VorFormulaCharacters::kSum && kind != VorFormulaCharacters::kProduct)
                return nullptr;
            computeFor(kind);
            m_waiting.push({ m_value, kind, *pText });
        }
    }

    // The name that is assigned to, and where the expression for it begins; null when there is none.
    const wchar_t* readName(const wchar_t* pText, std::wstring_view& name)
    {
        name = VorFormulaOperands::textAt(pText, pText);
        m_bHasOperators = true;
        return !name.empty() && *pText == L'=' ? pText + 1 : nullptr;
    }

    // What is opened and negated before the operand waits.
    const wchar_t* readOperand(const wchar_t* pText)
    {
        for (;; ++pText)
        {
            if (const wchar_t* pNext = m_operands.read(pText, m_value))
                return pNext;
            if (!open(*pText))
                return nullptr;
        }
    }

    // A '-' before an operand is a negation, which takes it from 0.
    bool open(wchar_t character)
    {
        if (character == L'(')
        {
            m_waiting.push({ 0.0, VorFormulaCharacters::kParenthesis, L'(' });
            ++m_nDepth;
        }
        else if (character == L'-')
            m_waiting.push({ 0.0, VorFormulaCharacters::kSum, L'-' });
        else
            return VorFormulaCharacters::kBlanks.holds(character);
        return true;
    }

    const wchar_t* close(const wchar_t* pText)
    {
        computeAll();
        m_bHasOperators = true;
        --m_nDepth;
        do
            ++pText;
        while (VorFormulaCharacters::kBlanks.holds(*pText));
        return pText;
    }

    bool finish()
    {
        m_bHasOperators = m_bHasOperators || m_waiting.size() > 1;
        computeAll();
        return m_nDepth == 0 && !m_bFails && !m_waiting.hasOverflown();
    }

    // What binds as tight as an operator to come, or tighter.
    void computeFor(eKind kind)
    {
        while (m_waiting.top().kind >= kind)
            compute(m_waiting.pop());
    }

    void computeAll()
    {
        while (m_waiting.size() > 1)
        {
            const Waiting waiting = m_waiting.pop();
            if (waiting.kind != VorFormulaCharacters::kParenthesis)
                compute(waiting);
        }
    }

    void compute(const Waiting& waiting)
    {
        if (!VorExprEvTreeItemOperator::calculate(waiting.operation, waiting.left, m_value, m_value))
            m_bFails = true;
    }

    VorFormulaOperands& m_operands;
    VorFixedStack<Waiting, kDeepest> m_waiting;
    double m_value = 0.0;
    int m_nDepth = 0;
    bool m_bHasOperators = false;
    bool m_bFails = false;
};
}

int VorFormulaCalculator::calculate(const wchar_t* formula, double& result)
{
    Waiting room[kDeepest];
    VorFormulaOperands operands(m_variables);
    StatementCalculator calculator(operands, room);
    const wchar_t* pText = formula;
    while ((pText = calculator.read(pText)) != nullptr && *pText != L'\0')
    {
        ++pText;
        operands.beginNextStatement();
    }
    if (pText == nullptr || !calculator.hasOperators())
    {
        operands.forgetAssigned();
        return 0;
    }
    result = VorExprEvValue::readBack(calculator.value());
    return 1;
}
