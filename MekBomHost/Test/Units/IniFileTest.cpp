#include "IniFile.h"

#include "FindingCodes.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// "2 length=mm|" for each entry.
std::string entriesOf(const std::string& text)
{
    std::string entries;
    for (IniFile ini({ "shop.ini", text }); ini.next();)
        entries += std::to_string(ini.line()) + " " + ini.key() + "=" + ini.value() + "|";
    return entries;
}

std::string faultIn(const std::string& text)
{
    return faultOf([&text] { entriesOf(text); });
}
}

TEST(IniFileTest, EntriesAreInUtf8)
{
    EXPECT_EQ("2 area=m\u00B2/1|4 b=|", entriesOf("; ours\narea = m\u00B2/1\r\n[x]\nb="));
    EXPECT_EQ("", entriesOf(""));
}

TEST(IniFileTest, AByteOrderMarkIsNoPartOfTheText)
{
    EXPECT_EQ("1 a=1|", entriesOf("\xEF\xBB\xBF"
                                  "a=1"));
    EXPECT_EQ("3 shop.ini:1:3: found byte 0xFF, expected text in UTF-8\n", faultIn("\xEF\xBB\xBF"
                                                                                   "a=\xFF"));
}

TEST(IniFileTest, WhatIsNoTextIsRefused)
{
    EXPECT_EQ("3 shop.ini:2:1: found a zero byte, expected text\n", faultIn(std::string("a=1\n\0b", 6)));
    EXPECT_EQ("3 shop.ini:2:3: found byte 0xE4, expected text in UTF-8\n", faultIn("a=1\nb=\xE4"));
}

TEST(IniFileTest, MalformedLinesAreNamedWithWhatIsFoundAndExpected)
{
    try
    {
        entriesOf("a=1\nb\n");
        FAIL() << "nothing was thrown";
    }
    catch (const Fault& fault)
    {
        const Finding& finding = fault.findings()[0];
        EXPECT_EQ(FindingCodes::kEntryMalformed.name, finding.code);
        EXPECT_EQ("shop.ini", finding.source);
        EXPECT_EQ(2, finding.begin.line);
        EXPECT_EQ("\"b\"", finding.found);
        EXPECT_EQ("a line such as key = value", finding.expected);
    }
}
}
