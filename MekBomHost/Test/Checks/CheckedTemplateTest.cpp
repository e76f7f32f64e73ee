#include "CheckedTemplate.h"

#include "TemplateReader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
const char* const kTwoGroups = R"({ "sections": [
    { "type": "kReportHeader", "children": [
        { "type": "kGroupHeader", "tuples": [ { "token": "%GroupBy:%A,%B" } ], "children": [
            { "type": "kGroupHeader", "tuples": [ { "token": "%GroupBy:%C" } ], "children": [
                { "type": "kDetails", "tuples": [ { "token": "%GroupBy:%D" } ] } ] } ] },
        { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%E" } ] },
        { "type": "kPageFooter", "tuples": [ { "token": "%F" } ] } ] },
    { "type": "kReportFooter" } ] })";
}

TEST(CheckedTemplateTest, LevelsAreThoseThatTheEngineGoesThrough)
{
    const ReportTemplate reportTemplate = TemplateReader::read("list.json", kTwoGroups);
    const CheckedTemplate list(reportTemplate);

    ASSERT_EQ(4u, list.levels().size());
    EXPECT_EQ("kReportFooter", typeName(*list.levels()[0].pFooter));
    EXPECT_EQ("kGroupFooter", typeName(*list.levels()[1].pFooter));
    EXPECT_EQ(nullptr, list.levels()[2].pFooter);
    EXPECT_EQ("kDetails", typeName(*list.deepest().pHeader));
}

TEST(CheckedTemplateTest, TuplesAreThoseOfSectionsThatAreEvaluated)
{
    const ReportTemplate reportTemplate = TemplateReader::read("list.json", kTwoGroups);
    const CheckedTemplate list(reportTemplate);

    std::string tokens;
    for (const CheckedTuple& tuple : list.tuples())
        tokens += std::to_string(tuple.level) + (tuple.isFooter ? "f " : "h ") + tuple.token + "\n";
    EXPECT_EQ("1h %GroupBy:%A,%B\n1f %SumBy:%E\n2h %GroupBy:%C\n3h %GroupBy:%D\n", tokens);
    EXPECT_EQ(3u, list.tuplesOf(TokenRequest::kGroup).size());
}

TEST(CheckedTemplateTest, GroupsAreToldApartByTheTokensOfAllLevelsButTheDeepest)
{
    const ReportTemplate reportTemplate = TemplateReader::read("list.json", kTwoGroups);
    const CheckedTemplate list(reportTemplate);

    EXPECT_TRUE(list.groupTokensDownTo(0).empty());
    EXPECT_EQ((std::vector<std::string>{ "%A", "%B" }), list.groupTokensDownTo(1));
    EXPECT_EQ((std::vector<std::string>{ "%A", "%B", "%C" }), list.groupTokensDownTo(3));
}

TEST(CheckedTemplateTest, EqualLinesMergeWhereNothingElseIsSaid)
{
    const auto merges = [](const std::string& keys, const std::string& details)
    {
        const ReportTemplate reportTemplate =
            TemplateReader::read("list.json", "{ " + keys + R"( "sections": [ { "type": "kReportHeader", "children": [
                { "type": "kDetails" )" + details +
                                                  " } ] } ] }");
        return CheckedTemplate(reportTemplate).mergesEqualLines();
    };

    EXPECT_TRUE(merges("", ""));
    EXPECT_TRUE(merges(R"("equalLines": "merge",)", ""));
    EXPECT_FALSE(merges(R"("equalLines": "count",)", ""));
    EXPECT_FALSE(merges(R"("equalLines": "keep",)", ""));
    EXPECT_FALSE(merges("", R"(, "summary": true)"));
}
}
