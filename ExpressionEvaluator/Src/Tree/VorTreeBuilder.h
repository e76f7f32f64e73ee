// Makes the tree of a statement, as the client of its reader; operands and combined operators stand on one stack.
// "2*3+4":
//   readOperand 2, readOperand 3    operands 2, 3
//   combine *                       operands *(2, 3)
//   readOperand 4                   operands *(2, 3), 4
//   combine +                       operands +(*(2, 3), 4)
#pragma once

#include "ExpressionEvaluator/Src/Reading/VorStatementReader.h"
#include "ExpressionEvaluator/Src/Reading/VorStatementText.h"
#include "VorExprEvTreeItemStack.h"

class VorTreeBuilder
{
public:
    explicit VorTreeBuilder(const VorExprEvTextView& statement) : m_text(statement) {}

    // 0 when there are more '(' than ')' or the reverse; what still waits is not combined then.
    int build();

    // The tree, for the caller to own; null when there was no operand. Operands below it go with the builder.
    VorExprEvTreeItem* takeTree() { return m_operands.pop(); }

private:
    using Reader = VorStatementReader<VorTreeBuilder>;
    friend Reader;

    using Left = const wchar_t*; // the operator's place; what is on its left is on the stack of operands
    static constexpr bool kTakesOddStatements = true;
    static constexpr bool kIsTraced = true;

    VorFormulaCharacters::eKind kindAt(const wchar_t* pText) const { return m_text.kindAt(pText); }
    const wchar_t* readOperand(const wchar_t* pText, VorFormulaCharacters::eKind kind);
    void addNothing();
    void combine(const VorWaitingOperator<Left>& waiting);
    bool canAssign(const wchar_t*) const { return true; }
    void assign(const VorWaitingOperator<Left>& waiting) { combine(waiting); }
    Left left(const wchar_t* pText) const { return pText; }
    void trace(const VorOperatorStack<Left>& waiting) const;

    VorStatementText m_text;
    VorExprEvTreeItemStack m_operands;
};
