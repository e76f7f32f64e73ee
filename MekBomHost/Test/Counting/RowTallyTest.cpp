#include "RowTally.h"

#include "PackedSections.h"
#include "TemplateReader.h"

#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string listWith(const std::string& equalLines, const std::string& print = "true")
{
    return "{ " + equalLines + R"( "sections": [
        { "type": "kReportHeader", "children": [
          { "type": "kGroupHeader", "tuples": [ { "token": "%GroupBy:%Material" } ], "children": [
            { "type": "kDetails", "tuples": [ { "token": "%Name" } ] } ] },
          { "type": "kGroupFooter", "tuples": [
            { "token": "%SumBy:%Paint", "value": 0.0 }, { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] },
        { "type": "kReportFooter", "print": )" +
           print + R"(, "tuples": [
            { "token": "%Name" }, { "token": "%SumBy:%Weight", "value": 0.0 },
            { "token": "%SumBy:%Quantity", "value": 0 } ] } ] })";
}

const char* const kParts = "%Name,%Material,%Weight,%Quantity,Paint [m2]\n"
                           "A,S235,2.5,3,1\n"
                           "A,S235,2.5,4,\n"
                           "A,S235,,0,\n"
                           "B,S235,,1,\n"
                           "B,S355,4,1,\n";

RowCounts countsOf(const std::string& templateText)
{
    return evaluatedReport(templateText, kParts)->facts().rows;
}
}

TEST(RowTallyTest, RowsAreListedOrMerged)
{
    const RowCounts counts = countsOf(listWith(""));

    EXPECT_EQ(3, counts.numListed);
    EXPECT_EQ(2, counts.numMerged);
    EXPECT_EQ(1, counts.numLosing) << "the other one has nothing that a total would count";
}

TEST(RowTallyTest, TotalsOfTheOutermostFooterKnowTheirRowsAndAllTotalsWhatTheyLost)
{
    const RowCounts counts = countsOf(listWith(""));

    ASSERT_EQ(3U, counts.totals.size());
    const TotalCount& weight = counts.totals[0];
    EXPECT_EQ(VorString(L"%Weight"), weight.datum);
    EXPECT_TRUE(weight.isOutermost);
    EXPECT_EQ(0, weight.level);
    EXPECT_EQ(1U, weight.shownIndex);
    EXPECT_EQ(2, weight.numRows);
    EXPECT_EQ(1, weight.numRowsLost);
    EXPECT_EQ(2.5, weight.lost);
    EXPECT_FALSE(weight.isWhole);
    const TotalCount& pieces = counts.totals[1];
    EXPECT_EQ(3, pieces.numRows);
    EXPECT_EQ(4, pieces.lost);
    EXPECT_TRUE(pieces.isWhole);
    const TotalCount& paint = counts.totals[2];
    EXPECT_FALSE(paint.isOutermost);
    EXPECT_EQ(1, paint.level);
    EXPECT_EQ(0, paint.numRowsLost);
}

TEST(RowTallyTest, AFooterThatIsNotPrintedHasNoTotals)
{
    const RowCounts counts = countsOf(listWith("", "false"));

    ASSERT_EQ(2U, counts.totals.size());
    EXPECT_EQ(VorString(L"%Paint"), counts.totals[0].datum);
    EXPECT_TRUE(counts.totals[0].isOutermost) << "the group footer is the outermost now";
    EXPECT_EQ(1, counts.totals[0].numRows) << "of both groups";
    EXPECT_EQ(2, counts.totals[1].numRows);
}

TEST(RowTallyTest, WhereEqualLinesAreCountedOrKeptNoRowIsMerged)
{
    for (const char* const way : { "\"equalLines\": \"count\",", "\"equalLines\": \"keep\"," })
    {
        const RowCounts counts = countsOf(listWith(way));

        EXPECT_EQ(5, counts.numListed);
        EXPECT_EQ(0, counts.numMerged);
        EXPECT_EQ(3, counts.totals[0].numRows);
    }
    EXPECT_EQ(2, countsOf(listWith("\"equalLines\": \"merge\",")).numMerged);
}

TEST(RowTallyTest, TotalsOfFormulasCountTheRowsThatHaveThem)
{
    const RowCounts counts = countsOf(R"({ "sections": [
        { "type": "kReportHeader", "children": [
          { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Formula:%Weight*2" } ] } ] },
        { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Formula:%Weight*2", "value": 0.0 } ] } ] })");

    ASSERT_EQ(1U, counts.totals.size());
    EXPECT_EQ(2, counts.totals[0].numRows);
    EXPECT_EQ(5, counts.totals[0].lost);
}

TEST(SectionRelayTest, SinksAreAskedForWhatThoseBehindThemWant)
{
    class Wanting : public VorBomSectionSink
    {
    public:
        Wanting() : VorBomSectionSink(kTypedValues | kFailedFormulas) {}
        void takeHeader(const VorBomReportSection&) override {}
        void takeFooter(const VorBomReportSection&) override {}
        void takeFailedFormula(const VorBomDataRow&, const VorString&, const VorString&) override { ++numFailed; }
        int takeProgress(int numRowsDone) override { return numRowsDone < 2 ? 1 : 0; }
        int numFailed = 0;
    };
    Wanting last;
    RowTally tally(TemplateReader::read("list.json", listWith("\"equalLines\": \"keep\",")), last);

    EXPECT_EQ(VorBomSectionSink::kTypedValues | VorBomSectionSink::kFailedFormulas | VorBomSectionSink::kEqualLines,
              tally.requests());
    tally.takeFailedFormula(VorBomDataRow(), L"%Formula:1/0", L"Division by zero");
    EXPECT_EQ(1, last.numFailed);
    EXPECT_EQ(1, tally.takeProgress(1));
    EXPECT_EQ(0, tally.takeProgress(2));
}
}
