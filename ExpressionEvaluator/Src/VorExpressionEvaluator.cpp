#include "VorExpressionEvaluator.h"

#include "VorExprEvTreeItemOperand.h"
#include "VorExprEvTreeItemOperator.h"
#include "VorExprEvTreeItemStack.h"
#include "VorExprEvalErrorHandler.h"
#include "VorFormulaCharacters.h"
#include "VorShortStack.h"

#include "MekRoots/Exp/DebugOutput.h"

#include <memory>

int VorExpressionEvaluator::m_nTraceStacks = 0;

namespace
{
// Deeper nesting asks for memory. Arbitrary; formulas of reports nest a few deep.
constexpr int kUsualDepth = 32;

using VorFormulaCharacters::eKind;

// An operator that waits, with its place in the statement's text.
struct Waiting
{
    const wchar_t* pText;
    eKind kind;

    wchar_t character() const { return *pText; }
};

// Makes nodes of a statement while it is read from the left; operands and reduced operators stand on one stack.
//
// An operator waits on another until one that binds no tighter, or the end, comes after it. "2*3+4":
//   2      operand 2              waiting
//   *                             waiting *
//   3      operands 2, 3          waiting *
//   +      operand *(2, 3)        waiting +       '*' binds tighter than '+'
//   4      operands *(2, 3), 4    waiting +
//   end    +(*(2, 3), 4)          waiting
// Parentheses are never reduced: they fall away.
class TreeBuilder
{
public:
    explicit TreeBuilder(const VorExprEvTextView& statement)
        : m_statement(statement), m_pEnd(statement.existingPart().data() + statement.existingPart().size())
    {
    }

    // 0 when there are more '(' than ')' or the reverse; what still waits is not reduced then.
    int build()
    {
        const wchar_t* pText = m_statement.existingPart().data();
        while (pText != m_pEnd)
        {
            const eKind kind = VorFormulaCharacters::kKindsInStatement[*pText];
            if (kind == VorFormulaCharacters::kOperand)
            {
                pText = readOperand(pText);
                m_bMinusNegates = false;
                continue;
            }
            if (kind != VorFormulaCharacters::kNothing)
                readOperator({ pText, kind });
            ++pText;
        }
        return finish();
    }

    // The tree, for the caller to own; null when there was no operand.
    VorExprEvTreeItem* takeTree() { return m_operands.pop(); }

private:
    // The operand that reaches the end of the text takes in the zero characters beyond it.
    const wchar_t* readOperand(const wchar_t* pText)
    {
        const int nStart = placeOf(pText);
        while (pText != m_pEnd && !VorFormulaCharacters::kOperators.holds(*pText))
            ++pText;
        int nEnd = pText == m_pEnd ? m_statement.end() : placeOf(pText);
        while (VorFormulaCharacters::kBlanks.holds(m_statement.at(nEnd - 1)))
            --nEnd;
        m_operands.push(new VorExprEvTreeItemOperand(m_statement.part(nStart, nEnd)));
        return pText;
    }

    // The left side of a negation is an operand without text.
    void readOperator(const Waiting& here)
    {
        if (here.character() == L'-' && m_bMinusNegates)
            m_operands.push(new VorExprEvTreeItemOperand(VorExprEvTextView()));
        else if (here.character() != L'(')
            reduceFor(here.kind);

        m_operators.push(here);
        m_bMinusNegates = here.character() != L')';
        if (here.kind == VorFormulaCharacters::kParenthesis)
            m_nDepth += here.character() == L'(' ? 1 : -1;
    }

    int finish()
    {
        const bool isBalanced = m_nDepth == 0;
        trace();
        while (isBalanced && !m_operators.isEmpty())
            reduceTop();
        trace();
        return isBalanced ? 1 : 0;
    }

    // Kinds of operators are ordered by how tightly they bind.
    bool mustReduceFor(eKind kind) const { return !m_operators.isEmpty() && m_operators.top().kind >= kind; }

    void reduceFor(eKind kind)
    {
        if (!mustReduceFor(kind))
            return;
        trace();
        while (mustReduceFor(kind))
            reduceTop();
        trace();
    }

    void reduceTop()
    {
        const Waiting top = m_operators.pop();
        if (top.kind != VorFormulaCharacters::kParenthesis)
            reduce(top);
    }

    // The upper operand is the right side, the one below the left.
    void reduce(const Waiting& waiting)
    {
        auto pOperator = std::make_unique<VorExprEvTreeItemOperator>(viewOf(waiting));
        VorExprEvTreeItem* pRight = m_operands.pop();
        VorExprEvTreeItem* pLeft = m_operands.pop();
        pOperator->setChildren(pLeft, pRight);
        m_operands.push(pOperator.release());
    }

    void trace() const;

    int placeOf(const wchar_t* pText) const { return static_cast<int>(pText - m_statement.text()); }

    VorExprEvTextView viewOf(const Waiting& waiting) const
    {
        return m_statement.part(placeOf(waiting.pText), placeOf(waiting.pText) + 1);
    }

    VorExprEvTextView m_statement;
    const wchar_t* m_pEnd; // of what exists; up to the statement's end there are zero characters
    VorExprEvTreeItemStack m_operands;
    VorShortStack<Waiting, kUsualDepth> m_operators;
    int m_nDepth = 0;
    bool m_bMinusNegates = true; // here: nothing stands before, or an operator other than ')'
};

// Both stacks from the top down.
void TreeBuilder::trace() const
{
    if (VorExpressionEvaluator::m_nTraceStacks == 0)
        return;
    OutputDebugStringW(L"\nOperator Stack\n");
    for (int i = m_operators.size() - 1; i >= 0; --i)
    {
        OutputDebugStringW(L"\n");
        VorExprEvTreeItemOperator(viewOf(m_operators[i])).print();
    }
    OutputDebugStringW(L"\nOperand Stack\n");
    for (const VorExprEvTreeItem* pItem = m_operands.top(); pItem != nullptr; pItem = pItem->next())
    {
        OutputDebugStringW(L"\n");
        pItem->print();
    }
}
}

VorExpressionEvaluator::~VorExpressionEvaluator()
{
    delete m_pRoot;
}

int VorExpressionEvaluator::parse(const VorExprEvTextView& statement, VorExprEvTreeItem*& pRoot)
{
    TreeBuilder builder(statement);
    const int nResult = builder.build();
    if (nResult == 0)
        VorExprEvalErrorHandler::ofThread().raise(VorExprEvalError::kImpairedParenthesis);
    if (VorExprEvTreeItem* pTree = builder.takeTree())
    {
        delete pRoot;
        pRoot = pTree;
    }
    return nResult;
}
