#include "SummaryTemplate.h"

#include "TextTableWriter.h"

#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// The list without its lines, and without its foot.
std::string summaryOf(const std::string& templateText, const std::string& parts)
{
    const std::unique_ptr<Report> pReport = reportOf(templateText, parts);
    pReport->summarize();
    pReport->checkTotals();
    pReport->evaluate();
    return withoutFoot(tableOf(*pReport));
}

// Marks by material; `footer` is the label of a group's total with a comma, or nothing.
std::string marksByMaterial(const std::string& footer, const std::string& members = R"("equalLines": "keep",)")
{
    return "{ " + members + R"( "columns": [ { "token": "%PNum", "label": "Mark" } ], "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%Weight" } ] } ] },
      { "type": "kGroupFooter", )" +
           footer + R"( "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] },
    { "type": "kReportFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";
}

const char* const kParts = "PNum,Material,Weight\nB1,S355,10\nB1,S355,10\nP1,S235,2\n";
const char* const kSummary = "Material  Weight [kg]\n"
                             "--------  -----------\n"
                             "S235                2\n"
                             "S355               20\n"
                             "--------  -----------\n"
                             "Total              22\n";
}

TEST(SummaryTemplateTest, LinesGoAndSoDoTheColumnsThatTheyAloneFill)
{
    EXPECT_EQ(kSummary, summaryOf(marksByMaterial(""), kParts));
}

TEST(SummaryTemplateTest, AGroupThatHasLostItsLinesIsOneLine)
{
    EXPECT_EQ(kSummary, summaryOf(marksByMaterial(R"("label": "Total",)"), kParts));
}

// "summary" in a template keeps all rows; who asks for the summary of a list wants the totals of that list.
TEST(SummaryTemplateTest, TotalsAreThoseOfTheWholeList)
{
    for (const char* const equalLines : { "merge", "count", "keep" })
    {
        const std::string list = marksByMaterial("", std::string("\"equalLines\": \"") + equalLines + "\",");
        const std::string whole = tableOf(list, kParts);
        const std::string summary = summaryOf(list, kParts);
        EXPECT_EQ(whole.substr(whole.size() - 4), summary.substr(summary.size() - 4)) << equalLines;
    }
}

TEST(SummaryTemplateTest, AListOfNothingButLinesHasNoSummary)
{
    const std::string list = R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%PNum" } ] } ] })";

    EXPECT_EQ("2 --summary: the list has no groups and no totals\n", faultOf([&] { summaryOf(list, "PNum\nP1\n"); }));
}
}
