// A walk through a tree of items in the order of its lines: an item, then its children, then its siblings.
//
//   for (VorBomItemWalk walk(pFirst, 0); walk.item() != nullptr; walk.advance(1, 1))
//       visit(walk.item(), walk.level());
//
// Remembers the siblings still to come instead of recursing, so that depth costs memory, not stack. The links of items
// not yet passed may not be changed meanwhile. Starting from null is an ended walk.
#pragma once

#include "VorBomItemBase.h"

#include <vector>

class VorBomItemWalk
{
public:
    VorBomItemWalk(VorBomItemBase* pFirst, int level) : m_here{ pFirst, level } {}

    // Null when the walk has ended.
    VorBomItemBase* item() const { return m_here.pItem; }
    int level() const { return m_here.level; }

    // Goes to the next item: down only with `intoChildren`, along siblings, those of children included, only with
    // `alongSiblings`.
    void advance(bool intoChildren, bool alongSiblings);

private:
    struct Place
    {
        VorBomItemBase* pItem;
        int level;
    };

    void goOnAfterSubtree();

    Place m_here;
    std::vector<Place> m_pending; // siblings of the items above, innermost last
};
