// A formula as a tree of operators over operands, whoever has read it.
//
//   FormulaTree tree;
//   const int left = tree.add(a);
//   const int right = tree.add(b);
//   plus.left = left;
//   plus.right = right;
//   tree.endStatement(tree.add(plus));
//   tree.text()   ->  "(a+b)"
//
// Nodes stand behind those below them, so that a loop from the first to the last meets both sides of an operator before
// the operator itself: no walk needs recursion, however deep the formula is nested. A node is below one other at most.
#pragma once

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
struct FormulaNode
{
    enum eKind
    {
        kNothing, // the left side of a negation
        kNumber,
        kName,
        kOperator
    };
    static constexpr int kNoSide = -1;

    eKind kind = kNothing;
    bool isComputed = false; // set when the statement ends; the left side of an assignment is a name and not computed
    wchar_t operation = 0;   // of an operator: one of "*/+-="
    int left = kNoSide; // of an operator: index into the nodes; kNoSide where the formula has none, which counts as 0
    int right = kNoSide;
    int start = 0;       // of a number or a name: where it stands in the formula
    double number = 0.0; // of a number: what the engine reads it as, in single precision
    VorString text;  // as written; a name may end in zero characters, and of the left side of a negation it is empty
    int numRead = 0; // of a number: how many characters from its first on make it up; they may be fewer than those
                     // of the text ("2,5") and more ("1e" of "1e-3")
};

class FormulaTree
{
public:
    // Answers the index of the node, which stands behind all before it.
    int add(const FormulaNode& node);

    // Ends a statement; `root` is the index of its uppermost node, kNoSide when it has no operand.
    // Nodes added since the last statement that are not below it are never computed.
    void endStatement(int root);

    const std::vector<FormulaNode>& nodes() const { return m_nodes; }

    // The roots of the statements, from the left.
    const std::vector<int>& roots() const { return m_roots; }

    // The node whose value is that of the formula: the root of the last statement that has one; kNoSide for none.
    int root() const;

    // All operators with both sides in brackets, in UTF-8; statements separated by ';'. Operands stand as written, a
    // number that was cut short or runs on as what it is read as, a missing side as 0.
    //   "a=4;2,5*-a"  ->  "a=4;(2*(-a))"
    std::string text() const;

    // The text, in the same form, of one node with what stands below it.
    std::string textOf(int node) const;

private:
    void markSides(const FormulaNode& node);

    std::vector<FormulaNode> m_nodes;
    std::vector<int> m_roots;
    int m_nStatement = 0; // the first node of the statement that has not ended
};
}
