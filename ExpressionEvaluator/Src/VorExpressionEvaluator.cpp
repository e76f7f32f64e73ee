#include "VorExpressionEvaluator.h"

#include "Tree/VorTreeBuilder.h"
#include "VorExprEvalErrorHandler.h"

int VorExpressionEvaluator::m_nTraceStacks = 0;

VorExpressionEvaluator::~VorExpressionEvaluator()
{
    delete m_pRoot;
}

// A tree that is not whole, as the parentheses do not balance, is handed over like any other: traces show it.
//   "2+3)"     +(2, 3), as the ')' has combined the two
//   "(2+3"     3: nothing was combined, and of the operands read so far the last is taken
// The error is raised either way, and the statement not evaluated.
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
