#include "VorTreeBuilder.h"

#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperand.h"
#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperator.h"
#include "ExpressionEvaluator/Src/VorExpressionEvaluator.h"

#include "MekRoots/Exp/VorDebugOutput.h"

#include <cstddef>
#include <memory>

// Operators that wait stand in room on this call's stack, as long as they are few, and operands are linked through
// themselves: all the memory that a formula takes is that of its nodes.
int VorTreeBuilder::build()
{
    Reader::Stack::Room room;
    return Reader(*this, room).read(m_text.begin()) != nullptr ? 1 : 0;
}

const wchar_t* VorTreeBuilder::readOperand(const wchar_t* pText, VorFormulaCharacters::eKind)
{
    VorExprEvTextView operand;
    const wchar_t* pEnd = m_text.readOperand(pText, operand);
    m_operands.push(new VorExprEvTreeItemOperand(operand));
    return pEnd;
}

// "-a" becomes -(nothing, a): the left side is a node without text, which evaluates to 0.
void VorTreeBuilder::addNothing()
{
    m_operands.push(new VorExprEvTreeItemOperand(VorExprEvTextView()));
}

// The upper operand is the right side, the one below the left. Of a single one, as in "5*", it is the right side, and
// the left one is missing. The operator is made before both are taken: should there be no memory for it, they still
// belong to the stack.
void VorTreeBuilder::combine(const VorWaitingOperator<Left>& waiting)
{
    auto pOperator = std::make_unique<VorExprEvTreeItemOperator>(m_text.operatorAt(waiting.left));
    VorExprEvTreeItem* pRight = m_operands.pop();
    VorExprEvTreeItem* pLeft = m_operands.pop();
    pOperator->setChildren(pLeft, pRight);
    m_operands.push(pOperator.release());
}

// Shows both stacks from the top down. For "2*3" at its end:
//   Operator Stack    *
//   Operand Stack     3 2
void VorTreeBuilder::trace(const VorOperatorStack<Left>& waiting) const
{
    if (VorExpressionEvaluator::m_nTraceStacks == 0)
        return;
    VorDebugOutput::write(L"\nOperator Stack\n");
    for (std::size_t i = waiting.size() - 1; i > 0; --i) // no operator stands at the bottom
    {
        VorDebugOutput::write(L"\n");
        VorExprEvTreeItemOperator(m_text.operatorAt(waiting[i].left)).print();
    }
    VorDebugOutput::write(L"\nOperand Stack\n");
    for (const VorExprEvTreeItem* pItem = m_operands.top(); pItem != nullptr; pItem = pItem->next())
    {
        VorDebugOutput::write(L"\n");
        pItem->print();
    }
}
