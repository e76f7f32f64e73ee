#include "AsciiText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace mekbom
{
TEST(AsciiTextTest, AsciiStaysAsItIs)
{
    std::string text;
    for (char c = ' '; c <= '~'; ++c)
        text += c;

    EXPECT_EQ(text, AsciiText::of(text));
    EXPECT_EQ("a\tb\r\nc", AsciiText::of("a\tb\r\nc"));
    EXPECT_EQ("", AsciiText::of(""));
}

TEST(AsciiTextTest, LettersAndSignsGetTheirUsualForms)
{
    EXPECT_EQ("Traeger, Stuetze, Stoesse, Fluegel, Ae", AsciiText::of("Träger, Stütze, Stöße, Flügel, Ä"));
    EXPECT_EQ("piece, acier, hoogte, coeur", AsciiText::of("pièce, acier, hoogte, cœur"));
    EXPECT_EQ("m2 m3 12deg30' 20x30 1/2 +-0.5", AsciiText::of("m² m³ 12°30' 20×30 ½ ±0.5"));
    EXPECT_EQ("O20 - 'a' EUR...", AsciiText::of("Ø20 – ‘a’ €…"));
    EXPECT_EQ("um", AsciiText::of("µm"));
}

TEST(AsciiTextTest, WhatHasNoFormIsAQuestionMark)
{
    EXPECT_EQ("?", AsciiText::of("柱"));
    EXPECT_EQ("a?b?", AsciiText::of("a\x1B"
                                    "b\x7F"));
    EXPECT_EQ("a?", AsciiText::of("a\xFF")) << "no UTF-8 at all";
}

TEST(AsciiTextTest, NothingElseThanAsciiIsEverWritten)
{
    for (int codePoint = 0x80; codePoint < 0x800; ++codePoint)
    {
        const std::string text = { static_cast<char>(0xC0 | (codePoint >> 6)),
                                   static_cast<char>(0x80 | (codePoint & 0x3F)) };
        const std::string ascii = AsciiText::of(text);
        EXPECT_TRUE(std::all_of(ascii.begin(), ascii.end(), [](char c) { return c >= ' ' && c <= '~'; })) << codePoint;
    }
}
}
