#include "CsvText.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string fieldOf(const std::string& text, char delimiter = ',')
{
    std::string record = "|";
    CsvText::append(record, text, delimiter);
    return record.substr(1);
}
}

TEST(CsvTextTest, PlainTextsStandAsTheyAre)
{
    for (const char* const text : { "", "HEA200", "PL10*120", "7' 6", "Träger", "a b", "12;5" })
        EXPECT_EQ(text, fieldOf(text));
}

TEST(CsvTextTest, WhatWouldEndAFieldStandsInQuotes)
{
    EXPECT_EQ("\"a,b\"", fieldOf("a,b"));
    EXPECT_EQ("\"7' 6\"\"\"", fieldOf("7' 6\""));
    EXPECT_EQ("\"\"\"\"", fieldOf("\""));
    EXPECT_EQ("\"a\nb\"", fieldOf("a\nb"));
    EXPECT_EQ("\"a\rb\"", fieldOf("a\rb"));
    EXPECT_EQ("\" a\"", fieldOf(" a"));
    EXPECT_EQ("\"a \"", fieldOf("a "));
}

TEST(CsvTextTest, TheDelimiterIsWhatIsAskedFor)
{
    EXPECT_EQ("a,b", fieldOf("a,b", ';'));
    EXPECT_EQ("\"a;b\"", fieldOf("a;b", ';'));
    EXPECT_EQ("\"a\tb\"", fieldOf("a\tb", '\t'));
}

TEST(CsvTextTest, WhatASpreadsheetWouldRunIsDefused)
{
    for (const char* const text : { "=1+1", "+49", "-P1", "@SUM(A1)", "\t=1", "\r=1", "=", "-7' 6\"" })
    {
        EXPECT_TRUE(CsvText::isFormula(text)) << text;
        EXPECT_EQ("'" + std::string(text), CsvText::defused(text));
    }
    for (const char* const text : { "", "P-1", "1=1", " =1", "'=1", "a@b" })
    {
        EXPECT_FALSE(CsvText::isFormula(text)) << text;
        EXPECT_EQ(text, CsvText::defused(text));
    }
}
}
