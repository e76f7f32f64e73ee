#include "WordList.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(WordListTest, TheLastTwoWordsAreJoinedByAnd)
{
    EXPECT_EQ("", WordList::joined({}));
    EXPECT_EQ("a", WordList::joined({ "a" }));
    EXPECT_EQ("a and b", WordList::joined({ "a", "b" }));
    EXPECT_EQ("a, b and c", WordList::joined({ "a", "b", "c" }));
}

TEST(WordListTest, WordsThatAreLeftOutAreCounted)
{
    EXPECT_EQ("a and b", WordList::firstOf({ "a", "b" }, 2));
    EXPECT_EQ("a, b and 1 more", WordList::firstOf({ "a", "b", "c" }, 2));
}
}
