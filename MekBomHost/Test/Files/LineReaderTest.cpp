#include "LineReader.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
// All lines, each followed by '|', control characters readable.
std::string linesOf(const std::string& text, std::size_t blockSize)
{
    TextSource source(text, blockSize);
    LineReader reader(source);
    std::string lines;
    for (std::string_view line; reader.next(line); lines += '|')
        for (const char c : line)
            lines += c == '\n' ? "\\n" : c == '\r' ? "\\r" : std::string(1, c);
    return lines;
}

struct LineCase
{
    const char* text;
    const char* lines;
};

const LineCase kLines[] = {
    { "", "" },
    { "a", "a|" },
    { "a\n", "a\\n|" },
    { "a\nb", "a\\n|b|" },
    { "a\r\nb\r\n", "a\\r\\n|b\\r\\n|" },
    { "a\rb\r", "a\\r|b\\r|" },
    { "\n\r\n\r", "\\n|\\r\\n|\\r|" },
    { "\r\r\n\n", "\\r|\\r\\n|\\n|" },
    { "\xEF\xBB\xBF"
      "a\nb\n",
      "a\\n|b\\n|" }, // byte order mark
    { "\xEF\xBB\xBF", "" },
    { "a\n\xEF\xBB\xBF"
      "b",
      "a\\n|\xEF\xBB\xBF"
      "b|" }, // only in front it is a mark
};

std::string faultIn(const std::string& text)
{
    return faultOf([&text] { linesOf(text, 1); });
}
}

TEST(LineReaderTest, LinesAreTheSameWhereverBlocksEnd)
{
    for (const LineCase& test : kLines)
        for (std::size_t blockSize = 1; blockSize < 8; ++blockSize)
            EXPECT_EQ(test.lines, linesOf(test.text, blockSize)) << "blocks of " << blockSize;
}

TEST(LineReaderTest, LinesAreCountedFromOne)
{
    TextSource source("a\r\nb\rc\n");
    LineReader reader(source);
    std::string_view line;

    EXPECT_EQ(0, reader.lineNumber());
    while (reader.next(line))
    {
    }

    EXPECT_EQ(3, reader.lineNumber());
}

TEST(LineReaderTest, LinesLongerThanItsBufferAreRead)
{
    const std::string longLine(3'000'000, 'x');

    EXPECT_EQ(longLine + "\\n|y|", linesOf(longLine + "\ny", 1 << 16));
}

TEST(LineReaderTest, BytesThatAreNoTextAreNamedWithTheirPlace)
{
    EXPECT_EQ("3 parts.csv:2:4: found byte 0xE9, expected text in UTF-8\n", faultIn("a,b\nTr\xC3\xA4\xE9,2\n"));
    EXPECT_EQ("3 parts.csv:1:1: found byte 0xFF, expected text in UTF-8\n", faultIn("\xFF\xFE"
                                                                                    "a"));
    EXPECT_EQ("3 parts.csv:3:2: found a zero byte, expected text\n", faultIn(std::string("a\nb\nc\0d\n", 8)));
}
}
