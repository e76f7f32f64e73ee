#include "TextDirection.h"

#include "Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string appended(const std::string& text)
{
    std::string line = "B1  ";
    TextDirection::append(line, text);
    return line;
}

std::string utf8(int codePoint)
{
    std::string text;
    Utf8::appendCodePoint(text, codePoint);
    return text;
}
}

TEST(TextDirectionTest, WhatRunsFromTheRightIsKeptToItself)
{
    EXPECT_EQ("B1  \xE2\x81\xA8קורה 12\xE2\x81\xA9", appended("קורה 12"));
    EXPECT_EQ("B1  \xE2\x81\xA8HEA200 عارضة\xE2\x81\xA9", appended("HEA200 عارضة"));
}

TEST(TextDirectionTest, WhatRunsFromTheLeftIsAppendedAsItIs)
{
    for (const char* const text : { "", "HEA200", "Träger 12 m²", "鋼板", "Балка", "e\u0301" })
        EXPECT_EQ(std::string("B1  ") + text, appended(text));
}

TEST(TextDirectionTest, ScriptsFromTheRightAreKnown)
{
    // A letter each of Hebrew, Arabic, Syriac, Thaana, N'Ko, Arabic as it was encoded once, Phoenician and Adlam; and
    // the mark that only has a direction.
    for (const int codePoint : { 0x05D0, 0x0627, 0x0710, 0x0780, 0x07CA, 0xFB50, 0xFE8D, 0x10900, 0x1E900, 0x200F })
        EXPECT_TRUE(TextDirection::hasRightToLeft(utf8(codePoint))) << codePoint;
    for (const int codePoint : { 0x058F, 0x0905, 0x200E, 0x4E00, 0xFEFF, 0x1F529 })
        EXPECT_FALSE(TextDirection::hasRightToLeft(utf8(codePoint))) << codePoint;
}

TEST(TextDirectionTest, TheCharactersAroundItTakeNoColumn)
{
    EXPECT_EQ(Utf8::displayWidth("קורה"), Utf8::displayWidth(appended("קורה")) - 4);
}
}
