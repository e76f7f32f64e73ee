// What a hint brings is time alone; here is shown that it looks at no row that is not there.
#include "VorBomRowsAhead.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
// Positions in rows of so many tuples, be they more or fewer than those of the rows to come; 0 for those of no row.
VorBomTuplePositions usedPositions(int numTuples)
{
    const wchar_t* const kTokens[] = { L"%Name", L"%Weight", L"%Role", L"%Length" };
    VorBomTuplePositions positions;
    VorBomDataRow row;
    for (int i = 0; i < numTuples; ++i)
    {
        positions.ask(kTokens[i]);
        row.addData(VorBomDataTuple(VorString(kTokens[i]), 0));
    }
    if (numTuples > 0)
        positions.in(row);
    return positions;
}
}

TEST(VorBomRowsAheadTest, ListsOfAnyLengthAreWalkedToTheirEnd)
{
    for (int numRows = 0; numRows < 12; ++numRows)
    {
        const LeakCheck leaks;
        BomTree<VorBomData> data;
        for (int i = 0; i < numRows; ++i)
            data.addChild(newRow({ tuple(L"%Name", L"HEA200"), tuple(L"%Weight", 2.5), tuple(L"%Role", NoValue()) }));
        VorBomTuplePositions positions = usedPositions(numRows % 5);
        VorBomRowsAhead ahead(data.child(), positions);
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
    VorBomTuplePositions positions = usedPositions(1);
    VorBomRowsAhead ahead(data.child(), positions);
    while (data.child() != nullptr)
    {
        ahead.advance();
        const std::unique_ptr<VorBomItemBase> pPassed(data.child());
        data.setChild(pPassed->next());
    }
}
