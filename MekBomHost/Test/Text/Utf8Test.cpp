#include "Utf8.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

namespace mekbom
{
namespace
{
struct InvalidCase
{
    std::string bytes;
    std::size_t firstInvalid;
};

const InvalidCase kInvalid[] = {
    { "", 0 }, // nothing is valid text
    { "HEA200", 6 },
    { "\xC3\xA9", 2 },         // é
    { "\xE6\x9F\xB1", 3 },     // 柱
    { "\xF0\x9F\x94\xA9", 4 }, // a nut and bolt
    { "ab\xE9"
      "cd",
      2 },                     // Latin-1
    { "\xC3", 0 },             // ends within a character
    { "a\x80", 1 },            // a continuation byte alone
    { "\xC0\xAF", 0 },         // overlong
    { "\xED\xA0\x80", 0 },     // a surrogate
    { "\xF4\x90\x80\x80", 0 }, // past U+10FFFF
    { "\xC3\xA9\xFF", 2 },
};
}

TEST(Utf8Test, OneByteOfEachCharacterStartsIt)
{
    std::string starts;
    for (const char byte : std::string("aT\xC3\xA4\xE6\xA2\x81\xF0\x9F\x94\xA9"))
        starts += Utf8::startsCharacter(byte) ? '1' : '0';

    EXPECT_EQ("11101001000", starts);
}

TEST(Utf8Test, InvalidBytesAreFound)
{
    for (const InvalidCase& test : kInvalid)
        EXPECT_EQ(test.firstInvalid, Utf8::findInvalid(test.bytes)) << test.bytes;
}

TEST(Utf8Test, InvalidBytesAreFoundWhereverTheyStand)
{
    for (const std::string piece : { "a", "ä", "柱" })
        for (std::size_t number = 0; number < 20; ++number)
        {
            std::string text;
            for (std::size_t i = 0; i < number; ++i)
                text += piece;

            EXPECT_EQ(text.size(), Utf8::findInvalid(text)) << text;
            EXPECT_EQ(text.size(), Utf8::findInvalid(std::string(text).append("\xFF").append(text))) << text;
        }
}

TEST(Utf8Test, TextsComeBackAsTheyWere)
{
    for (const std::string text : { "", "S355J2", "Träger", "柱脚", "🔩 M16", "\xEF\xBF\xBF" })
        EXPECT_EQ(text, Utf8::toBytes(Utf8::toWide(text)));
}

TEST(Utf8Test, WideTextHoldsCodePoints)
{
    EXPECT_EQ(VorString(L"Tr\u00E4ger \u67F1"), Utf8::toWide("Träger 柱"));
    EXPECT_EQ(VorString(L"\U0001F529"), Utf8::toWide("🔩"));
}

TEST(Utf8Test, WhatIsNoCharacterIsReplaced)
{
    const wchar_t lone[] = { L'a', static_cast<wchar_t>(0xD800), L'b', 0 };

    EXPECT_EQ(VorString(L"a\uFFFD"), Utf8::toWide("a\xFF"));
    EXPECT_EQ("a\xEF\xBF\xBD"
              "b",
              Utf8::toBytes(VorString(lone)));
}

TEST(Utf8Test, CharactersAreCountedNotBytes)
{
    EXPECT_EQ(0u, Utf8::countCharacters(""));
    EXPECT_EQ(6u, Utf8::countCharacters("Träger"));
    EXPECT_EQ(2u, Utf8::countCharacters("柱脚"));
}

TEST(Utf8Test, WidthIsWhatATerminalShows)
{
    EXPECT_EQ(6, Utf8::displayWidth("Träger"));
    EXPECT_EQ(4, Utf8::displayWidth("柱脚"));
    EXPECT_EQ(1, Utf8::displayWidth("e\xCC\x81")); // e with a combining accent
    EXPECT_EQ(4, Utf8::displayWidth("120°"));
}

TEST(Utf8Test, TheLocaleDoesNotMatter)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");

    EXPECT_EQ("Träger", Utf8::toBytes(Utf8::toWide("Träger")));

    std::setlocale(LC_ALL, before.c_str());
}

TEST(Utf8Test, AByteOrderMarkIsTakenOffTheFront)
{
    EXPECT_EQ("Name", Utf8::withoutByteOrderMark("\xEF\xBB\xBF"
                                                 "Name"));
    EXPECT_EQ("Name", Utf8::withoutByteOrderMark("Name"));
    EXPECT_EQ("\xEF\xBB", Utf8::withoutByteOrderMark("\xEF\xBB"));
}
}
