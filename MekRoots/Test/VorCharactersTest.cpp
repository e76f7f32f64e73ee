#include "VorCharacters.h"

#include <gtest/gtest.h>

#include <cwctype>
#include <string>

namespace
{
// The characters of ASCII for which `is` holds, in order.
template <class Is>
std::wstring charactersThatAre(Is is)
{
    std::wstring characters;
    for (wchar_t c = 0; c < 128; ++c)
        if (is(c))
            characters += c;
    return characters;
}
}

TEST(VorCharactersTest, KindsHoldWhatTheCLocaleHolds)
{
    for (wchar_t c = 0; c < 128; ++c)
    {
        const auto character = static_cast<std::wint_t>(c);

        EXPECT_EQ(std::iswdigit(character) != 0, VorCharacters::isDigit(c)) << character;
        EXPECT_EQ(std::iswspace(character) != 0, VorCharacters::isSpace(c)) << character;
        EXPECT_EQ(std::iswblank(character) != 0, VorCharacters::isBlank(c)) << character;
        EXPECT_EQ(std::iswalpha(character) != 0, VorCharacters::isLetter(c)) << character;
        EXPECT_EQ(std::towlower(character), static_cast<std::wint_t>(VorCharacters::toLower(c))) << character;
    }
}

TEST(VorCharactersTest, SpacesAreSixAndBlanksTwoOfThem)
{
    EXPECT_EQ(L"\t\n\v\f\r ", charactersThatAre(VorCharacters::isSpace<wchar_t>));
    EXPECT_EQ(L"\t ", charactersThatAre(VorCharacters::isBlank<wchar_t>));
}

TEST(VorCharactersTest, BytesAreTakenAsWideCharactersAre)
{
    for (char c = 0; c != 127; ++c)
    {
        const auto wide = static_cast<wchar_t>(c);

        EXPECT_EQ(VorCharacters::isDigit(wide), VorCharacters::isDigit(c));
        EXPECT_EQ(VorCharacters::isSpace(wide), VorCharacters::isSpace(c));
        EXPECT_EQ(VorCharacters::isBlank(wide), VorCharacters::isBlank(c));
        EXPECT_EQ(VorCharacters::isLetter(wide), VorCharacters::isLetter(c));
        EXPECT_EQ(VorCharacters::toLower(wide), static_cast<wchar_t>(VorCharacters::toLower(c)));
    }
}

TEST(VorCharactersTest, CharactersBeyondAsciiAreNothing)
{
    for (const wchar_t c : { L'\u0085', L'\u00A0', L'\u00C4', L'\u0660', L'\u2003' })
    {
        EXPECT_FALSE(VorCharacters::isDigit(c));
        EXPECT_FALSE(VorCharacters::isSpace(c));
        EXPECT_FALSE(VorCharacters::isLetter(c));
        EXPECT_EQ(c, VorCharacters::toLower(c));
    }
    EXPECT_FALSE(VorCharacters::isSpace('\xA0'));
    EXPECT_FALSE(VorCharacters::isLetter('\xC4'));
}

TEST(VorCharactersTest, TrimmingTakesOnlyTheCharactersNamed)
{
    EXPECT_EQ(L"a = b", VorCharacters::trimmed(L" \ta = b \r", L" \t\r"));
    EXPECT_EQ("\ta\t", VorCharacters::trimmed("  \ta\t  ", " "));
    EXPECT_EQ("a", VorCharacters::trimmed("a", " "));
    EXPECT_EQ(" a ", VorCharacters::trimmed(" a ", ""));
}

TEST(VorCharactersTest, TextsOfNothingElseAreTrimmedToNothing)
{
    EXPECT_EQ("", VorCharacters::trimmed("", " \t"));
    EXPECT_EQ("", VorCharacters::trimmed(" \t ", " \t"));
    EXPECT_EQ(L"", VorCharacters::trimmed(L"  ", L" "));
}
