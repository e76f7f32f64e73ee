#include "SheetText.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string inCell(const std::string& text)
{
    std::string buffer = "what was there before";
    return SheetText::inCell(text, buffer);
}
}

TEST(SheetTextTest, MostTextsStayAsTheyAre)
{
    for (const char* const text : { "", "HEA200", "0417", "=1+1", "http://parts.test", " a ", "Träger", "鋼", "a\nb",
                                    "_x", "_xyz_", "_x004G_", "_x0041", "_X0041_", "x_x004_" })
        EXPECT_EQ(text, inCell(text));
}

TEST(SheetTextTest, AnEscapeThatIsMeantIsEscaped)
{
    EXPECT_EQ("_x005F_x0041_", inCell("_x0041_"));
    EXPECT_EQ("a_x005F_x00e4_b_x005F_xABCD_", inCell("a_x00e4_b_xABCD_"));
    EXPECT_EQ("_x005F_x0041_x005F_x0042_", inCell("_x0041_x0042_"));
    EXPECT_EQ("_x005F_x005F_", inCell("_x005F_"));
    EXPECT_EQ("\xC3\xA4_x005F_x0041_", inCell("\xC3\xA4_x0041_"));
}

TEST(SheetTextTest, WhatNoFileCanHoldIsReplaced)
{
    EXPECT_EQ("a\xEF\xBF\xBD[31m", inCell("a\x1B[31m"));
    EXPECT_EQ("a\xEF\xBF\xBD"
              "b",
              inCell(std::string("a\0b", 3)));
    EXPECT_EQ("\xEF\xBF\xBD", inCell("\xEF\xBF\xBE"));
    EXPECT_EQ("\xEF\xBF\xBD", inCell("\xEF\xBF\xBF"));
    EXPECT_EQ("\xEF\xBF\xBD", inCell("\xFF"));
    EXPECT_EQ("a b", inCell("a\tb"));
}

TEST(SheetTextTest, LinesAreDividedByLineFeeds)
{
    EXPECT_EQ("a\nb\nc\n", inCell("a\r\nb\rc\n"));
    EXPECT_EQ("\na", inCell("\na"));
}

TEST(SheetTextTest, LengthsAreCountedInUtf16)
{
    EXPECT_EQ(0U, SheetText::length(""));
    EXPECT_EQ(6U, SheetText::length("Tr\xC3\xA4ger"));
    EXPECT_EQ(2U, SheetText::length("\xF0\x9F\x94\xA9"));
}

TEST(SheetTextTest, ATitleBecomesTheNameOfASheet)
{
    EXPECT_EQ("Cutting list", SheetText::sheetName("Cutting list", 1));
    EXPECT_EQ("Cutting list 2", SheetText::sheetName("Cutting list", 2));
    EXPECT_EQ("Beams 3 4 cut", SheetText::sheetName("Beams [3/4]: cut?", 1));
    EXPECT_EQ("Bob's", SheetText::sheetName("'Bob's'", 1));
    EXPECT_EQ("a b", SheetText::sheetName(" a\n\n b ", 1));
}

TEST(SheetTextTest, AListWithoutAUsableTitleIsCalledList)
{
    for (const char* const title : { "", " ", "[]", "'", "About", "ABOUT", "history" })
        EXPECT_EQ("List", SheetText::sheetName(title, 1)) << title;
    EXPECT_EQ("List 12", SheetText::sheetName("", 12));
}

TEST(SheetTextTest, NamesOfSheetsAreCut)
{
    EXPECT_EQ(std::string(31, 'x'), SheetText::sheetName(std::string(40, 'x'), 1));
    EXPECT_EQ(std::string(29, 'x') + " 2", SheetText::sheetName(std::string(40, 'x'), 2));
    EXPECT_EQ(std::string(30, 'x'), SheetText::sheetName(std::string(30, 'x') + " y", 1));
    EXPECT_EQ(std::string(30, 'x'), SheetText::sheetName(std::string(30, 'x') + "\xF0\x9F\x94\xA9", 1));
}

TEST(SheetTextTest, TextsOfPagesAreInOneLine)
{
    EXPECT_EQ("Smith & Sons", SheetText::inOneLine("Smith\n& Sons", 100));
    EXPECT_EQ("Smith", SheetText::inOneLine("Smith & Sons", 5));
    EXPECT_EQ("Smith && Sons", SheetText::inPrint("Smith & Sons", 100));
    EXPECT_EQ("&&P", SheetText::inPrint("&P", 100));
}
}
