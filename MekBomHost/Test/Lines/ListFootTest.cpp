#include "ListFoot.h"

#include "EvaluatedReport.h"
#include "TemplateReader.h"

#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
using Texts = std::vector<std::string>;

const char* const kTotals = R"({
  "columns": [ { "token": "%Name" }, { "token": "%Weight", "label": "Mass" } ],
  "sections": [
    { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" } ] } ] },
    { "type": "kReportFooter", "tuples": [
        { "token": "%SumBy:%Weight", "value": 0.0 }, { "token": "%SumBy:%Quantity", "value": 0 },
        { "token": "%SumBy:%Length", "value": 0.0 } ] } ] })";

// Counts as a report of kTotals makes them, where every row has everything.
ListFacts factsOf(int numRows)
{
    ListFacts facts;
    facts.numRowsRead = numRows;
    facts.rows.numListed = numRows;
    for (const wchar_t* const datum : { L"%Weight", L"%Quantity", L"%Length" })
    {
        TotalCount total;
        total.datum = datum;
        total.shownIndex = facts.rows.totals.size();
        total.isOutermost = true;
        total.numRows = numRows;
        facts.rows.totals.push_back(total);
    }
    return facts;
}

ListFoot footOf(const ListFacts& facts, const VorUnitsManager& units = VorUnitsManager::metric())
{
    const std::unique_ptr<Report> pReport = reportOf(kTotals, "%Name\nA\n", units);
    return ListFoot(facts, pReport->reportTemplate(), ReportLayout(pReport->reportTemplate(), units));
}

void lose(TotalCount& total, double amount, bool isWhole = false)
{
    total.numRowsLost = 1;
    total.lost = amount;
    total.isWhole = isWhole;
}
}

TEST(ListFootTest, APlainListHasOneLine)
{
    EXPECT_EQ((Texts{ "417 rows read, 417 listed" }), footOf(factsOf(417)).lines());
    EXPECT_EQ((Texts{ "1 row read, 1 listed" }), footOf(factsOf(1)).lines());
    EXPECT_EQ((Texts{ "0 rows read, 0 listed" }), footOf(factsOf(0)).lines());
}

TEST(ListFootTest, AFootThatNobodyCountedForHasNoLines)
{
    EXPECT_EQ(Texts(), ListFoot().lines());
}

TEST(ListFootTest, EveryFilterSaysHowManyRowsItTook)
{
    ListFacts facts = factsOf(400);
    facts.numRowsRead = 417;
    facts.filtered = { { "!%BoltName", true, 12 }, { "%Phase = '1'", false, 5 }, { "%Name", false, 0 } };

    EXPECT_EQ(
        (Texts{ "417 rows read, 12 filtered out by \"!%BoltName\", 5 filtered out by \"%Phase = '1'\", 400 listed" }),
        footOf(facts).lines());
}

TEST(ListFootTest, WhatMergedRowsTookOutOfTotalsIsInTheReadersUnits)
{
    ListFacts facts = factsOf(10);
    facts.numRowsRead = 13;
    facts.rows.numMerged = 3;
    facts.rows.numLosing = 2;
    lose(facts.rows.totals[0], 2140.04);
    lose(facts.rows.totals[1], 4, true);
    lose(facts.rows.totals[2], 2286);

    const ListFoot metric = footOf(facts);
    EXPECT_EQ((Texts{ "13 rows read, 3 merged into equal lines, 10 listed",
                      "Merged rows are in no total: Mass 2140.04 kg, Quantity 4, Length 2286 mm" }),
              metric.lines());
    EXPECT_EQ(2, metric.numLosing);
    EXPECT_EQ("Mass 4718 lb, Quantity 4, Length 7' 6\"", footOf(facts, VorUnitsManager::imperial()).lossText());
}

TEST(ListFootTest, TotalsOverFewerRowsThanAreListedSaySo)
{
    ListFacts facts = factsOf(417);
    facts.rows.totals[0].numRows = 120;
    facts.rows.totals[2].numRows = 0;

    const ListFoot foot = footOf(facts);
    EXPECT_EQ((Texts{ "417 rows read, 417 listed", "Mass: 120 of 417 rows", "Length: 0 of 417 rows" }), foot.lines());
    EXPECT_EQ(3U, foot.totals.size());
    EXPECT_EQ(417, foot.totals[1].numRows) << "as data, all are told";
}

TEST(ListFootTest, LinesThatCountSeveralRowsAreFewerThanTheseAre)
{
    ListFacts facts = factsOf(417);
    facts.numRowsInOtherLines = 416;

    EXPECT_EQ((Texts{ "417 rows read, 417 listed in 1 line" }), footOf(facts).lines());
}

TEST(ListFootTest, UnitsThatWereAssumedAndWarningsAreToldOnce)
{
    ListFacts facts = factsOf(2);
    facts.areUnitsAssumed = true;
    facts.numWarnings = 1;

    EXPECT_EQ(
        (Texts{ "2 rows read, 2 listed", "Lengths and weights without a unit were read as mm and kg", "1 warning" }),
        footOf(facts).lines());
}

TEST(ListFootTest, AnEvaluatedReportHasTheFootOfItsCounts)
{
    const std::unique_ptr<Report> pReport = evaluatedReport(kTotals, "%Name,%Weight\nA,1\nB,\n");

    EXPECT_EQ((Texts{ "2 rows read, 2 listed", "Mass: 1 of 2 rows", "Quantity: 0 of 2 rows", "Length: 0 of 2 rows" }),
              pReport->evaluated().foot().lines());
}
}
