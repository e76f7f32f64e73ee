#include "VorExpressionEvaluator.h"

#include "Tree/VorTreeBuilder.h"
#include "VorExprEvalErrorHandler.h"

int VorExpressionEvaluator::m_nTraceStacks = 0;

VorExpressionEvaluator::~VorExpressionEvaluator()
{
    delete m_pRoot;
}

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
