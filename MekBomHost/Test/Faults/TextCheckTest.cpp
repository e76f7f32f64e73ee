#include "TextCheck.h"

#include "Fault.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
std::string faultIn(const std::string& bytes, int firstLine = 1)
{
    return faultOf([&] { requireText(bytes, "parts.csv", firstLine); });
}
}

TEST(TextCheckTest, TextIsLetThrough)
{
    EXPECT_EQ("", faultIn(""));
    EXPECT_EQ("", faultIn("a\r\nTr\xC3\xA4ger\t\x7F\n"));
}

TEST(TextCheckTest, TheFirstByteThatIsNoneIsNamedWithItsPlace)
{
    EXPECT_EQ("3 parts.csv:1:1: found byte 0xFF, expected text in UTF-8\n", faultIn("\xFF\xFE"
                                                                                    "a"));
    EXPECT_EQ("3 parts.csv:2:4: found byte 0xE9, expected text in UTF-8\n", faultIn("a,b\nTr\xC3\xA4\xE9,2\n"));
    EXPECT_EQ("3 parts.csv:3:2: found a zero byte, expected text\n", faultIn(std::string("a\nb\nc\0d\xFF\n", 9)));
    EXPECT_EQ("3 parts.csv:1:2: found byte 0xFF, expected text in UTF-8\n", faultIn(std::string("a\xFF\0", 3)));
}

TEST(TextCheckTest, LinesOfAnyKindAreCountedFromTheFirst)
{
    EXPECT_EQ("3 parts.csv:5:2: found byte 0xFF, expected text in UTF-8\n", faultIn("a\rb\r\nc\n\nd\xFF"));
    EXPECT_EQ("3 parts.csv:18:1: found byte 0xFF, expected text in UTF-8\n", faultIn("a\n\xFF", 17));
}

TEST(TextCheckTest, TheFindingEndsBehindTheByte)
{
    try
    {
        requireText("a\nb\xFF", "parts.csv");
        FAIL();
    }
    catch (const Fault& fault)
    {
        const Finding& finding = fault.findings().front();
        EXPECT_EQ("MB902", finding.code);
        EXPECT_EQ(2, finding.end.line);
        EXPECT_EQ(3, finding.end.column);
    }
}
}
