#include "TextTally.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
TEST(TextTallyTest, FirstAndLastAreThoseOfNaturalOrder)
{
    TextTally marks;
    for (const char* const pMark : { "B10", "B2", "B10", "B9" })
        marks.add(pMark);

    EXPECT_EQ("3", marks.distinct().countText());
    EXPECT_EQ("B2", marks.first());
    EXPECT_EQ("B10", marks.last());
}

TEST(TextTallyTest, WithoutATextThereIsNeither)
{
    EXPECT_EQ("0", TextTally().distinct().countText());
    EXPECT_EQ("", TextTally().first());
    EXPECT_EQ("", TextTally().last());
}

TEST(TextTallyTest, BeyondTheBoundOfDifferentTextsTheLastIsStillFound)
{
    TextTally marks;
    for (int i = 0; i < 150000; ++i)
        marks.add("P" + std::to_string(i));

    EXPECT_EQ("more than 100000", marks.distinct().countText());
    EXPECT_EQ("P0", marks.first());
    EXPECT_EQ("P149999", marks.last());
}
}
