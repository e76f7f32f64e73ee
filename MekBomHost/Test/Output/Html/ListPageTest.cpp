#include "ListPage.h"

#include "Support/EvaluatedList.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace mekbom
{
namespace
{
std::string pageOf(const std::string& templateText, const std::string& partsText,
                   std::optional<ePaper> paper = std::nullopt)
{
    const EvaluatedList list(templateText, partsText);
    StringSink sink;
    ListPage(list.report(), sink, paper).write();
    EXPECT_TRUE(sink.isFinished);
    return sink.text;
}

bool holds(const std::string& page, const std::string& text)
{
    return page.find(text) != std::string::npos;
}

const char* const kParts = "%Name,%Material,%Weight\nA,S235,1\nB,S355,2\n";
}

TEST(ListPageTest, TitleListBarsAndFootFollowEachOther)
{
    const std::string page = pageOf(weightsByMaterial(), kParts);

    std::size_t at = 0;
    for (const char* const part :
         { "<!DOCTYPE html>", "<title>Weights</title>", "<style>", "</style>", "<h1>Weights</h1>",
           "<div class=\"tools\"", "<option value=\"2\">in Weight [kg]", "<a href=\"#weights\">",
           "<table class=\"list\"", "<h2 id=\"weights\">", "<p>2 rows read, 2 listed</p>", "<script>", "</script>" })
    {
        at = page.find(part, at);
        ASSERT_NE(std::string::npos, at) << part;
    }
}

TEST(ListPageTest, APageLoadsNothing)
{
    const std::string page = pageOf(weightsByMaterial(), kParts);

    EXPECT_TRUE(holds(page, "default-src 'none'"));
    for (const char* const loading : { "http:", "https:", "src=", "url(", "@import", "<link", "fetch(", "import " })
        EXPECT_FALSE(holds(page, loading)) << loading;
}

TEST(ListPageTest, ATitleEndsNothing)
{
    const std::string page =
        pageOf(details(R"({ "token": "%Name" })", R"("title": "</title></script></style>\"}<h1>")"), "%Name\nA\n");

    EXPECT_TRUE(holds(page, "<title>&lt;/title&gt;&lt;/script&gt;&lt;/style&gt;&quot;}&lt;h1&gt;</title>"));
    EXPECT_TRUE(holds(page, "@page{@top-left{content:\"\\3c \\2f title\\3e \\3c \\2f script\\3e "));
    EXPECT_EQ(page.find("</script>"), page.rfind("</script>"));
    EXPECT_EQ(page.find("</style>"), page.rfind("</style>"));
}

TEST(ListPageTest, AListWithoutTitleHasNoHeading)
{
    const std::string page = pageOf(details(R"({ "token": "%Name" })"), "%Name\nA\n");

    EXPECT_TRUE(holds(page, "<title>List</title>"));
    EXPECT_FALSE(holds(page, "<h1>"));
}

TEST(ListPageTest, WhatIsLeftOutIsSaidOnTop)
{
    const std::string page =
        pageOf(details(R"({ "token": "%Name" })", R"("queryFilter": "%Weight < 5")"), "%Name,%Weight\nA,1\nB,9\n");

    EXPECT_TRUE(holds(page, "<p>Rows where %Weight &lt; 5</p>"));
    EXPECT_TRUE(holds(page, "<p>2 rows read, 1 filtered out by &quot;%Weight &lt; 5&quot;, 1 listed</p>"));
}

TEST(ListPageTest, AListThatShowsNothingHasNoTable)
{
    const std::string page = pageOf(R"({ "title": "Nothing", "sections": [ { "type": "kDetails" } ] })", "%Name\nA\n");

    EXPECT_TRUE(holds(page, "<h1>Nothing</h1>"));
    EXPECT_FALSE(holds(page, "<table"));
}

TEST(ListPageTest, TheSameReportIsTheSamePage)
{
    EXPECT_EQ(pageOf(weightsByMaterial(), kParts), pageOf(weightsByMaterial(), kParts));
}

// A browser takes the last size there is, so that there must be one alone.
TEST(ListPageTest, SheetsHaveTheChosenPaperAndAreHeldAcrossForWideLists)
{
    const auto pageWith = [](const std::string& label, std::optional<ePaper> paper)
    {
        return pageOf(details(R"({ "token": "%Name" }, { "token": "%Weight" })",
                              R"("columns": [ { "token": "%Name", "label": ")" + label + "\" } ]"),
                      "%Name\nA\n", paper);
    };
    const std::string wide(110, 'x');

    EXPECT_FALSE(holds(pageWith("Name", std::nullopt), "@page{size:"));
    EXPECT_TRUE(holds(pageWith("Name", kA4Paper), "@page{size:A4}"));
    EXPECT_TRUE(holds(pageWith("Name", kLetterPaper), "@page{size:letter}"));
    EXPECT_TRUE(holds(pageWith(wide, std::nullopt), "@page{size:landscape}"));
    EXPECT_TRUE(holds(pageWith(wide, kLetterPaper), "@page{size:letter landscape}"));
}
}
