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
// A Builder derives from its reader, VorStatementReader<Builder, Stack>, and has
//   eKind kindAt(const wchar_t* pText)      what begins there; kEnd where the statement ends
//   void addNothing()                       the left side of a negation
//   const wchar_t* readOperand(const wchar_t* pText)
//                                           a number or a name begins here; answers where it ends, at an operator or
//                                           the statement's end
//   void reduce(const VorWaitingOperator&)  it takes the two operands made last, or what there is
//   void trace(const OperatorStack&)        called around every run of reductions, with the operators that wait
// Parentheses are never reduced: they fall away. How statements are read is told in VorExpressionEvaluator.h.
#pragma once

#include "VorFormulaCharacters.h"

// An operator that waits, with its place in the statement's text.
struct VorWaitingOperator
{
    const wchar_t* pText;
    VorFormulaCharacters::eKind kind;

    wchar_t character() const { return *pText; }
};

// `Stack` is a stack of VorWaitingOperator.
template <class Builder, class Stack>
class VorStatementReader
{
public:
    using OperatorStack = Stack;

    template <class... Room>
    explicit VorStatementReader(Room&... room) : m_operators(room...)
    {
    }

    // Reads from `pText`, which goes on to the statement's end. 0 when there are more '(' than ')' or the reverse; what
    // still waits is not reduced then.
    int read(const wchar_t*& pText)
    {
        for (eKind kind; (kind = builder().kindAt(pText)) != VorFormulaCharacters::kEnd;)
        {
            if (kind == VorFormulaCharacters::kOperand)
            {
                pText = builder().readOperand(pText);
                m_bMinusNegates = false;
                continue;
            }
            if (kind != VorFormulaCharacters::kNothing)
                readOperator({ pText, kind });
            ++pText;
        }
        return finish();
    }

    bool hasOperators() const { return m_bHasOperators; }
    const Stack& operators() const { return m_operators; }

private:
    using eKind = VorFormulaCharacters::eKind;

    void readOperator(VorWaitingOperator here)
    {
        if (here.character() == L'-' && m_bMinusNegates)
            builder().addNothing();
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
        m_bHasOperators = !m_operators.isEmpty(); // the last one always waits
        builder().trace(m_operators);
        while (isBalanced && !m_operators.isEmpty())
            reduceTop();
        builder().trace(m_operators);
        return isBalanced ? 1 : 0;
    }

    // Kinds of operators are ordered by how tightly they bind.
    bool mustReduceFor(eKind kind) const { return !m_operators.isEmpty() && m_operators.top().kind >= kind; }

    void reduceFor(eKind kind)
    {
        if (!mustReduceFor(kind))
            return;
        builder().trace(m_operators);
        while (mustReduceFor(kind))
            reduceTop();
        builder().trace(m_operators);
    }

    void reduceTop()
    {
        if (m_operators.top().kind != VorFormulaCharacters::kParenthesis)
            builder().reduce(m_operators.top());
        m_operators.pop();
    }

    Builder& builder() { return static_cast<Builder&>(*this); }

    Stack m_operators;
    int m_nDepth = 0;
    bool m_bHasOperators = false;
    bool m_bMinusNegates = true; // here: nothing stands before, or an operator other than ')'
};
