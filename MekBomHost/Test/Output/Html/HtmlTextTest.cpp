#include "HtmlText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace mekbom
{
namespace
{
std::string inPage(std::string_view text)
{
    std::string page;
    HtmlText::append(page, text);
    return page;
}
}

TEST(HtmlTextTest, OrdinaryTextsAreTakenAsTheyAre)
{
    for (const char* const text : { "", "HEA200", "L 50*5", "Träger 2°", "柱脚板", "a\tb\nc" })
        EXPECT_EQ(text, inPage(text));
}

TEST(HtmlTextTest, NothingEndsTheElementOrTheAttribute)
{
    EXPECT_EQ("&lt;/script&gt;&lt;b&gt;", inPage("</script><b>"));
    EXPECT_EQ("&lt;!--&amp;amp;", inPage("<!--&amp;"));
    EXPECT_EQ("&quot; onclick=&#39;x&#39;", inPage("\" onclick='x'"));
    EXPECT_EQ("7&#39; 6 1/2&quot;", inPage("7' 6 1/2\""));
}

TEST(HtmlTextTest, ControlCharactersReachNoBrowser)
{
    EXPECT_EQ("a\xEF\xBF\xBD[31m", inPage("a\x1B[31m"));
    EXPECT_EQ("\xEF\xBF\xBD", inPage(std::string_view("\0", 1)));
    EXPECT_EQ("\xEF\xBF\xBD", inPage("\x7F"));
    EXPECT_EQ("\xEF\xBF\xBD\xC2\xB0", inPage("\xC2\x9B\xC2\xB0")) << "of the two only the first controls anything";
}

TEST(HtmlTextTest, NothingOfATextMeansAnythingToAStyle)
{
    EXPECT_EQ("\"Length \\5b mm\\5d \"", HtmlText::inStyle("Length [mm]"));
    EXPECT_EQ("\"\\3c \\2f style\\3e \"", HtmlText::inStyle("</style>"));
    EXPECT_EQ("\"\\22 \\7d \\5c \\a \"", HtmlText::inStyle("\"}\\\n"));
    EXPECT_EQ("\"Träger\"", HtmlText::inStyle("Träger"));
    EXPECT_EQ("\"\"", HtmlText::inStyle(""));
}
}
