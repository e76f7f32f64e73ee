#include "FoldedText.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(FoldedTextTest, CaseAndAccentsAreGone)
{
    EXPECT_EQ("lange", foldedText("L\u00E4nge"));
    EXPECT_EQ("lange", foldedText("LA\u0308NGE")); // the accent a character of its own
    EXPECT_EQ("quantite", foldedText("QUANTIT\u00C9"));
    EXPECT_EQ("strasse", foldedText("Stra\u00DFe"));
    EXPECT_EQ("m2", foldedText("m\u00B2"));
}

TEST(FoldedTextTest, OtherCharactersStay)
{
    EXPECT_EQ("a b-#%", foldedText("A b-#%"));
    EXPECT_EQ("\u00F8", foldedText("\u00D8"));
    EXPECT_EQ("", foldedText(""));
}

TEST(FoldedTextTest, WhatIsNoUtf8StaysAsItIs)
{
    EXPECT_EQ("L\xE4nge", foldedText("L\xE4nge"));
}
}
