// A stack of nodes, linked through the nodes' own `next`: pushing costs no memory. Owns what is on it, and deletes what
// is left on it at its end, each node with everything below it.
//
//   stack.push(pA);
//   stack.push(pB);
//   stack.pop()  ->  pB
#pragma once

#include "VorExprEvTreeItem.h"

class VorExprEvTreeItemStack
{
public:
    VorExprEvTreeItemStack() = default;
    VorExprEvTreeItemStack(const VorExprEvTreeItemStack&) = delete;
    VorExprEvTreeItemStack& operator=(const VorExprEvTreeItemStack&) = delete;

    ~VorExprEvTreeItemStack()
    {
        while (m_pTop != nullptr)
            delete pop();
    }

    int isEmpty() const { return m_pTop == nullptr ? 1 : 0; }

    // Null when the stack is empty; next() leads on downwards.
    VorExprEvTreeItem* top() const { return m_pTop; }

    // Pushing null does nothing.
    void push(VorExprEvTreeItem* pItem)
    {
        if (pItem == nullptr)
            return;
        pItem->setNext(m_pTop);
        m_pTop = pItem;
    }

    // Hands the top over to the caller; null when the stack is empty.
    VorExprEvTreeItem* pop()
    {
        VorExprEvTreeItem* pItem = m_pTop;
        if (pItem != nullptr)
        {
            m_pTop = pItem->next();
            pItem->setNext(nullptr);
        }
        return pItem;
    }

private:
    VorExprEvTreeItem* m_pTop = nullptr;
};
