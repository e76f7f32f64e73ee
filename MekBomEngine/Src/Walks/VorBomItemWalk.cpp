// Told on an item A with the children B and C and the sibling D, where B has a child E. What is still to come after the
// subtree at hand waits in a list:
//   here A, waiting none    here B, waiting D    here E, waiting D C    here C, waiting D    here D, waiting none
#include "VorBomItemWalk.h"

void VorBomItemWalk::advance(bool intoChildren, bool alongSiblings)
{
    if (alongSiblings && m_here.pItem->next() != nullptr)
        m_pending.push_back({ m_here.pItem->next(), m_here.level });
    if (intoChildren && m_here.pItem->child() != nullptr)
        m_here = { m_here.pItem->child(), m_here.level + 1 };
    else
        goOnAfterSubtree();
}

void VorBomItemWalk::goOnAfterSubtree()
{
    if (m_pending.empty())
    {
        m_here.pItem = nullptr;
        return;
    }
    m_here = m_pending.back();
    m_pending.pop_back();
}
