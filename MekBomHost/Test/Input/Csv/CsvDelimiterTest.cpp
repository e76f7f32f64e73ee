#include "CsvDelimiter.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
char recognised(const std::string& head)
{
    return CsvDelimiter::recognise(head, "parts.csv");
}

std::string faultIn(const std::string& head)
{
    return faultOf([&head] { recognised(head); });
}
}

TEST(CsvDelimiterTest, WhatDividesAllRowsAlikeIsTheDelimiter)
{
    EXPECT_EQ(',', recognised("a,b\n1,2\n"));
    EXPECT_EQ(';', recognised("a;b\r\n1,5;2\r\n"));
    EXPECT_EQ('\t', recognised("a\tb\n1\t2,5\n"));
    EXPECT_EQ('|', recognised("a|b\r1|2\r"));
    EXPECT_EQ(';', recognised("\n\nLength, mm;Weight, kg\n3185;134\n3185,5;12\n"));
}

TEST(CsvDelimiterTest, OneColumnHasThePlainOne)
{
    EXPECT_EQ(',', recognised(""));
    EXPECT_EQ(',', recognised("Name\nHEA200\n"));
    EXPECT_EQ(',', recognised("Weight\n12;5\n")); // what divides rows divides the header row
}

TEST(CsvDelimiterTest, WhatStandsInQuotesDividesNothing)
{
    EXPECT_EQ(';', recognised("\"a,b\";c\n1;2\n"));
    EXPECT_EQ(',', recognised("\"a;b\",\"c;\"\"d;\"\n1,2\n"));
    EXPECT_EQ(',', recognised("\"a;\n;b\",c\n1,2\n"));
}

// A row that is wrong is told by whoever reads it; it does not change what the others say.
TEST(CsvDelimiterTest, ARowMayHaveFieldsTooMany)
{
    EXPECT_EQ(',', recognised("a,b\n1,2,3\n4,5,6\n"));
    EXPECT_EQ(';', recognised("a,b;c\n1;2\n")); // the last line is there whole
    EXPECT_EQ(';', recognised("a;b,c\n1;2\n1,5;2\n1;2;3\n"));
}

TEST(CsvDelimiterTest, TwoThatSuitAlikeAreRefused)
{
    EXPECT_EQ("3 parts.csv: the columns may be separated by a comma or by a semicolon: give --delimiter \",\" or "
              "--delimiter \";\"\n",
              faultIn("a,b;c\n1,2;3\n"));
    EXPECT_EQ("3 parts.csv: the columns may be separated by a tab or by a vertical bar: give --delimiter \"tab\" or "
              "--delimiter \"|\"\n",
              faultIn("a\tb|c\n"));
}

TEST(CsvDelimiterTest, AFirstLineMayAnnounceIt)
{
    EXPECT_EQ(';', CsvDelimiter::announced("sep=;\r\na;b\r\n"));
    EXPECT_EQ('\t', CsvDelimiter::announced("\xEF\xBB\xBFsep=\t\na\tb\n"));
    for (const char* const pHead : { "", "sep=", "sep=;", "sep=;x\n", "sep=x\n", "a;b\nsep=;\n", "Sep\n" })
        EXPECT_EQ('\0', CsvDelimiter::announced(pHead)) << pHead;
}

TEST(CsvDelimiterTest, EachHasAName)
{
    EXPECT_STREQ("a comma", CsvDelimiter::nameOf(','));
    EXPECT_STREQ("a semicolon", CsvDelimiter::nameOf(';'));
    EXPECT_STREQ("a tab", CsvDelimiter::nameOf('\t'));
    EXPECT_STREQ("a vertical bar", CsvDelimiter::nameOf('|'));
}
}
