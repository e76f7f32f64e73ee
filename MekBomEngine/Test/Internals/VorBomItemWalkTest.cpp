#include "VorBomItemWalk.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
// A tree  A(B(C) D) E  and the items passed on a walk through it, with their levels.
struct WalkTree
{
    WalkTree()
    {
        a.setNext(&e);
        a.setChild(&b);
        a.addChild(&d);
        b.setChild(&c);
    }

    std::string pass(bool intoChildren, bool alongSiblings)
    {
        std::string passed;
        for (VorBomItemWalk walk(&a, 5); walk.item() != nullptr; walk.advance(intoChildren, alongSiblings))
            passed += nameOf(walk.item()) + std::to_string(walk.level());
        return passed;
    }

    std::string nameOf(const VorBomItemBase* pItem) const
    {
        const VorBomItemBase* const all[] = { &a, &b, &c, &d, &e };
        for (int i = 0; i < 5; ++i)
            if (all[i] == pItem)
                return std::string(1, static_cast<char>('A' + i));
        return "?";
    }

    VorBomItemBase a, b, c, d, e;
};
}

TEST(VorBomItemWalkTest, ChildrenComeBeforeSiblings)
{
    EXPECT_EQ("A5B6C7D6E5", WalkTree().pass(true, true));
}

TEST(VorBomItemWalkTest, WaysThatAreNotAskedForAreNotTaken)
{
    EXPECT_EQ("A5E5", WalkTree().pass(false, true));
    EXPECT_EQ("A5B6C7", WalkTree().pass(true, false));
    EXPECT_EQ("A5", WalkTree().pass(false, false));
}

TEST(VorBomItemWalkTest, WalkFromNothingHasEnded)
{
    EXPECT_EQ(nullptr, VorBomItemWalk(nullptr, 0).item());
}
