#include "InQuotes.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(InQuotesTest, TextsStandInQuotes)
{
    EXPECT_EQ("\"HEA200\"", inQuotes("HEA200"));
    EXPECT_EQ("\"\"", inQuotes(""));
    EXPECT_EQ("\"Träger\"", inQuotes("Träger"));
}

TEST(InQuotesTest, ControlCharactersReachNoTerminal)
{
    EXPECT_EQ("\"a?b?[31m?c\"", inQuotes("a\nb\x1B[31m\xC2\x9B"
                                         "c"));
}

TEST(InQuotesTest, LongTextsAreCut)
{
    const std::string fits(kMostQuoted, 'x');

    EXPECT_EQ("\"" + fits + "\"", inQuotes(fits));
    EXPECT_EQ("\"" + fits + "...\"", inQuotes(fits + "y"));
    EXPECT_EQ("\"" + fits + "y\"", inQuotes(fits + "y", kMostQuoted + 1));
    EXPECT_EQ("\"xx...\"", inQuotes(fits, 2));
}

TEST(InQuotesTest, BrokenCharactersAreReplaced)
{
    EXPECT_EQ("\"\xEF\xBF\xBD\"", inQuotes("\xC3"));
}

TEST(InQuotesTest, AWordOfASentenceNeedsNoQuotes)
{
    EXPECT_EQ("C7_?[2J", harmless("C7_\x1B[2J"));
    EXPECT_EQ("xx...", harmless("xxx", 2));
    EXPECT_EQ("", harmless(""));
}
}
