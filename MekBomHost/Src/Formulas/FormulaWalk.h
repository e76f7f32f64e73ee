// Computes something of a formula along its tree: a number, a dimension, whatever both sides of an operator make one
// of.
//
//   struct Height // how many operators stand above each other
//   {
//       int ofNothing() { return 0; }
//       int ofNumber(const FormulaNode&) { return 0; }
//       int ofName(const VorString&) { return 0; }
//       int combine(const FormulaNode&, int left, int right) { return std::max(left, right) + 1; }
//   };
//   Height height;
//   FormulaWalk<int, Height>(height).run(EngineReading::read(L"2*(3+a)").tree)   ->  2
//
// The client is asked for operands and operators from the left, both sides before their operator. Assignments are the
// walk's: a name that has been assigned stands for what it was assigned last, and the client is not asked for it. A
// side that is missing is nothing.
#pragma once

#include "FormulaTree.h"

#include <map>
#include <utility>
#include <vector>

namespace mekbom
{
template <class Value, class Client>
class FormulaWalk
{
public:
    // The client is not owned and must outlive the walk.
    explicit FormulaWalk(Client& client) : m_client(client) {}

    // The value of the formula, which is that of its last statement that has an operand; that of nothing when none has.
    Value run(const FormulaTree& tree)
    {
        Value result = m_client.ofNothing();
        int node = 0;
        for (const int root : tree.roots())
        {
            for (; node <= root; ++node)
                if (nodeOf(tree, node).isComputed)
                    m_waiting.push_back(valueOf(nodeOf(tree, node), tree));
            if (root != FormulaNode::kNoSide)
                result = takeSide(root);
        }
        return result;
    }

private:
    struct ByText
    {
        bool operator()(const VorString& a, const VorString& b) const { return VorString::compare(a, b) < 0; }
    };

    static const FormulaNode& nodeOf(const FormulaTree& tree, int index)
    {
        return tree.nodes()[static_cast<std::size_t>(index)];
    }

    // The right side was computed last.
    Value valueOf(const FormulaNode& node, const FormulaTree& tree)
    {
        switch (node.kind)
        {
            case FormulaNode::kNothing: return m_client.ofNothing();
            case FormulaNode::kNumber: return m_client.ofNumber(node);
            case FormulaNode::kName: return valueOfName(node.text);
            default: break;
        }
        Value right = takeSide(node.right);
        if (node.operation != L'=')
            return m_client.combine(node, takeSide(node.left), std::move(right));
        if (node.left != FormulaNode::kNoSide)
            m_variables.insert_or_assign(nodeOf(tree, node.left).text, right);
        return right;
    }

    Value valueOfName(const VorString& name)
    {
        const auto variable = m_variables.find(name);
        return variable == m_variables.end() ? m_client.ofName(name) : variable->second;
    }

    Value takeSide(int side)
    {
        if (side == FormulaNode::kNoSide)
            return m_client.ofNothing();
        Value value = std::move(m_waiting.back());
        m_waiting.pop_back();
        return value;
    }

    Client& m_client;
    std::map<VorString, Value, ByText> m_variables; // assigned so far
    std::vector<Value> m_waiting;                   // for the operators above them
};
}
