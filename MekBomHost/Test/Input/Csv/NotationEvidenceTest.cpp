#include "NotationEvidence.h"

#include <gtest/gtest.h>

#include <vector>

namespace mekbom
{
namespace
{
NumberNotation shownBy(const std::vector<const char*>& cells, char delimiter = ';')
{
    NotationEvidence evidence;
    int line = 1;
    for (const char* const pCell : cells)
        evidence.add(pCell, ++line);
    return evidence.notation(delimiter);
}
}

TEST(NotationEvidenceTest, ACellThatFitsOneSignAloneSettlesIt)
{
    const NumberNotation german = shownBy({ "1.234", "12,5", "13,5" });

    EXPECT_EQ(NumberNotation::kComma, german.sign());
    EXPECT_TRUE(german.isSettled());
    EXPECT_EQ("as \"12,5\" on line 3 shows", german.reason());
    EXPECT_EQ(NumberNotation::kPoint, shownBy({ "1.234", "0.240" }).sign());
    EXPECT_TRUE(shownBy({ "1.234", "0.240" }).isSettled());
    EXPECT_EQ(NumberNotation::kComma, shownBy({ "12,5" }, ',').sign());
}

TEST(NotationEvidenceTest, CellsThatFitBothSettleNothing)
{
    EXPECT_TRUE(shownBy({ "1.234", "1,234", "12", "1 234", "", "x" }).isOpen());
    EXPECT_TRUE(shownBy({}).isOpen());
}

TEST(NotationEvidenceTest, AHundredCellsThatShowASignAreEnough)
{
    NotationEvidence evidence;
    for (int line = 2; line < 102; ++line)
    {
        EXPECT_FALSE(evidence.isEnough());
        evidence.add("1.234", line);
        evidence.add("12.5", line);
    }

    EXPECT_TRUE(evidence.isEnough());
}

TEST(NotationEvidenceTest, AmongCommasThePointIsAssumed)
{
    EXPECT_TRUE(shownBy({ "1.234" }, ',').isPlain());
    EXPECT_FALSE(shownBy({ "1.234" }, ',').isSettled());
}

TEST(NotationEvidenceTest, CellsThatContradictEachOtherSettleNothing)
{
    const NumberNotation mixed = shownBy({ "12.5", "13,5", "14,5" });

    EXPECT_TRUE(mixed.isMixed());
    EXPECT_EQ(NumberNotation::kComma, mixed.sign());
    EXPECT_EQ("as \"13,5\" on line 3 shows", mixed.reason());
    EXPECT_TRUE(shownBy({ "12.5", "13,5" }, ',').isMixed());
}
}
