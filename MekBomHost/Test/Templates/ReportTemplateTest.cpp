#include "ReportTemplate.h"

#include "TemplateReader.h"
#include "Utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// A details section with these members.
ReportTemplate templateOf(const std::string& members, const std::string& columns = "")
{
    return TemplateReader::read("list.json",
                                "{ " + columns + "\"sections\": [ { \"type\": \"kDetails\", " + members + " } ] }");
}

// The columns of the section's tuples: "%Name,%Weight".
std::string columnsOf(const ReportTemplate& reportTemplate)
{
    const VorBomItemBase& section = *reportTemplate.pTemplate->child();
    std::string columns;
    for (int i = 0; i < section.getData().length(); ++i)
        columns += (i == 0 ? "" : ",") + Utf8::toBytes(reportTemplate.columnTokenOf(section, i));
    return columns;
}

bool hasLine(const std::string& members)
{
    const ReportTemplate reportTemplate = templateOf(members);
    return reportTemplate.hasLine(*reportTemplate.pTemplate->child());
}
}

TEST(ReportTemplateTest, ATupleStandsInTheColumnOfItsToken)
{
    EXPECT_EQ("%Name,%Formula:%Length/2",
              columnsOf(templateOf(R"("tuples": [ { "token": "%Name" }, { "token": "%Formula:%Length/2" } ])")));
}

TEST(ReportTemplateTest, ASumStandsInTheColumnOfWhatItSums)
{
    const char* const sum = R"("tuples": [ { "token": "%SumBy:%Weight" } ])";

    EXPECT_EQ("%Weight", columnsOf(templateOf(sum)));
    EXPECT_EQ("%SumBy:%Weight", columnsOf(templateOf(sum, R"("columns": [ { "token": "%SumBy:%Weight" } ], )")));
}

TEST(ReportTemplateTest, TheFileMayNameAnotherColumn)
{
    EXPECT_EQ("%Pieces", columnsOf(templateOf(R"("tuples": [ { "token": "%Quantity", "column": "%Pieces" } ])")));
}

TEST(ReportTemplateTest, WhatSteersTheEvaluationHasNoColumn)
{
    const ReportTemplate reportTemplate = templateOf(
        R"("tuples": [ { "token": "%GroupBy:%Name", "column": "%Name" }, { "token": "%SortAscBy:%Name" }, { "token": "%Name" } ])");
    const VorBomItemBase& section = *reportTemplate.pTemplate->child();

    EXPECT_EQ(",,%Name", columnsOf(reportTemplate));
    EXPECT_EQ((std::vector<int>{ 2 }), reportTemplate.shownTuplesOf(section));
}

TEST(ReportTemplateTest, SectionsThatAreNotPrintedShowNothing)
{
    const ReportTemplate reportTemplate = templateOf(R"("print": false, "tuples": [ { "token": "%Name" } ])");

    EXPECT_TRUE(reportTemplate.shownTuplesOf(*reportTemplate.pTemplate->child()).empty());
}

TEST(ReportTemplateTest, ALineNeedsATupleOrALabel)
{
    EXPECT_TRUE(hasLine(R"("tuples": [ { "token": "%Name" } ])"));
    EXPECT_TRUE(hasLine(R"("label": "Total")"));
    EXPECT_FALSE(hasLine(R"("label": "")"));
    EXPECT_FALSE(hasLine(R"("label": "Total", "print": false)"));
    EXPECT_FALSE(hasLine(R"("tuples": [ { "token": "%GroupBy:%Name" } ])"));
}

TEST(ReportTemplateTest, ASectionThatTheFileDoesNotDescribeHasTheUsualStyle)
{
    const ReportTemplate reportTemplate = templateOf(R"("label": "Total")");

    EXPECT_TRUE(reportTemplate.styleOf(nullptr).isPrinted);
    EXPECT_EQ("", reportTemplate.styleOf(nullptr).label);
    EXPECT_EQ("Total", reportTemplate.styleOf(reportTemplate.pTemplate->child()).label);
}
}
