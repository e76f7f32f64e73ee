#include "WordChoices.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(WordChoicesTest, WordsAreFoundAsTheyAreWritten)
{
    const WordChoices::Choices<int> choices = { { "one", 1 }, { "two", 2 } };

    EXPECT_EQ(2, *WordChoices::find(choices, "two"));
    EXPECT_EQ(nullptr, WordChoices::find(choices, "Two"));
    EXPECT_EQ(" one two", WordChoices::wordsOf(choices));
}
}
