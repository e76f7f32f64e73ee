#include "SectionWalk.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace mekbom
{
namespace
{
VorBomTemplateItem* addSection(VorBomItemBase& parent, int number)
{
    auto pSection = std::make_unique<VorBomTemplateItem>(VorBomTemplateItem::kDetails);
    pSection->addData(VorBomDataTuple(L"%Num", number));
    VorBomTemplateItem* const pAdded = pSection.get();
    parent.addChild(pSection.release());
    return pAdded;
}

// "0:7 1:8 " for a section 7 with a section 8 under it.
std::string walked(const VorBomItemBase& result)
{
    std::string text;
    SectionWalk walk(result);
    for (WalkedSection section; walk.next(section);)
        text += std::to_string(section.level) + ":" +
                std::to_string(*static_cast<const int*>(section.pItem->getData()[0].value().data())) + " ";
    return text;
}
}

TEST(SectionWalkTest, SectionsComeBeforeWhatIsUnderThem)
{
    VorBomTemplateItem result;
    VorBomTemplateItem* const pFirst = addSection(result, 1);
    addSection(*addSection(*pFirst, 2), 3);
    addSection(*pFirst, 4);
    addSection(result, 5);

    EXPECT_EQ("0:1 1:2 2:3 1:4 0:5 ", walked(result));
    result.empty();
}

// Fewer sections than the walk is ahead, as many, and more.
TEST(SectionWalkTest, AnyNumberOfSectionsIsWalkedToItsEnd)
{
    VorBomTemplateItem result;
    std::string expected;
    EXPECT_EQ(expected, walked(result));
    for (int i = 0; i < 40; ++i)
    {
        addSection(result, i);
        expected += "0:" + std::to_string(i) + " ";

        EXPECT_EQ(expected, walked(result));
    }
    result.empty();
}

TEST(SectionWalkTest, SectionsMayLackTuplesValuesAndTexts)
{
    VorBomTemplateItem result;
    for (int i = 0; i < 40; ++i)
    {
        VorBomTemplateItem* const pSection = addSection(result, i);
        pSection->addData(VorBomDataTuple(L"%Name", VorString()));
        pSection->addData(VorBomDataTuple());
        result.addChild(new VorBomTemplateItem(VorBomTemplateItem::kDetails));
    }

    SectionWalk walk(result);
    int numSections = 0;
    for (WalkedSection section; walk.next(section);)
        ++numSections;

    EXPECT_EQ(80, numSections);
    result.empty();
}
}
