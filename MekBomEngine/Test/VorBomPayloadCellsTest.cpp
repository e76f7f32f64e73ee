#include "VorBomPayloadCells.h"

#include "Support/BomTestSupport.h"

#include "MekRoots/Test/Support/SanitizerSupport.h"

#include <gtest/gtest.h>

TEST(VorBomPayloadCellsTest, ValuesOwnTheirCells)
{
    const LeakCheck leaks;
    VorBomDataValue kept;
    {
        VorBomPayloadCells cells(3);
        VorBomDataValue number(2.5, cells);
        const VorBomDataValue text(VorString(L"HEA200"), cells);
        kept = std::move(number);
        EXPECT_EQ(VorString(L"HEA200"), text.asString());
        EXPECT_EQ(kPoolIsBypassed, cells.isUsedUp()); // where it is, cells are only taken one by one
    }
    EXPECT_EQ(VorString(L"2.5"), kept.asString());
}

TEST(VorBomPayloadCellsTest, MoreThanWereAskedForAreTakenOneByOne)
{
    const LeakCheck leaks;
    VorBomPayloadCells cells(1);
    const VorBomDataValue first(1, cells);
    EXPECT_TRUE(cells.isUsedUp());

    const VorBomDataValue second(2, cells);
    const VorBomDataValue copy(second, cells);

    EXPECT_EQ(VorString(L"1"), first.asString());
    EXPECT_EQ(VorString(L"2"), copy.asString());
}

TEST(VorBomPayloadCellsTest, AnyNumberOfCellsMayBeAskedFor)
{
    const LeakCheck leaks;
    for (const int numCells : { 0, 1, 1000, 100'000 })
    {
        VorBomPayloadCells cells(numCells);
        const VorBomDataValue value(7, cells);
        EXPECT_EQ(VorString(L"7"), value.asString()) << numCells;
    }
}
