#include "DatumFinder.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <vector>

namespace mekbom
{
namespace
{
VorBomDataRow rowOf(const std::vector<VorString>& tokens)
{
    VorBomDataRow row;
    int value = 0;
    for (const VorString& token : tokens)
        row.addData(VorBomDataTuple(token, ++value));
    return row;
}

int valueIn(const VorBomDataRow& row, DatumFinder& finder)
{
    const VorBomDataTuple* const pTuple = finder.findIn(row);
    return pTuple == nullptr ? 0 : *static_cast<const int*>(pTuple->value().data());
}
}

TEST(DatumFinderTest, RowsMayHaveTheDatumAtOtherPlacesOrNotAtAll)
{
    const VorString name(L"%Name");
    const VorString weight(L"%Weight");
    DatumFinder weights(L"%Weight");

    EXPECT_EQ(0, valueIn(rowOf({}), weights));
    EXPECT_EQ(2, valueIn(rowOf({ name, weight }), weights));
    EXPECT_EQ(2, valueIn(rowOf({ name, weight, name }), weights));
    EXPECT_EQ(1, valueIn(rowOf({ weight, name }), weights));
    EXPECT_EQ(0, valueIn(rowOf({ name, name }), weights));
    EXPECT_EQ(1, valueIn(rowOf({ weight }), weights));
}

TEST(DatumFinderTest, ATokenWithCharactersOfItsOwnIsFound)
{
    DatumFinder weights(L"%Weight");

    EXPECT_EQ(1, valueIn(rowOf({ L"%Weight", L"%Name" }), weights));
    EXPECT_EQ(2, valueIn(rowOf({ L"%Name", L"%Weight" }), weights));
    EXPECT_EQ(0, valueIn(rowOf({ L"%Name", L"%weight" }), weights));
}
}
