// What a hint brings is time alone; here is shown that it looks at no row that is not there.
#include "VorBomRowsAhead.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <memory>

TEST(VorBomRowsAheadTest, ListsOfAnyLengthAreWalkedToTheirEnd)
{
    for (int numRows = 0; numRows < 12; ++numRows)
    {
        const LeakCheck leaks;
        BomTree<VorBomData> data;
        for (int i = 0; i < numRows; ++i)
            data.addChild(newRow({ tuple(L"%Name", L"HEA200"), tuple(L"%Weight", 2.5), tuple(L"%Role", NoValue()) }));
        VorBomRowsAhead ahead(data.child());
        for (int i = 0; i < numRows; ++i)
            ahead.advance();

        EXPECT_EQ(nullptr, numRows == 0 ? data.child() : data.lastChild()->next());
    }
}

TEST(VorBomRowsAheadTest, RowsMayGoOnceTheyWerePassed)
{
    BomTree<VorBomData> data;
    for (int i = 0; i < 10; ++i)
        data.addChild(newRow({ tuple(L"%Weight", 2.5) }));
    VorBomRowsAhead ahead(data.child());
    while (data.child() != nullptr)
    {
        ahead.advance();
        const std::unique_ptr<VorBomItemBase> pPassed(data.child());
        data.setChild(pPassed->next());
    }
}
