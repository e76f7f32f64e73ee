#include "VorExpressionEvaluator.h"

#include "Tree/VorTreeBuilder.h"
#include "VorExprEvalErrorHandler.h"

int VorExpressionEvaluator::m_nTraceStacks = 0;

VorExpressionEvaluator::~VorExpressionEvaluator()
{
    delete m_pRoot;
}

// A tree that is not whole, as the parentheses do not balance, is handed over like any other: traces show it.
int VorExpressionEvaluator::parse(const VorExprEvTextView& statement, VorExprEvTreeItem*& pRoot)
{
    VorTreeBuilder builder(statement);
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
