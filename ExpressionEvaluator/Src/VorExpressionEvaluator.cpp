// An operator waits on a stack until one that binds no tighter, or the end, comes after it; then it takes its sides
// from the operand stack and goes there itself. "2*3+4":
//   2      operands 2            operators
//   *      operands 2            operators *
//   3      operands 2 3          operators *
//   +      operands *(2, 3)      operators +       '*' binds tighter than '+' and is reduced
//   4      operands *(2, 3) 4    operators +
//   end    operands +(*(2, 3), 4)
#include "VorExpressionEvaluator.h"

#include "VorExprEvTreeItemOperand.h"
#include "VorExprEvTreeItemOperator.h"
#include "VorExprEvTreeItemStack.h"
#include "VorExprEvalErrorHandler.h"

#include "MekRoots/Exp/DebugOutput.h"

#include <algorithm>
#include <memory>

int VorExpressionEvaluator::m_nTraceStacks = 0;

namespace
{
bool isWhiteSpace(wchar_t character)
{
    return character == L' ' || character == L'\t' || character == L'\n' || character == L'\r';
}

bool isOperatorCharacter(wchar_t character)
{
    switch (character)
    {
        case L'*':
        case L'/':
        case L'+':
        case L'-':
        case L'=':
        case L'(':
        case L')': return true;
        default: return false;
    }
}

// Every node on the operator stack is an operator.
wchar_t characterOf(const VorExprEvTreeItem* pOperator)
{
    return static_cast<const VorExprEvTreeItemOperator*>(pOperator)->character();
}

bool isParenthesis(const VorExprEvTreeItem* pOperator)
{
    return characterOf(pOperator) == L'(' || characterOf(pOperator) == L')';
}

int precedenceOf(const VorExprEvTreeItem* pOperator)
{
    return VorExprEvTreeItemOperator::precedence(characterOf(pOperator));
}

void traceStack(const wchar_t* title, const VorExprEvTreeItemStack& stack)
{
    OutputDebugStringW(title);
    for (const VorExprEvTreeItem* pItem = stack.top(); pItem != nullptr; pItem = pItem->next())
    {
        OutputDebugStringW(L"\n");
        pItem->print();
    }
}

class Parser
{
public:
    explicit Parser(const VorExprEvTextView& statement);

    // 0 when the parentheses do not balance.
    int run();

    // The tree, for the caller to own; null when there was no operand.
    VorExprEvTreeItem* takeTree() { return m_operands.pop(); }

private:
    void readOperator();
    void readOperand();
    int findOperandEnd() const;

    bool mustReduceFor(int nPrecedence) const;
    void reduceFor(int nPrecedence);
    void reduceTop();
    void traceStacks() const;

    VorExprEvTextView m_statement;
    int m_nPosition;
    int m_nTextEnd; // of what exists; up to the statement's end there are zero characters
    int m_nDepth = 0;
    bool m_bMinusNegates = true; // here: nothing stands before, or an operator other than ')'
    VorExprEvTreeItemStack m_operators;
    VorExprEvTreeItemStack m_operands;
};

Parser::Parser(const VorExprEvTextView& statement)
    : m_statement(statement),
      m_nPosition(statement.start()),
      m_nTextEnd(statement.hasText() ? std::min(statement.end(), statement.textLength()) : statement.start())
{
}

int Parser::run()
{
    while (m_nPosition < m_nTextEnd)
    {
        const wchar_t character = m_statement.text()[m_nPosition];
        if (isWhiteSpace(character) || character == L'\0')
            ++m_nPosition;
        else if (isOperatorCharacter(character))
            readOperator();
        else
            readOperand();
    }
    if (m_nDepth != 0)
        VorExprEvalErrorHandler::ofThread().raise(VorExprEvalError::kImpairedParenthesis);
    traceStacks();
    if (m_nDepth == 0)
        while (!m_operators.isEmpty())
            reduceTop();
    traceStacks();
    return m_nDepth == 0 ? 1 : 0;
}

void Parser::readOperator()
{
    auto pOperator = std::make_unique<VorExprEvTreeItemOperator>(m_statement.part(m_nPosition, m_nPosition + 1));
    const wchar_t character = pOperator->character();
    m_nDepth += character == L'(' ? 1 : character == L')' ? -1 : 0;

    if (character == L'-' && m_bMinusNegates)
        m_operands.push(new VorExprEvTreeItemOperand(VorExprEvTextView()));
    else if (character != L'(')
        reduceFor(VorExprEvTreeItemOperator::precedence(character));

    m_operators.push(pOperator.release());
    m_bMinusNegates = character != L')';
    ++m_nPosition;
}

void Parser::readOperand()
{
    const int nNext = findOperandEnd();
    int nEnd = nNext;
    while (isWhiteSpace(m_statement.at(nEnd - 1)))
        --nEnd;
    m_operands.push(new VorExprEvTreeItemOperand(m_statement.part(m_nPosition, nEnd)));
    m_bMinusNegates = false;
    m_nPosition = nNext;
}

// The operand that reaches the end of the text takes in the zero characters beyond it.
int Parser::findOperandEnd() const
{
    int nEnd = m_nPosition;
    while (nEnd < m_nTextEnd && !isOperatorCharacter(m_statement.text()[nEnd]))
        ++nEnd;
    return nEnd == m_nTextEnd ? m_statement.end() : nEnd;
}

bool Parser::mustReduceFor(int nPrecedence) const
{
    return !m_operators.isEmpty() && precedenceOf(m_operators.top()) >= nPrecedence;
}

void Parser::reduceFor(int nPrecedence)
{
    if (!mustReduceFor(nPrecedence))
        return;
    traceStacks();
    while (mustReduceFor(nPrecedence))
        reduceTop();
    traceStacks();
}

// Gives the top operator its sides, the upper operand right, the one below left; parentheses fall away.
void Parser::reduceTop()
{
    VorExprEvTreeItem* pOperator = m_operators.pop();
    if (isParenthesis(pOperator))
    {
        delete pOperator;
        return;
    }
    VorExprEvTreeItem* pRight = m_operands.pop();
    VorExprEvTreeItem* pLeft = m_operands.pop();
    pOperator->setChildren(pLeft, pRight);
    m_operands.push(pOperator);
}

void Parser::traceStacks() const
{
    if (VorExpressionEvaluator::m_nTraceStacks == 0)
        return;
    traceStack(L"\nOperator Stack\n", m_operators);
    traceStack(L"\nOperand Stack\n", m_operands);
}
}

VorExpressionEvaluator::~VorExpressionEvaluator()
{
    delete m_pRoot;
}

int VorExpressionEvaluator::parse(const VorExprEvTextView& statement, VorExprEvTreeItem*& pRoot)
{
    Parser parser(statement);
    const int nResult = parser.run();
    if (VorExprEvTreeItem* pTree = parser.takeTree())
    {
        delete pRoot;
        pRoot = pTree;
    }
    return nResult;
}
