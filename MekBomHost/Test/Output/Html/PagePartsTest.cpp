#include "PageParts.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string sourceOf(const std::string& name)
{
    return readFile(std::string(MEK_TEST_DIR) + "/../Src/Output/Html/" + name);
}
}

TEST(PagePartsTest, TheBuildTakesStyleAndScriptAsTheyAre)
{
    EXPECT_EQ(sourceOf("list.css"), PageParts::kStyle);
    EXPECT_EQ(sourceOf("list.js"), PageParts::kScript);
}

TEST(PagePartsTest, NeitherEndsItsElement)
{
    EXPECT_EQ(std::string::npos, PageParts::kStyle.find("</"));
    EXPECT_EQ(std::string::npos, PageParts::kScript.find("</"));
    EXPECT_EQ(std::string::npos, PageParts::kScript.find("<!--"));
}
}
