#include "MekRoots/Exp/VorGenericString.h"

#include "MekRoots/Test/Support/TestSupport.h"

namespace
{
TEST(VorGenericStringTest, EntriesAreKeptAsText)
{
    VorGenericString label;

    label.addEntry(L"%Quantity", -3, 0);
    label.addEntry(L"%Length", 6000.25, 0, L"%.1f");
    label.addEntry(L"%Name", VorString(L"HEA180"), 7);

    VorString text;
    EXPECT_EQ(1, label.findEntry(L"%Quantity", text));
    EXPECT_EQ(VorString(L"-3"), text);
    EXPECT_EQ(1, label.findEntry(L"%Length", text));
    EXPECT_EQ(VorString(L"6000.2"), text);
    EXPECT_EQ(1, label.findEntry(L"%Name", text));
    EXPECT_EQ(VorString(L"HEA180"), text);
    EXPECT_EQ(0, label.getUnitType(L"%Length"));
    EXPECT_EQ(7, label.getUnitType(L"%Name"));
}

TEST(VorGenericStringTest, TokensStandInTheOrderInWhichTheyCame)
{
    VorGenericString label;

    label.addToken(L"%B");
    label.addToken(L"%A");
    label.addToken(L"%B");

    ASSERT_EQ(3, label.tokens().length());
    EXPECT_EQ(VorString(L"%B"), label.tokens()[0]);
    EXPECT_EQ(VorString(L"%A"), label.tokens()[1]);
    EXPECT_EQ(VorString(L"%B"), label.tokens()[2]);
}

TEST(VorGenericStringTest, ATokenWithoutEntryIsNotFound)
{
    VorGenericString label;
    label.addToken(L"%Length");
    VorString text(L"untouched");

    EXPECT_EQ(0, label.findEntry(L"%Length", text));
    EXPECT_EQ(0, label.findEntry(L"%length", text));
    EXPECT_EQ(VorString(L"untouched"), text);
    EXPECT_EQ(0, label.getUnitType(L"%Length"));
}

TEST(VorGenericStringTest, TheFirstEntryOfATokenCounts)
{
    VorGenericString label;
    label.addEntry(L"%Length", 1, 1);
    label.addEntry(L"%Length", 2, 2);
    VorString text;

    EXPECT_EQ(1, label.findEntry(L"%Length", text));
    EXPECT_EQ(VorString(L"1"), text);
    EXPECT_EQ(1, label.getUnitType(L"%Length"));
}

TEST(VorGenericStringTest, CopiesAreIndependentAndNothingLeaks)
{
    LeakCheck leaks;
    VorGenericString label;
    label.addEntry(L"%Name", VorString(L"HEA180"), 0);
    const VorGenericString copy = label;
    VorString text;

    label.addEntry(L"%Material", VorString(L"S235JR"), 0);

    EXPECT_EQ(1, label.findEntry(L"%Material", text));
    EXPECT_EQ(0, copy.findEntry(L"%Material", text));
    EXPECT_EQ(1, copy.findEntry(L"%Name", text));
}
}
