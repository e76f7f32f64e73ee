// Reads a statement of a formula from the left and tells a client, step by step, what is to be done with its operands.
// This is the only place that knows the grammar; VorExpressionEvaluator.h tells it. "2*(3+a)" becomes
//
//   readOperand  2
//   readOperand  3
//   readOperand  a
//   combine      +       at the ')'
//   combine      *       there, too: a ')' ends the waiting of all operators but '=', also of those before its '('
//
// An operator waits until one that binds no tighter comes after it, a ')' or the end. "2*3+4":
//   2      waiting
//   *      waiting *
//   3      waiting *
//   +      waiting +       '*' binds tighter than '+': combine *
//   4      waiting +
//   end    waiting         combine +
//
// Whoever makes something of a formula has a client class of its own for it: its number (VorFormulaCalculator), its
// tree (VorTreeBuilder), the steps to compute it by later (VorCompiledFormula). Such a client has
//
//   eKind kindAt(const wchar_t* pText)             what stands there; kEnd at the end, whatever stands there
//   const wchar_t* readOperand(pText, eKind kind)  takes the operand there; answers where it ends, or null to give up
//   void addNothing()                              takes the missing left side of a negation for an operand
//   Left left(const wchar_t* pText)                what to keep with the operator at pText, which begins to wait
//   void combine(const Waiting& waiting)           makes one operand of the last two, or of those there are
//   bool canAssign(const wchar_t* pText)           whether to go on at this '='
//   void assign(const Waiting& waiting)            combine for a '='
//   void trace(const Stack& waiting)               looks at the operators that wait before and after combining some
//   kTakesOddStatements                            false to give up where operands and operators do not take turns
//   kIsTraced                                      false when trace does nothing
//
// Once the client has given up, the reader asks it for nothing more.
#pragma once

#include "VorFormulaCharacters.h"
#include "VorShortStack.h"

// An operator that waits for its right side.
template <class Left>
struct VorWaitingOperator
{
    Left left;
    VorFormulaCharacters::eKind kind;
    wchar_t character;
};

// Deeper nesting asks for memory. Arbitrary; formulas of reports nest a few deep.
template <class Left>
using VorOperatorStack = VorShortStack<VorWaitingOperator<Left>, 32>;

template <class Client>
class VorStatementReader
{
public:
    using eKind = VorFormulaCharacters::eKind;
    using Waiting = VorWaitingOperator<typename Client::Left>;

    using Stack = VorOperatorStack<typename Client::Left>;

    // At the bottom stands what binds less than all operators.
    VorStatementReader(Client& client, typename Stack::Room& room) : m_client(client), m_waiting(room)
    {
        m_waiting.push({ {}, kBottom, L'\0' });
    }

    // Whether any statement so far had an operator.
    bool hasOperators() const { return m_bHasOperators; }

    // Answers where the statement at `pText` ends; null when it has more '(' than ')' or the reverse, where what still
    // waits is not combined, and when the client gives up. The reader is of no use then.
    const wchar_t* read(const wchar_t* pText)
    {
        for (;; ++pText)
        {
            pText = readSide(pText);
            if (pText == nullptr)
                return nullptr;
            eKind kind = m_client.kindAt(pText);
            while (kind != VorFormulaCharacters::kSum && kind != VorFormulaCharacters::kProduct)
            {
                if (kind == VorFormulaCharacters::kEnd)
                    return finish() ? pText : nullptr;
                if (wantsSide(pText, kind))
                    break;
                pText = readBehindSide(pText, kind);
                if (pText == nullptr)
                    return nullptr;
                kind = m_client.kindAt(pText);
            }
            if (!readOperator(pText, kind))
                return nullptr;
        }
    }

private:
    static constexpr eKind kBottom = static_cast<eKind>(VorFormulaCharacters::kAssignment - 1);

    // Reads one side of an operator and answers where it ends: any number of '(' and of '-', each of them a negation
    // here, and behind them the operand. When another operator or the end stands in its place, the side is missing.
    const wchar_t* readSide(const wchar_t* pText)
    {
        for (;; ++pText)
        {
            const eKind kind = m_client.kindAt(pText);
            if (VorFormulaCharacters::startsOperand(kind))
                return m_client.readOperand(pText, kind);
            if (kind == VorFormulaCharacters::kSum && *pText == L'-')
                negate(pText);
            else if (kind == VorFormulaCharacters::kParenthesis && *pText == L'(')
                open(pText);
            else if (kind != VorFormulaCharacters::kNothing)
                return Client::kTakesOddStatements ? pText : nullptr;
        }
    }

    static bool wantsSide(const wchar_t* pText, eKind kind)
    {
        return kind <= VorFormulaCharacters::kProduct && *pText != L')';
    }

    // Passes over what stands behind a side and wants none itself: a ')', a blank, or an operand without an operator
    // before it.
    const wchar_t* readBehindSide(const wchar_t* pText, eKind kind)
    {
        if (VorFormulaCharacters::startsOperand(kind))
            return Client::kTakesOddStatements ? m_client.readOperand(pText, kind) : nullptr;
        if (kind != VorFormulaCharacters::kNothing)
            close(pText);
        return pText + 1;
    }

    // 0 to give up.
    bool readOperator(const wchar_t* pText, eKind kind)
    {
        if (kind == VorFormulaCharacters::kParenthesis)
        {
            open(pText);
            return Client::kTakesOddStatements;
        }
        if (kind == VorFormulaCharacters::kAssignment && !m_client.canAssign(pText))
            return false;
        combineFor(kind);
        wait(pText, kind);
        return true;
    }

    void wait(const wchar_t* pText, eKind kind) { m_waiting.push({ m_client.left(pText), kind, *pText }); }

    void negate(const wchar_t* pText)
    {
        m_client.addNothing();
        wait(pText, VorFormulaCharacters::kSum);
    }

    void open(const wchar_t* pText)
    {
        wait(pText, VorFormulaCharacters::kParenthesis);
        ++m_nDepth;
    }

    // On purpose this combines back to an '=' or to the start, and not to the '(' alone. The ')' itself need not wait,
    // as nothing that it could hold back is left below it. It waits all the same where traces show what waits.
    void close(const wchar_t* pText)
    {
        combineFor(VorFormulaCharacters::kParenthesis);
        if (Client::kIsTraced)
            wait(pText, VorFormulaCharacters::kParenthesis);
        m_bHasOperators = true;
        --m_nDepth;
    }

    bool finish()
    {
        m_client.trace(m_waiting);
        const bool isBalanced = m_nDepth == 0;
        if (isBalanced)
        {
            m_bHasOperators = m_bHasOperators || m_waiting.top().kind != kBottom;
            combineAll(VorFormulaCharacters::kAssignment);
        }
        m_client.trace(m_waiting);
        return isBalanced;
    }

    void combineFor(eKind kind)
    {
        if (m_waiting.top().kind < kind)
            return;
        m_client.trace(m_waiting);
        combineAll(kind);
        m_client.trace(m_waiting);
    }

    // Combines whatever binds as tight as `kind` or tighter. Parentheses that waited fall away.
    void combineAll(eKind kind)
    {
        while (m_waiting.top().kind >= kind)
        {
            const Waiting waiting = m_waiting.pop();
            if (waiting.kind >= VorFormulaCharacters::kSum)
                m_client.combine(waiting);
            else if (waiting.kind == VorFormulaCharacters::kAssignment)
                m_client.assign(waiting);
        }
    }

    Client& m_client;
    Stack m_waiting;
    int m_nDepth = 0;
    bool m_bHasOperators = false;
};
