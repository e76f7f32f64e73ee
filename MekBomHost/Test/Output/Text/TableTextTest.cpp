#include "TableText.h"

#include "Utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
using Lines = std::vector<std::string>;

OutputChoices choicesOf(bool cuts, bool isAscii)
{
    OutputChoices choices;
    choices.cutsTexts = cuts;
    choices.isAscii = isAscii;
    return choices;
}

ShownText shown(const std::string& text)
{
    const bool isPlain = std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
    return { text.data(), static_cast<std::uint32_t>(text.size()), isPlain };
}
}

TEST(TableTextTest, TextsAreWrappedUnlessTheyAreToBeCut)
{
    EXPECT_EQ((Lines{ "Träger", "links" }), TableText(choicesOf(false, false)).fitted("Träger links", 8));
    EXPECT_EQ((Lines{ "Träger …" }), TableText(choicesOf(true, false)).fitted("Träger links", 8));
    EXPECT_EQ((Lines{ "one…" }), TableText(choicesOf(true, false)).fitted("one\ntwo", 0));
}

TEST(TableTextTest, HeadingsAreNeverCut)
{
    EXPECT_EQ((Lines{ "Träger", "links" }), TableText(choicesOf(true, false)).wrapped("Träger links", 8));
}

TEST(TableTextTest, TheWidthIsThatOfWhatIsWritten)
{
    EXPECT_EQ((Lines{ "Traeger" }), TableText(choicesOf(false, true)).fitted("Träger", 7));
    EXPECT_EQ((Lines{ "Traege", "r" }), TableText(choicesOf(false, true)).fitted("Träger", 6));
    EXPECT_EQ((Lines{ "Tra..." }), TableText(choicesOf(true, true)).fitted("Träger", 6));
    EXPECT_EQ((Lines{ "m2" }), TableText(choicesOf(false, true)).wrapped("m²", 0));
}

TEST(TableTextTest, TextsOfAnyLanguageAreTakenAsTheyAre)
{
    const TableText tableText(choicesOf(false, false));

    EXPECT_EQ(6, tableText.widthAsIs(shown("Träger"), 6));
    EXPECT_EQ(6, tableText.widthAsIs(shown("柱脚板"), 0));
    EXPECT_EQ(TableText::kNotAsIs, tableText.widthAsIs(shown("Träger"), 5));
    EXPECT_EQ(TableText::kNotAsIs, tableText.widthAsIs(shown("a\tb"), 0));
    EXPECT_EQ(TableText::kNotAsIs, TableText(choicesOf(false, true)).widthAsIs(shown("Träger"), 0));
}

// Characters of one to four bytes, wide, combining and invisible ones, and all that is replaced or ends a line.
TEST(TableTextTest, WhatIsTakenAsItIsIsWhatItWouldBeFittedTo)
{
    const char* const pieces[] = { "",  "a",  "ä",    "柱",   "\xF0\x9F\x94\xA9", "e\xCC\x81",
                                   " ", "\t", "\r\n", "\x7F", "\xC2\x85" };
    for (const bool cuts : { false, true })
        for (const bool isAscii : { false, true })
            for (const std::string first : pieces)
                for (const std::string second : pieces)
                    for (const std::string third : pieces)
                        for (int limit = 0; limit < 6; ++limit)
                        {
                            const TableText tableText(choicesOf(cuts, isAscii));
                            const std::string text = std::string(first).append(second).append(third);
                            const int width = Utf8::displayWidth(text);
                            const bool isKept = tableText.fitted(text, limit) == Lines{ text };
                            const bool fits = limit == 0 || width <= limit;
                            const int expected = isKept && fits ? width : TableText::kNotAsIs;
                            EXPECT_EQ(expected, tableText.widthAsIs(shown(text), limit)) << text << limit;
                        }
}
}
