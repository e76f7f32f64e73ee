#include "InputWords.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(InputWordsTest, EveryWordStandsForSomethingElse)
{
    EXPECT_EQ(';', *WordChoices::find(InputWords::delimiters(), ";"));
    EXPECT_EQ('\t', *WordChoices::find(InputWords::delimiters(), "tab"));
    EXPECT_EQ(NumberNotation::kComma, *WordChoices::find(InputWords::decimalSigns(), ","));
    EXPECT_EQ(TextEncoding::kUtf16BigEndian, *WordChoices::find(InputWords::encodings(), "utf-16be"));
}

TEST(InputWordsTest, AHeadingIsMappedToATokenOfRows)
{
    const HeadingMapping mapping = InputWords::mappingOf("Cost code", "UserAttr1");

    EXPECT_EQ("Cost code", mapping.heading);
    EXPECT_EQ("%UserAttr1", mapping.token);
    EXPECT_TRUE(mapping.mustBeThere);
    EXPECT_EQ("2 --map Cost=%Formula:%A: found \"%Formula:%A\", expected a token of a row such as %UserAttr1\n",
              faultOf([] { InputWords::mappingOf("Cost", "%Formula:%A"); }));
}
}
