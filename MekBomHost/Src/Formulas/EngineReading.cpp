// The parser's tree dies with the parser, so that nodes of our own take it over, in two steps, without recursion. For
// "2*(3+a)":
//   down   *  +  a  3  2      each operator, then its right side, then its left
//   back   2  3  a  +  *      the same from its end: both sides stand before their operator
// On the way back the operands and operators that wait for an operator above them stand on a stack.
#include "EngineReading.h"

#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperand.h"
#include "ExpressionEvaluator/Src/VorExpressionEvaluator.h"
#include "ExpressionEvaluator/Src/VorFormulaStatements.h"
#include "MekRoots/Exp/VorNumberText.h"

namespace mekbom
{
namespace
{
// Each item before those below it, its right side before its left: the order of "down" above.
std::vector<const VorExprEvTreeItem*> itemsOf(const VorExprEvTreeItem* pRoot)
{
    std::vector<const VorExprEvTreeItem*> items;
    std::vector<const VorExprEvTreeItem*> pending = { pRoot };
    while (!pending.empty())
    {
        const VorExprEvTreeItem* const pItem = pending.back();
        pending.pop_back();
        if (pItem == nullptr)
            continue;
        items.push_back(pItem);
        pending.push_back(pItem->left());
        pending.push_back(pItem->right());
    }
    return items;
}

// A view may reach behind the end of the text that it looks at: the engine reads zeros there, and a name with zeros
// behind it is another one. So as many zeros stand in the node's text as the view is longer than what exists.
VorString textOf(const VorExprEvTextView& view)
{
    const std::wstring_view existing = view.existingPart();
    VorString text(existing.data(), static_cast<int>(existing.size()));
    text.append(L'\0', view.length() - text.length());
    return text;
}

// Where the number ends is where the C library's scan of the same text does.
int numReadOf(const VorExprEvTextView& view)
{
    const wchar_t* const pStart = view.text() + view.start();
    const wchar_t* pEnd = pStart;
    VorNumberText::scanDouble(pStart, pEnd, 0);
    return static_cast<int>(pEnd - pStart);
}

// Whether an operand is a number is the engine's to say, which asks for no more than that it begins as one: "2nd" is 2,
// "nan" is no name. An operand without a text is the left side of a negation.
FormulaNode operandOf(const VorExprEvTextView& view, const wchar_t* pFormula)
{
    FormulaNode node;
    if (!view.hasText())
        return node;
    node.text = textOf(view);
    node.start = static_cast<int>(view.text() + view.start() - pFormula);
    node.kind = FormulaNode::kName;
    if (VorExprEvTreeItemOperand::scanNumber(view, node.number))
    {
        node.kind = FormulaNode::kNumber;
        node.numRead = numReadOf(view);
    }
    return node;
}

// Takes the operator's side off those that wait, if there is one.
int takeSide(const VorExprEvTreeItem* pSide, std::vector<int>& waiting)
{
    if (pSide == nullptr)
        return FormulaNode::kNoSide;
    const int side = waiting.back();
    waiting.pop_back();
    return side;
}

// The root is the last item on the way back, and what waits then; a statement without an operand has no item at all.
int addTree(const VorExprEvTreeItem* pRoot, const wchar_t* pFormula, FormulaTree& tree)
{
    const std::vector<const VorExprEvTreeItem*> items = itemsOf(pRoot);
    std::vector<int> waiting;
    for (auto item = items.rbegin(); item != items.rend(); ++item)
    {
        const VorExprEvTextView view = (*item)->getText();
        FormulaNode node;
        if ((*item)->isOperator())
        {
            node.kind = FormulaNode::kOperator;
            node.text = textOf(view);
            node.operation = view.at(view.start());
            node.right = takeSide((*item)->right(), waiting);
            node.left = takeSide((*item)->left(), waiting);
        }
        else
            node = operandOf(view, pFormula);
        waiting.push_back(tree.add(node));
    }
    return waiting.empty() ? FormulaNode::kNoSide : waiting.back();
}
}

// A statement that does not balance ends the reading, as it ends the engine's: what stands behind it is never computed.
EngineReading EngineReading::read(const VorString& formula)
{
    EngineReading reading;
    VorFormulaStatements statements(formula.getStringW(), formula.length());
    while (reading.isBalanced && statements.next())
    {
        VorExpressionEvaluator parser;
        reading.isBalanced = parser.parse(statements.current()) != 0;
        if (reading.isBalanced)
            reading.tree.endStatement(addTree(parser.root(), formula.getStringW(), reading.tree));
    }
    return reading;
}
}
