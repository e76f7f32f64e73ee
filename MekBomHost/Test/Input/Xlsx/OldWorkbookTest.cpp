#include "OldWorkbook.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
TEST(OldWorkbookTest, TheContainerIsKnownByItsFirstBytes)
{
    EXPECT_TRUE(OldWorkbook::isOne("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"));
    EXPECT_FALSE(OldWorkbook::isOne("\xD0\xCF\x11"));
    EXPECT_FALSE(OldWorkbook::isOne("PK\3\4"));
    EXPECT_FALSE(OldWorkbook::isOne(""));
}

TEST(OldWorkbookTest, AWorkbookWithAPasswordIsToldFromAnOldOne)
{
    const std::string head = "\xD0\xCF\x11\xE0";
    const std::string package("E\0n\0c\0r\0y\0p\0t\0e\0d\0P\0a\0c\0k\0a\0g\0e\0", 32);

    EXPECT_EQ(
        "3 parts.xls: found a workbook of an old kind (.xls), expected a workbook (.xlsx) or CSV: save it as .xlsx\n",
        faultOf([&] { OldWorkbook::refuse("parts.xls", head); }));
    EXPECT_EQ(
        "3 parts.xls: found a workbook with a password, expected a workbook (.xlsx) or CSV: save it without one\n",
        faultOf([&] { OldWorkbook::refuse("parts.xls", head + package); }));
}
}
