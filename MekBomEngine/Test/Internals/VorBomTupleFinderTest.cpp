#include "VorBomTupleFinder.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include "MekBomEngine/Src/VorBomDataRow.h"

#include <gtest/gtest.h>

namespace
{
VorString numbered(int number)
{
    VorString text;
    text.format(L"%%A%d", number);
    return text;
}

// Tokens "%A0" to "%A<numTokens - 1>", each twice: the second ones come after all the first ones.
VorBomDataTupleArray twice(int numTokens)
{
    VorBomDataTupleArray tuples;
    for (int i = 0; i < 2 * numTokens; ++i)
        tuples.append(VorBomDataTuple(numbered(i % numTokens), i));
    return tuples;
}
}

TEST(VorBomTupleFinderTest, FindsTheFirstTupleOfATokenWithAndWithoutATable)
{
    for (const int numTokens : { 1, 5, 16, 17, 32, 33, 40, 500 })
    {
        const VorBomDataTupleArray tuples = twice(numTokens);
        const VorBomTupleFinder finder(tuples, numTokens);
        for (int i = 0; i < numTokens; ++i)
        {
            ASSERT_EQ(i, finder.indexOf(numbered(i))) << numTokens;
            ASSERT_EQ(tuples.begin() + i, finder.find(numbered(i))) << numTokens;
        }
        EXPECT_EQ(VorBomTupleFinder::kNone, finder.indexOf(L"%A"));
        EXPECT_EQ(nullptr, finder.find(numbered(numTokens)));
        EXPECT_EQ(nullptr, finder.find(VorString()));
    }
}

TEST(VorBomTupleFinderTest, FindsNothingAmongNoTuples)
{
    const VorBomDataTupleArray tuples;
    EXPECT_EQ(nullptr, VorBomTupleFinder(tuples, 1000).find(L"%A"));
}

TEST(VorBomTupleFinderTest, RowsOfManyColumnsCompareAsThoseOfFew)
{
    for (const int numTokens : { 3, 32, 33, 100 })
    {
        VorBomDataRow first;
        VorBomDataRow second;
        VorStringArray tokens;
        for (int i = 0; i < numTokens; ++i)
        {
            tokens.append(numbered(i));
            first.addData(VorBomDataTuple(numbered(i), i));
            second.addData(VorBomDataTuple(numbered(numTokens - 1 - i), numTokens - 1 - i));
        }
        EXPECT_EQ(0, first.compare(&second, tokens)) << numTokens;

        second.getTupleAt(numbered(numTokens - 1))->value().set(numTokens);
        EXPECT_EQ(-1, first.compare(&second, tokens)) << numTokens;
        EXPECT_EQ(1, second.compare(&first, tokens)) << numTokens;
    }
}
