#include "VorExpressionEvaluator.h"

#include "VorExprEvTreeItemOperand.h"
#include "VorExprEvTreeItemOperator.h"
#include "VorExprEvTreeItemStack.h"
#include "VorExprEvalErrorHandler.h"
#include "VorShortStack.h"
#include "VorStatementReader.h"

#include "MekRoots/Exp/DebugOutput.h"

#include <memory>

int VorExpressionEvaluator::m_nTraceStacks = 0;

namespace
{
// Deeper nesting asks for memory. Arbitrary; formulas of reports nest a few deep.
constexpr int kUsualDepth = 32;

// Makes nodes of what is read; operands and reduced operators stand on one stack.
class TreeBuilder : public VorStatementReader<TreeBuilder, VorShortStack<VorWaitingOperator, kUsualDepth>>
{
public:
    explicit TreeBuilder(const VorExprEvTextView& statement)
        : m_statement(statement), m_pEnd(statement.existingPart().data() + statement.existingPart().size())
    {
    }

    // 0 when the parentheses do not balance.
    int build()
    {
        const wchar_t* pText = m_statement.existingPart().data();
        return read(pText);
    }

    // The tree, for the caller to own; null when there was no operand.
    VorExprEvTreeItem* takeTree() { return m_operands.pop(); }

    void addNothing() { m_operands.push(new VorExprEvTreeItemOperand(VorExprEvTextView())); }

    VorFormulaCharacters::eKind kindAt(const wchar_t* pText) const
    {
        return pText == m_pEnd ? VorFormulaCharacters::kEnd : VorFormulaCharacters::kKindsInStatement[*pText];
    }

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

    // The upper operand is the right side, the one below the left.
    void reduce(const VorWaitingOperator& waiting)
    {
        auto pOperator = std::make_unique<VorExprEvTreeItemOperator>(viewOf(waiting));
        VorExprEvTreeItem* pRight = m_operands.pop();
        VorExprEvTreeItem* pLeft = m_operands.pop();
        pOperator->setChildren(pLeft, pRight);
        m_operands.push(pOperator.release());
    }

    void trace(const OperatorStack& operators) const;

private:
    int placeOf(const wchar_t* pText) const { return static_cast<int>(pText - m_statement.text()); }

    VorExprEvTextView viewOf(const VorWaitingOperator& waiting) const
    {
        return m_statement.part(placeOf(waiting.pText), placeOf(waiting.pText) + 1);
    }

    VorExprEvTextView m_statement;
    const wchar_t* m_pEnd; // of what exists; up to the statement's end there are zero characters
    VorExprEvTreeItemStack m_operands;
};

// Both stacks from the top down.
void TreeBuilder::trace(const OperatorStack& operators) const
{
    if (VorExpressionEvaluator::m_nTraceStacks == 0)
        return;
    OutputDebugStringW(L"\nOperator Stack\n");
    for (int i = operators.size() - 1; i >= 0; --i)
    {
        OutputDebugStringW(L"\n");
        VorExprEvTreeItemOperator(viewOf(operators[i])).print();
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
