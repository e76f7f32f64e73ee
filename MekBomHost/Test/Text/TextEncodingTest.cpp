#include "TextEncoding.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
using namespace TextEncoding;

TEST(TextEncodingTest, AByteOrderMarkSaysIt)
{
    EXPECT_EQ(kUtf16LittleEndian, recognise(std::string_view("\xFF\xFEN\0", 4), true));
    EXPECT_EQ(kUtf16BigEndian, recognise(std::string_view("\xFE\xFF\0N", 4), true));
    EXPECT_EQ(kUtf8, recognise("\xEF\xBB\xBFName\n", true));
}

TEST(TextEncodingTest, AsciiAndUtf8AreUtf8)
{
    EXPECT_EQ(kUtf8, recognise("", true));
    EXPECT_EQ(kUtf8, recognise("Name\nHEA200\n", true));
    EXPECT_EQ(kUtf8, recognise("Tr\xC3\xA4ger\n", true));
}

TEST(TextEncodingTest, BytesOfWhichNoneIsUtf8AreWindows1252)
{
    EXPECT_EQ(kWindows1252, recognise("L\xE4nge;Menge\n", true));
    EXPECT_EQ(kWindows1252, recognise("Gr\xF6\xDF"
                                      "e\n\x80",
                                      true));
}

// Each of these is broken: a guess would make other characters of some.
TEST(TextEncodingTest, WhatIsPartlyUtf8IsLeftToWhoReadsIt)
{
    EXPECT_EQ(kUtf8, recognise("Tr\xC3\xA4ger\nTr\xE4ger\n", true));
    EXPECT_EQ(kUtf8, recognise("Tr\xE4ger\nTr\xC3\xA4ger\n", true));
    EXPECT_EQ(kUtf8, recognise("Tr\xE4ger\n\x81\n", true));                    // no character in either
    EXPECT_EQ(kUtf8, recognise(std::string_view("Tr\xE4ger\n\0\n", 9), true)); // no text at all
}

TEST(TextEncodingTest, ACharacterCutAtTheEndOfTheHeadIsNoFault)
{
    for (const char* const pCut : { "Name\nTr\xC3", "Name\n\xE2\x80", "Name\n\xF0\x9F\x8E" })
    {
        EXPECT_EQ(kUtf8, recognise(pCut, false));
        EXPECT_EQ(kWindows1252, recognise(std::string(pCut) + "xyz", false));
    }
    EXPECT_EQ(kWindows1252, recognise("Name\nTr\xC3", true));
}

TEST(TextEncodingTest, BytesOfWindows1252StandForTheirCharacters)
{
    EXPECT_EQ('A', codePointOfWindows1252('A'));
    EXPECT_EQ(0x20AC, codePointOfWindows1252('\x80'));
    EXPECT_EQ(0x2019, codePointOfWindows1252('\x92'));
    EXPECT_EQ(0x178, codePointOfWindows1252('\x9F'));
    EXPECT_EQ(0xA0, codePointOfWindows1252('\xA0'));
    EXPECT_EQ(0xFF, codePointOfWindows1252('\xFF'));
    for (const char byte : { '\x81', '\x8D', '\x8F', '\x90', '\x9D' })
        EXPECT_EQ(0, codePointOfWindows1252(byte));
}

TEST(TextEncodingTest, EachHasAName)
{
    for (const auto& [pName, encoding] : all())
        EXPECT_STREQ(pName, nameOf(encoding));
    EXPECT_STREQ("windows-1252", nameOf(kWindows1252));
}
}
