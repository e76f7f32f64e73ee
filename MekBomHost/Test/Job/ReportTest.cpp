#include "Report.h"

#include "Support/ReportTestSupport.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
const char* const kByMaterial = R"({ "queryFilter": "!%BoltName", "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" } ] } ] },
      { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] } ] })";

const char* const kParts = "%Name,%Material,%Weight,%BoltName\n"
                           "HEA200,S355,10.5,\n"
                           ",,,M16\n"
                           "HEA200,S355,10.5,\n"
                           "IPE360,S235,2,\n";
}

TEST(ReportTest, SectionsAreGroupedAndSorted)
{
    EXPECT_EQ("[ kBomTemplate ]\n"
              " [ kReportHeader]\n"
              "  [ kGroupHeader ][%GroupBy:%Material:][%SortAscBy:%Material:][%Material:S235]\n"
              "   [ kDetails     ][%Name:IPE360]\n"
              "  [ kGroupFooter ][%SumBy:%Weight:2]\n"
              "  [ kGroupHeader ][%GroupBy:%Material:][%SortAscBy:%Material:][%Material:S355]\n"
              "   [ kDetails     ][%Name:HEA200]\n"
              "  [ kGroupFooter ][%SumBy:%Weight:10.5]\n",
              listOf(*reportOf(kByMaterial, kParts)));
}

TEST(ReportTest, MergedRowsAreCounted)
{
    EXPECT_EQ(1, evaluatedReport(kByMaterial, kParts)->facts().rows.numMerged);
    EXPECT_EQ(0, evaluatedReport(kByMaterial, "%Name,%Weight\nA,1\nB,1\n")->facts().rows.numMerged);
}

TEST(ReportTest, RowsAreCountedOnTheirWay)
{
    const std::unique_ptr<Report> pReport = evaluatedReport(kByMaterial, kParts);

    EXPECT_EQ(4, pReport->facts().numRowsRead);
    ASSERT_EQ(1U, pReport->facts().filtered.size());
    EXPECT_EQ("!%BoltName", pReport->facts().filtered[0].condition);
    EXPECT_EQ(1, pReport->facts().filtered[0].numRows);
    EXPECT_EQ(2, pReport->facts().rows.numListed);
}

TEST(ReportTest, NumbersAreShownInTheAskedUnits)
{
    const char* const details = R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%Length" } ] } ] })";

    EXPECT_EQ("[ kBomTemplate ]\n [ kDetails     ][%Length:2286]\n", listOf(*reportOf(details, "%Length\n2286\n")));
    EXPECT_EQ("[ kBomTemplate ]\n [ kDetails     ][%Length:7' 6\"]\n",
              listOf(*reportOf(details, "%Length\n2286\n", VorUnitsManager::imperial())));
}

TEST(ReportTest, UnitTypesOfTheTemplateComeBeforeTheUsualOnes)
{
    EXPECT_EQ("[ kBomTemplate ]\n [ kDetails     ][%Length:1.23457e+06]\n",
              listOf(*reportOf(R"({ "tokenUnits": { "%Length": "kNoUnit" },
                                   "sections": [ { "type": "kDetails", "tuples": [ { "token": "%Length" } ] } ] })",
                               "%Length\n1234567\n")));
}

// The obvious way to write a list of totals: details without a column. Merged, all rows but one of a group would leave
// its total.
TEST(ReportTest, ASummaryTotalsAllRowsOfDetailsThatShowNothing)
{
    const char* const list = R"({ "sections": [
        { "type": "kReportHeader", "children": [
          { "type": "kGroupHeader", "summary": true,
            "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" },
                        { "token": "%Material" } ],
            "children": [ { "type": "kDetails" } ] },
          { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] } ] })";

    EXPECT_EQ(
        "Material  Weight [kg]\n"
        "--------  -----------\n"
        "S235                2\n"
        "S355               21\n"
        "\n"
        "4 rows read, 4 listed\n"
        "Weight: 3 of 4 rows\n",
        tableOf(*evaluatedReport(list, "%Name,%Material,%Weight\nA,S355,10.5\nA,S355,10.5\nA,S235,2\nA,S235,\n")));
}

TEST(ReportTest, NothingIsLeaked)
{
    tableOf(kByMaterial, kParts); // the engine keeps what it sorted by last
    const LeakCheck leakCheck;

    tableOf(kByMaterial, kParts);
}
}
