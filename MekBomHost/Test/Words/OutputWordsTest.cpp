#include "OutputWords.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(OutputWordsTest, EveryWordStandsForSomethingElse)
{
    EXPECT_EQ('\t', *WordChoices::find(OutputWords::delimiters(), "tab"));
    EXPECT_EQ(',', *WordChoices::find(OutputWords::decimalSigns(), ","));
    EXPECT_TRUE(WordChoices::find(OutputWords::encodings(), "utf-8-bom")->hasMark);
    EXPECT_FALSE(WordChoices::find(OutputWords::encodings(), "utf-8")->hasMark);
    EXPECT_EQ(TextEncoding::kWindows1252, WordChoices::find(OutputWords::encodings(), "windows-1252")->encoding);
    EXPECT_EQ(kA4Paper, *WordChoices::find(OutputWords::papers(), "a4"));
    EXPECT_EQ(kLetterPaper, *WordChoices::find(OutputWords::papers(), "letter"));
}
}
