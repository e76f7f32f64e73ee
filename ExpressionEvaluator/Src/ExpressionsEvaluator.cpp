// Each statement is parsed into a tree of its own; variables and errors of the thread are all that passes from one to the
// next.
#include "ExpressionsEvaluator.h"

#include "VorExprEvTreeItem.h"
#include "VorExprEvVariableList.h"
#include "VorExprEvalErrorHandler.h"
#include "VorExpressionEvaluator.h"
#include "VorFormulaStatements.h"

#include "MekRoots/Exp/VorDebugOutput.h"

#include <algorithm>
#include <cwchar>
#include <limits>
#include <vector>

int ExpressionsEvaluator::m_nTraceTrees = 0;

namespace
{
constexpr unsigned int kMostCharacters = std::numeric_limits<int>::max(); // views count in int

// Prints every node from the root on, each before its left and then its right side, without recursion: a tree may be as
// deep as its formula is long.
void traceTree(const VorExprEvTreeItem* pRoot)
{
    std::vector<const VorExprEvTreeItem*> pending{ pRoot };
    while (!pending.empty())
    {
        const VorExprEvTreeItem* pItem = pending.back();
        pending.pop_back();
        if (pItem == nullptr)
            continue;
        VorDebugOutput::write(L"\n");
        pItem->print();
        pending.push_back(pItem->right());
        pending.push_back(pItem->left());
    }
}
}

bool ExpressionsEvaluator::isTraced()
{
    return m_nTraceTrees != 0 || VorExpressionEvaluator::m_nTraceStacks != 0;
}

// What an earlier formula left goes here and not at its end, since hosts ask for variables and errors in between.
ExpressionsEvaluator::ExpressionsEvaluator(const wchar_t* text, unsigned int length)
    : m_pText(text), m_nLength(text == nullptr ? 0 : std::min(length, kMostCharacters))
{
    VorExprEvVariableList::ofThread().clear();
    VorExprEvalErrorHandler::ofThread().clear();
}

// The variables are the thread's and not this object's: another evaluator on the thread would empty them.
int ExpressionsEvaluator::addVariable(const VorExprEvTextView& name, VorExprEvValue& value)
{
    return VorExprEvVariableList::ofThread().addVariable(name, value);
}

int ExpressionsEvaluator::evaluate(wchar_t* buffer)
{
    int nResult = 0;
    buffer[0] = L'\0';
    m_nErrorPosition = VorExprEvalError::kNoPosition;
    VorFormulaStatements statements(m_pText, static_cast<int>(m_nLength));
    while (statements.next())
    {
        nResult = evaluateStatement(statements.current(), buffer);
        if (const VorExprEvalError* pError = VorExprEvalErrorHandler::ofThread().oldest())
        {
            std::wcscpy(buffer, pError->message());
            m_nErrorPosition = static_cast<int>(statements.current().text() - m_pText) + pError->position();
            return 0;
        }
    }
    return nResult;
}

// The text of the statement's value in `buffer`, which a statement without operands leaves as it is. A tree that is not
// whole is traced but not evaluated; parsing has raised its error.
int ExpressionsEvaluator::evaluateStatement(const VorExprEvTextView& statement, wchar_t* buffer) const
{
    VorExpressionEvaluator parser;
    const int nParsed = parser.parse(statement);
    const VorExprEvTreeItem* pRoot = parser.root();
    if (pRoot == nullptr)
        return nParsed;
    if (m_nTraceTrees != 0)
        traceTree(pRoot);
    if (!nParsed)
        return 0;
    VorExprEvValue value;
    return pRoot->evaluate(value).toText(buffer);
}
