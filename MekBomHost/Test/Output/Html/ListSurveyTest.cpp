#include "ListSurvey.h"

#include "Support/EvaluatedList.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
const char* const kParts = "%Name,%Material,%Weight\n"
                           "HEA200,S355,10.25\n"
                           "IPE360,S235,2\n"
                           "IPE450,S355,100.5\n";
}

TEST(ListSurveyTest, LinesAndTotalsAreCounted)
{
    const EvaluatedList list(weightsByMaterial(), kParts);
    const ListSurvey survey(list.report());

    EXPECT_EQ(8U, survey.numLines());
    EXPECT_EQ(1U, survey.numFooters(0));
    EXPECT_EQ(2U, survey.numFooters(1));
    EXPECT_EQ(0U, survey.numFooters(2));
}

TEST(ListSurveyTest, AColumnIsAsWideAsItsWidestTextAndHasItsMostDecimals)
{
    const EvaluatedList list(details(R"({ "token": "%Name" }, { "token": "%Weight" })"),
                             "%Name,%Weight\n1.2345,7\n柱脚板鋼,10.25\n");
    const ListSurvey survey(list.report());

    EXPECT_EQ(8U, survey.column(0).width);
    EXPECT_EQ(0, survey.column(0).decimals) << "a name is no number";
    EXPECT_EQ(5U, survey.column(1).width);
    EXPECT_EQ(2, survey.column(1).decimals);
}

TEST(ListSurveyTest, NumbersWithBlanksAreNotPlain)
{
    const char* const columns = R"("columns": [ { "token": "%Price", "thousands": true } ])";
    const std::string prices = details(R"({ "token": "%Price" })", columns);

    EXPECT_TRUE(ListSurvey(EvaluatedList(prices, "%Price\n850\n").report()).column(0).areAllNumbersPlain);
    EXPECT_FALSE(ListSurvey(EvaluatedList(prices, "%Price\n850\n1693.5\n").report()).column(0).areAllNumbersPlain);
}

TEST(ListSurveyTest, APageHasTheLinesThatTheTemplateCallsSo)
{
    const EvaluatedList list(weightsByMaterial("Page"), kParts);
    const ListSurvey survey(list.report());

    ASSERT_EQ(1U, survey.pageLines().size());
    EXPECT_EQ("112.75", survey.pageLines()[0].texts.back().view());
    EXPECT_TRUE(survey.isOnEveryPage({ 0, false, true }));
    EXPECT_FALSE(survey.isOnEveryPage({ 1, false, true }));
    EXPECT_TRUE(ListSurvey(EvaluatedList(weightsByMaterial(), kParts).report()).pageLines().empty());
}

TEST(ListSurveyTest, ALineOfWhichThereAreSeveralIsOnNoPageOfItsOwn)
{
    std::string pages = weightsByMaterial();
    pages.replace(pages.find("kGroupHeader"), 12, "kPageHeader");
    const ListSurvey survey(EvaluatedList(pages, kParts).report());

    EXPECT_TRUE(survey.pageLines().empty());
    EXPECT_FALSE(survey.isOnEveryPage({ 1, true, false }));
}

TEST(ListSurveyTest, AListOfOneLineDoesNotRepeatIt)
{
    const char* const page = R"({ "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kPageHeader", "tuples": [ { "token": "%Name" } ] } ] } ] })";

    EXPECT_TRUE(ListSurvey(EvaluatedList(page, "%Name\nA\n").report()).pageLines().empty());
}
}
