// A tree is written with a list of what is still to be written, its end first. "2*(3+a)" from the root '*':
//   list                         text
//   *
//   ) right(*) '*' left(*)       (
//   ) right(*) '*'               (2
//   ) right(*)                   (2*
//   ) ) right(+) '+' left(+)     (2*(
// and so on. No depth of tree needs a deep stack of calls.
#include "FormulaTree.h"

#include "NumberText.h"
#include "Utf8.h"

namespace mekbom
{
namespace
{
// A piece of the text that is still to be written: a node, or a character where that is not 0.
struct Piece
{
    int node; // kNoSide for a side that is missing
    char character;
};
constexpr Piece ofNode(int node)
{
    return { node, 0 };
}
constexpr Piece ofCharacter(char character)
{
    return { 0, character };
}

VorString withoutZeros(const VorString& text)
{
    return VorString(text.getStringW()); // up to the first
}

// Where the engine has read fewer or more characters than the operand has, "2,5" or "1e-3", the number that it has made
// of them is shown: that is what its author has to see.
std::string operandText(const FormulaNode& node)
{
    if (node.kind == FormulaNode::kNumber && node.numRead != node.text.length())
        return singleText(static_cast<float>(node.number));
    return Utf8::toBytes(withoutZeros(node.text));
}
}

int FormulaTree::add(const FormulaNode& node)
{
    m_nodes.push_back(node);
    return static_cast<int>(m_nodes.size()) - 1;
}

// From the root down, which is from the last node to the first: each marks its sides before their turn comes.
void FormulaTree::endStatement(int root)
{
    m_roots.push_back(root);
    if (root == FormulaNode::kNoSide)
        return;
    m_nodes[static_cast<std::size_t>(root)].isComputed = true;
    for (int i = root; i >= m_nStatement; --i)
        markSides(m_nodes[static_cast<std::size_t>(i)]);
    m_nStatement = static_cast<int>(m_nodes.size());
}

// The left side of an assignment is where a value goes, and so none that is asked for.
void FormulaTree::markSides(const FormulaNode& node)
{
    if (!node.isComputed)
        return;
    if (node.left != FormulaNode::kNoSide && node.operation != L'=')
        m_nodes[static_cast<std::size_t>(node.left)].isComputed = true;
    if (node.right != FormulaNode::kNoSide)
        m_nodes[static_cast<std::size_t>(node.right)].isComputed = true;
}

// A statement without an operand, as behind a last ';', leaves the value of the one before it.
int FormulaTree::root() const
{
    for (auto root = m_roots.rbegin(); root != m_roots.rend(); ++root)
        if (*root != FormulaNode::kNoSide)
            return *root;
    return FormulaNode::kNoSide;
}

std::string FormulaTree::text() const
{
    std::string text;
    const char* separator = "";
    for (const int root : m_roots)
    {
        text += separator;
        separator = ";";
        if (root != FormulaNode::kNoSide)
            text += textOf(root);
    }
    return text;
}

// Operators are taken apart into brackets, sides and sign, each put on the list with its end first; all else is
// written. An assignment that is a whole statement needs no brackets.
std::string FormulaTree::textOf(int root) const
{
    std::string text;
    std::vector<Piece> pending = { ofNode(root) };
    while (!pending.empty())
    {
        const Piece piece = pending.back();
        pending.pop_back();
        if (piece.character != 0)
        {
            text += piece.character;
            continue;
        }
        if (piece.node == FormulaNode::kNoSide)
        {
            text += '0';
            continue;
        }
        const FormulaNode& node = m_nodes[static_cast<std::size_t>(piece.node)];
        if (node.kind != FormulaNode::kOperator)
        {
            text += operandText(node);
            continue;
        }
        const bool isBare = node.operation == L'=' && piece.node == root;
        if (!isBare)
        {
            text += '(';
            pending.push_back(ofCharacter(')'));
        }
        pending.push_back(ofNode(node.right));
        pending.push_back(ofCharacter(static_cast<char>(node.operation)));
        pending.push_back(ofNode(node.left));
    }
    return text;
}
}
