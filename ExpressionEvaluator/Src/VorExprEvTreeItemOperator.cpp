// Evaluation walks the tree with a stack of the operators that wait for a side, so that no depth of nesting needs a
// deep call stack. One value passes through the whole walk. "2*(3+a)", with a = 4:
//   down   * and + wait for their left sides     waiting: *             value 2
//   up     * keeps 2 and wants its right side    waiting: 2*            down again
//          + keeps 3 and wants its right side    waiting: 2*, 3+        value 4
//          nothing wants a side any more         waiting: none          value 7, then 14
// The left side of an assignment is a name: it waits for its right side alone.
#include "VorExprEvTreeItemOperator.h"

#include "Reading/VorFormulaCharacters.h"
#include "Reading/VorShortStack.h"
#include "VorExprEvValue.h"
#include "VorExprEvVariableList.h"
#include "VorExprEvalErrorHandler.h"

#include "MekRoots/Exp/VorAssert.h"

#include <cmath>
#include <cstddef>

namespace
{
const wchar_t kSourcePath[] = L"ExpressionEvaluator/Src/VorExprEvTreeItemOperator"; // named in assertion reports
constexpr int kNoPrecedenceLine = 55;                                               // visible to callers
constexpr int kNoOperationLine = 145;                                               // visible to callers

// Operators that wait at once without memory being asked for. Arbitrary; formulas of reports nest a few deep.
constexpr std::size_t kUsualDepth = 64;

bool isOperation(wchar_t character)
{
    return character == L'*' || character == L'+' || character == L'-' || character == L'/' || character == L'=';
}

// An assigned value keeps its type: "a=2.5" makes the variable "a" with a double. "=2.5" has no name: an error.
void assign(const VorExprEvTreeItem& assignment, VorExprEvValue& value)
{
    const VorExprEvTreeItem* const pName = assignment.left();
    if (pName == nullptr)
    {
        VorExprEvalErrorHandler::ofThread().raise(VorExprEvalError::kSyntaxError, assignment.getText().start());
        value.release();
        return;
    }
    VorExprEvVariableList::ofThread().prepend(pName->getText(), value);
}

// An operator whose value needs that of a side first.
struct Waiting
{
    const VorExprEvTreeItem* pOperator;
    wchar_t operation;
    bool hasLeft; // from the start for an assignment
    double left;
};

// One evaluation of a tree. The value is the caller's, and holds that of the whole tree at the end.
class Walk
{
public:
    using Stack = VorShortStack<Waiting, kUsualDepth>;

    Walk(VorExprEvValue& value, Stack::Room& room) : m_value(value), m_waiting(room) {}

    void run(const VorExprEvTreeItem* pRoot)
    {
        goDown(pRoot);
        while (!m_waiting.isEmpty())
            goUp();
    }

private:
    void goDown(const VorExprEvTreeItem* pItem);
    void goUp();
    void finish(const Waiting& waiting);

    VorExprEvValue& m_value; // of the side evaluated last
    Stack m_waiting;
};

// Down the left sides to an operand, leaving the operators on the way waiting.
void Walk::goDown(const VorExprEvTreeItem* pItem)
{
    while (pItem != nullptr && pItem->isOperator())
    {
        const VorExprEvTextView text = pItem->getText();
        const wchar_t operation = text.at(text.start());
        if (!isOperation(operation))
        {
            VorAssert::vorAssert(L"false", kSourcePath, kNoOperationLine);
            m_value.release();
            return;
        }
        const bool isAssignment = operation == L'=';
        m_waiting.push({ pItem, operation, isAssignment, 0.0 });
        pItem = isAssignment ? pItem->right() : pItem->left();
    }
    if (pItem != nullptr)
        pItem->evaluate(m_value);
    else
        m_value.release();
}

// The operator that waits for the value: with it as its left side goes down the right one, or is finished. Going down
// may enlarge the stack, so that `waiting` is not looked at after that.
void Walk::goUp()
{
    Waiting& waiting = m_waiting.top();
    if (!waiting.hasLeft)
    {
        waiting.left = m_value.toNumber();
        waiting.hasLeft = true;
        goDown(waiting.pOperator->right());
        return;
    }
    finish(m_waiting.pop());
}

// A division by zero raises its error and goes on with 0.0; the end of the statement asks for errors.
void Walk::finish(const Waiting& waiting)
{
    if (waiting.operation == L'=')
    {
        assign(*waiting.pOperator, m_value);
        return;
    }
    double result = 0.0;
    if (!VorExprEvTreeItemOperator::calculateInOrder(waiting.operation, waiting.left, m_value.toNumber(), result))
        VorExprEvalErrorHandler::ofThread().raise(VorExprEvalError::kDivisionByZero,
                                                  waiting.pOperator->getText().start());
    m_value.setDouble(result);
}
}

// Parentheses have one, too: they never get into a tree, but wait as operators do while it is made.
int VorExprEvTreeItemOperator::precedence(wchar_t character)
{
    if (VorFormulaCharacters::kOperators.holds(character))
        return VorFormulaCharacters::kKindsInStatement[character];
    VorAssert::vorAssert(L"false", kSourcePath, kNoPrecedenceLine);
    return 0;
}

// Where neither side is a NaN the operation makes one, whose sign is the processor's business.
int VorExprEvTreeItemOperator::calculateInOrder(wchar_t operation, double left, double right, double& result)
{
    const int nResult = calculate(operation, left, right, result);
    if (std::isnan(result) && (std::isnan(left) || std::isnan(right)))
        result = std::isnan(left) ? left : right;
    return nResult;
}

int VorExprEvTreeItemOperator::print() const
{
    return printText();
}

VorExprEvValue& VorExprEvTreeItemOperator::evaluate(VorExprEvValue& value) const
{
    Walk::Stack::Room room;
    Walk(value, room).run(this);
    return value;
}

// "5*" makes an operator with one side: whole as far as evaluating goes, where the other counts as 0, but not complete.
int VorExprEvTreeItemOperator::isComplete() const
{
    return m_pLeft != nullptr && m_pRight != nullptr && m_text.length() == 1 ? 1 : 0;
}
