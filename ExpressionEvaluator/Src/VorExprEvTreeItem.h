// A node of a parsed statement: an operator over two operands, or an operand. "2*(3+a)" is the tree
//
//   *              operator; left 2, right +
//     2            operand
//     +            operator; left 3, right a
//       3
//       a
//
// A node owns its children: deleting it deletes everything below it, without recursion, however deep the tree. It does
// not own the formula text that it views, nor `next`, which links it into one of the parser's stacks while it is there.
// Evaluating, printing and asking change nothing in the tree.
#pragma once

#include "VorExprEvTextView.h"

#include <cstddef>

class VorExprEvValue;

class MEK_EXPRESSION_API VorExprEvTreeItem
{
public:
    VorExprEvTreeItem(const VorExprEvTreeItem&) = delete;
    VorExprEvTreeItem& operator=(const VorExprEvTreeItem&) = delete;

    virtual ~VorExprEvTreeItem();

    // Writes a line feed and the node's text (at most 999 characters, "0" for no text) to the debug output. Returns 1.
    virtual int print() const = 0;

    // Sets `value` to the value of the tree from here down, whatever it was, and returns it. Errors go to the thread's
    // error handler, assignments to its variable list.
    virtual VorExprEvValue& evaluate(VorExprEvValue& value) const = 0;

    virtual VorExprEvTextView getText() const = 0;

    // 1 when the node has all that it needs.
    virtual int isComplete() const = 0;

    virtual int isOperator() const = 0;

    // Null when missing.
    VorExprEvTreeItem* left() const { return m_pLeft; }
    VorExprEvTreeItem* right() const { return m_pRight; }

    // Takes over both children, null for none. The node must have none before.
    void setChildren(VorExprEvTreeItem* pLeft, VorExprEvTreeItem* pRight);

    VorExprEvTreeItem* next() const { return m_pNext; }
    void setNext(VorExprEvTreeItem* pNext) { m_pNext = pNext; }

    // Nodes come from the pool that values come from.
    static void* operator new(std::size_t size);
    static void operator delete(void* pBlock, std::size_t size);

protected:
    explicit VorExprEvTreeItem(const VorExprEvTextView& text) : m_text(text) {}

    int printText() const;

    VorExprEvTreeItem* m_pLeft = nullptr;
    VorExprEvTreeItem* m_pRight = nullptr;
    VorExprEvTreeItem* m_pNext = nullptr;
    VorExprEvTextView m_text;
};
