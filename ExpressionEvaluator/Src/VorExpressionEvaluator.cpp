#include "VorExpressionEvaluator.h"

#include "VorExprEvTreeItemOperand.h"
#include "VorExprEvTreeItemOperator.h"
#include "VorExprEvTreeItemStack.h"
#include "VorExprEvalErrorHandler.h"
#include "VorStatementReader.h"

#include "MekRoots/Exp/DebugOutput.h"

#include <memory>

int VorExpressionEvaluator::m_nTraceStacks = 0;

namespace
{
// Makes nodes of what is read; operands and reduced operators stand on one stack.
class TreeBuilder
{
public:
    explicit TreeBuilder(const VorExprEvTextView& statement) : m_statement(statement) {}

    // The tree, for the caller to own; null when there was no operand.
    VorExprEvTreeItem* takeTree() { return m_operands.pop(); }

    void addNothing() { m_operands.push(new VorExprEvTreeItemOperand(VorExprEvTextView())); }
    void addOperand(int nStart, int nEnd)
    {
        m_operands.push(new VorExprEvTreeItemOperand(m_statement.part(nStart, nEnd)));
    }

    // The upper operand is the right side, the one below the left.
    void reduce(int nPosition)
    {
        auto pOperator = std::make_unique<VorExprEvTreeItemOperator>(m_statement.part(nPosition, nPosition + 1));
        VorExprEvTreeItem* pRight = m_operands.pop();
        VorExprEvTreeItem* pLeft = m_operands.pop();
        pOperator->setChildren(pLeft, pRight);
        m_operands.push(pOperator.release());
    }

    void trace(const VorStatementReader<TreeBuilder>::OperatorStack& operators) const;

private:
    VorExprEvTextView m_statement;
    VorExprEvTreeItemStack m_operands;
};

// Both stacks from the top down.
void TreeBuilder::trace(const VorStatementReader<TreeBuilder>::OperatorStack& operators) const
{
    if (VorExpressionEvaluator::m_nTraceStacks == 0)
        return;
    OutputDebugStringW(L"\nOperator Stack\n");
    for (int i = operators.size() - 1; i >= 0; --i)
    {
        OutputDebugStringW(L"\n");
        VorExprEvTreeItemOperator(m_statement.part(operators[i].position, operators[i].position + 1)).print();
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
    const int nResult = VorStatementReader<TreeBuilder>(statement, builder).read();
    if (nResult == 0)
        VorExprEvalErrorHandler::ofThread().raise(VorExprEvalError::kImpairedParenthesis);
    if (VorExprEvTreeItem* pTree = builder.takeTree())
    {
        delete pRoot;
        pRoot = pTree;
    }
    return nResult;
}
