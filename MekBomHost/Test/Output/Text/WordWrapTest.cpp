#include "WordWrap.h"

#include "Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string wrapped(const std::string& text, int width)
{
    std::string lines;
    for (const std::string& line : WordWrap::wrap(text, width))
        lines += line + "|";
    return lines;
}

struct WrapCase
{
    const char* text;
    int width;
    const char* lines;
};

const WrapCase kWraps[] = {
    { "", 0, "|" },
    { "", 5, "|" },
    { "HEA200", 0, "HEA200|" },
    { "HEA200", 6, "HEA200|" },
    { "HEA200", 5, "HEA20|0|" },
    { "HEA200", 1, "H|E|A|2|0|0|" },
    { "Base plate, corner", 10, "Base|plate,|corner|" },
    { "Base plate, corner", 11, "Base plate,|corner|" },
    { "Base plate", 4, "Base|plat|e|" },
    { "a b c d", 3, "a b|c d|" },
    { " a", 1, " |a|" },
    { "one\ntwo\r\nthree\rfour", 0, "one|two|three|four|" },
    { "one\n\ntwo", 9, "one||two|" },
    { "one\n", 0, "one||" },
    { "a\tb", 0, "a b|" },
    { "a\x1B[1mb\x7F", 0, "a\xEF\xBF\xBD[1mb\xEF\xBF\xBD|" },
    { "Träger", 3, "Trä|ger|" },
    { "柱脚板", 4, "柱脚|板|" },
    { "柱脚", 3, "柱|脚|" },
    { "柱脚", 1, "柱|脚|" }, // wider than the column, each by itself
    { "e\xCC\x81"
      "e",
      1, "e\xCC\x81|e|" }, // an accent stays with its letter
};
}

TEST(WordWrapTest, TextsAreBrokenToTheWidth)
{
    for (const WrapCase& test : kWraps)
        EXPECT_EQ(test.lines, wrapped(test.text, test.width)) << test.text << " in " << test.width;
}

struct CutCase
{
    std::vector<std::string> lines;
    int width;
    const char* ellipsis;
    const char* text;
};

TEST(WordWrapTest, WhatTurnsOthersRoundIsReplaced)
{
    for (int codePoint = 0x2010; codePoint <= 0x2070; ++codePoint)
    {
        std::string character;
        Utf8::appendCodePoint(character, codePoint);
        const bool turns = (codePoint >= 0x202A && codePoint <= 0x202E) || (codePoint >= 0x2066 && codePoint <= 0x2069);
        EXPECT_EQ("1" + (turns ? "\xEF\xBF\xBD" : character) + "2", WordWrap::wrap("1" + character + "2", 0).front());
    }
}

TEST(WordWrapTest, WhatIsCutEndsInAnEllipsisWithinTheWidth)
{
    const CutCase cases[] = {
        { { "HEA200" }, 0, "...", "HEA200" },
        { { "HEA200" }, 6, "...", "HEA200" },
        { { "HEA200" }, 5, "...", "HE..." },
        { { "HEA200" }, 5, "…", "HEA2…" },
        { { "HEA200" }, 2, "...", ".." },
        { { "HEA200" }, 1, "…", "…" },
        { { "柱脚板" }, 6, "…", "柱脚板" },
        { { "柱脚板" }, 5, "…", "柱脚…" },
        { { "柱脚板" }, 4, "…", "柱…" },
        { { "one", "two" }, 0, "...", "one..." },
        { { "one", "two" }, 5, "...", "on..." },
        { { "", "two" }, 5, "...", "..." },
        { { "" }, 5, "...", "" },
    };
    for (const CutCase& cut : cases)
        EXPECT_EQ(cut.text, WordWrap::cut(cut.lines, cut.width, cut.ellipsis)) << cut.lines.front() << cut.width;
}

TEST(WordWrapTest, OnlyTextsOfOneLineThatAreKeptHaveAWidth)
{
    EXPECT_EQ(0, WordWrap::widthOfLine(""));
    EXPECT_EQ(6, WordWrap::widthOfLine("Träger"));
    EXPECT_EQ(4, WordWrap::widthOfLine("柱脚"));
    for (const char* const text : { "a\tb", "a\nb", "a\r\nb", "a\x7F", "\xC2\x80", "\xC2\x9F" })
        EXPECT_EQ(WordWrap::kNotOneLine, WordWrap::widthOfLine(text)) << text;
    EXPECT_EQ(1, WordWrap::widthOfLine("\xC2\xA0"));
}
}
