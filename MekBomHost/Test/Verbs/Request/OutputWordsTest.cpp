#include "OutputWords.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(OutputWordsTest, EveryWordStandsForSomethingElse)
{
    EXPECT_EQ('\t', *WordOption::find(OutputWords::delimiters(), "tab"));
    EXPECT_EQ(',', *WordOption::find(OutputWords::decimalSigns(), ","));
    EXPECT_TRUE(WordOption::find(OutputWords::encodings(), "utf-8-bom")->hasMark);
    EXPECT_FALSE(WordOption::find(OutputWords::encodings(), "utf-8")->hasMark);
    EXPECT_EQ(TextEncoding::kWindows1252, WordOption::find(OutputWords::encodings(), "windows-1252")->encoding);
    EXPECT_EQ(kA4Paper, *WordOption::find(OutputWords::papers(), "a4"));
    EXPECT_EQ(kLetterPaper, *WordOption::find(OutputWords::papers(), "letter"));
}
}
