// Reads one statement of a formula from the left and tells a builder in which order operators take their sides. What
// becomes of operands and operators is the builder's affair: nodes of a tree, or numbers at once.
//
// An operator waits on a stack until one that binds no tighter, or the end, comes after it. "2*3+4":
//   2      addOperand                  waiting
//   *                                  waiting *
//   3      addOperand                  waiting *
//   +      reduce '*'                  waiting +       '*' binds tighter than '+'
//   4      addOperand                  waiting +
//   end    reduce '+'                  waiting
//
// A Builder has
//   void addNothing()                       the left side of a negation
//   void addOperand(int start, int end)     a number or a name, half-open, trimmed of blanks
//   void reduce(int position)               the operator there takes the two operands made last, or what there is
//   void trace(const OperatorStack&)        called around every run of reductions, with the operators that wait
// Parentheses are never reduced: they fall away. How statements are read is told in VorExpressionEvaluator.h.
#pragma once

#include "VorExprEvTextView.h"
#include "VorExprEvTreeItemOperator.h"
#include "VorShortStack.h"

#include <algorithm>

// An operator that waits, by its place in the statement's text.
struct VorWaitingOperator
{
    int position;
    int precedence;
    bool isParenthesis;
};

template <class Builder>
class VorStatementReader
{
public:
    // Deeper nesting asks for memory. Arbitrary; formulas of reports nest a few deep.
    static constexpr int kUsualDepth = 32;
    using OperatorStack = VorShortStack<VorWaitingOperator, kUsualDepth>;

    VorStatementReader(const VorExprEvTextView& statement, Builder& builder)
        : m_statement(statement),
          m_builder(builder),
          m_nPosition(statement.start()),
          m_nTextEnd(statement.hasText() ? std::min(statement.end(), statement.textLength()) : statement.start())
    {
    }

    // 0 when there are more '(' than ')' or the reverse; what still waits is not reduced then.
    int read()
    {
        while (m_nPosition < m_nTextEnd)
        {
            const wchar_t character = m_statement.text()[m_nPosition];
            if (isWhiteSpace(character) || character == L'\0')
                ++m_nPosition;
            else if (isOperatorCharacter(character))
                readOperator(character);
            else
                readOperand();
        }
        const bool isBalanced = m_nDepth == 0;
        m_builder.trace(m_operators);
        while (isBalanced && !m_operators.isEmpty())
            reduceTop();
        m_builder.trace(m_operators);
        return isBalanced ? 1 : 0;
    }

private:
    static bool isWhiteSpace(wchar_t character)
    {
        return character == L' ' || character == L'\t' || character == L'\n' || character == L'\r';
    }

    // One of "*/+-=()".
    static bool isOperatorCharacter(wchar_t character)
    {
        return (character >= L'(' && character <= L'/' && character != L',' && character != L'.') || character == L'=';
    }

    void readOperator(wchar_t character)
    {
        const bool isParenthesis = character == L'(' || character == L')';
        const int precedence = VorExprEvTreeItemOperator::precedence(character);
        m_nDepth += character == L'(' ? 1 : character == L')' ? -1 : 0;

        if (character == L'-' && m_bMinusNegates)
            m_builder.addNothing();
        else if (character != L'(')
            reduceFor(precedence);

        m_operators.push({ m_nPosition, precedence, isParenthesis });
        m_bMinusNegates = character != L')';
        ++m_nPosition;
    }

    void readOperand()
    {
        const int nNext = findOperandEnd();
        int nEnd = nNext;
        while (isWhiteSpace(m_statement.at(nEnd - 1)))
            --nEnd;
        m_builder.addOperand(m_nPosition, nEnd);
        m_bMinusNegates = false;
        m_nPosition = nNext;
    }

    // The operand that reaches the end of the text takes in the zero characters beyond it.
    int findOperandEnd() const
    {
        int nEnd = m_nPosition;
        while (nEnd < m_nTextEnd && !isOperatorCharacter(m_statement.text()[nEnd]))
            ++nEnd;
        return nEnd == m_nTextEnd ? m_statement.end() : nEnd;
    }

    bool mustReduceFor(int precedence) const
    {
        return !m_operators.isEmpty() && m_operators.top().precedence >= precedence;
    }

    void reduceFor(int precedence)
    {
        if (!mustReduceFor(precedence))
            return;
        m_builder.trace(m_operators);
        while (mustReduceFor(precedence))
            reduceTop();
        m_builder.trace(m_operators);
    }

    void reduceTop()
    {
        const VorWaitingOperator waiting = m_operators.pop();
        if (!waiting.isParenthesis)
            m_builder.reduce(waiting.position);
    }

    VorExprEvTextView m_statement;
    Builder& m_builder;
    int m_nPosition;
    int m_nTextEnd; // of what exists; up to the statement's end there are zero characters
    int m_nDepth = 0;
    bool m_bMinusNegates = true; // here: nothing stands before, or an operator other than ')'
    OperatorStack m_operators;
};
