#include "Roff.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(RoffTest, SignsThatFormattersTakeForSomethingElseAreEscaped)
{
    EXPECT_EQ("\\-\\-map \\(dqCost\\(dq=\\(aq%A\\(aq", Roff::escaped("--map \"Cost\"='%A'"));
    EXPECT_EQ("C:\\efolder", Roff::escaped("C:\\folder"));
    EXPECT_EQ("\\(ti/a\\(ha2 \\(ga", Roff::escaped("~/a^2 `"));
    EXPECT_EQ("plain text, 50 %", Roff::escaped("plain text, 50 %"));
}

// A quote would do the same at the start of a line, but is escaped anywhere.
TEST(RoffTest, APointAtTheStartOfALineCallsNoMacro)
{
    EXPECT_EQ("\\&.25 in.", Roff::escaped(".25 in."));
    EXPECT_EQ("\\(aqall\\(aq", Roff::escaped("'all'"));
    EXPECT_EQ("", Roff::escaped(""));
}

TEST(RoffTest, OtherCharactersAreNamedByTheirCodePoints)
{
    EXPECT_EQ("m\\[u00B2] \\[u2192] \\[u1F528]", Roff::escaped("m\xC2\xB2 \xE2\x86\x92 \xF0\x9F\x94\xA8"));
}

TEST(RoffTest, CapitalsAreThoseOfAscii)
{
    EXPECT_EQ("EXIT STATUS 70", Roff::capitals("Exit status 70"));
}
}
