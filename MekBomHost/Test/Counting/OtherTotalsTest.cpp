#include "OtherTotals.h"

#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace mekbom
{
namespace
{
// A list of lengths by material, with that column for the totals of both footers beside those of the pieces.
std::string listWith(const std::string& column, const std::string& sums = R"({ "token": "%SumBy:%Length" })",
                     const std::string& members = R"("equalLines": "keep")")
{
    const std::string tuples = R"("tuples": [ { "token": "%SumBy:%Quantity" }, )" + sums + " ]";
    return "{ " + members +
           R"(, "columns": [ { "token": "%Material" }, { "token": "%Name" }, { "token": "%Quantity" }, )" + column +
           R"( ], "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Quantity" },
                        { "token": "%Length" } ] } ] },
      { "type": "kGroupFooter", )" +
           tuples + R"( } ] },
    { "type": "kReportFooter", )" +
           tuples + " } ] }";
}

const char* const kParts = "%Name,%Material,%Length [mm],%Quantity,%Weight [kg],%Cost\n"
                           "A,S235,2000,3,10,5\n"
                           "B,S235,6000,1,30,7.5\n"
                           "C,S235,,5,2,\n"
                           "D,S355,-1000,1,4,1\n";

// The cells of the lines of totals, those of both groups and of the list.
std::string totalsOf(const std::string& templateText, const std::string& partsText = kParts)
{
    std::istringstream table(tableOf(templateText, partsText));
    std::string totals;
    for (std::string line; std::getline(table, line);)
    {
        if (line.find(' ') != 0 || line.find_first_of("ABCD") != std::string::npos)
            continue;
        std::istringstream cells(line);
        std::string total;
        for (std::string cell; cells >> cell;)
            total += (total.empty() ? "" : "  ") + cell;
        totals += total + "\n";
    }
    return totals;
}

std::string warningsOf(const std::string& templateText, const std::string& partsText)
{
    std::string warnings;
    const std::unique_ptr<Report> pReport = evaluatedReport(templateText, partsText);
    for (const Finding& mistake : pReport->mistakes())
        warnings += mistake.code + " " + messageOf(mistake) + "\n";
    return warnings;
}

const char* const kMean = R"({ "token": "%Length", "total": "mean" })";
const char* const kCostByWeight = R"({ "token": "%SumBy:%Cost", "label": "Rate", "result": "EUR/kg",
    "total": { "formula": "%C/%W", "of": { "%C": "%SumBy:%Cost", "%W": "%SumBy:%Weight" } } },
    { "token": "%SumBy:%Weight", "hidden": true })";
const char* const kCostAndWeight = R"({ "token": "%SumBy:%Cost" }, { "token": "%SumBy:%Weight" })";
}

TEST(OtherTotalsTest, AFooterShowsWhatItsColumnSaysInPlaceOfTheSum)
{
    EXPECT_EQ("9  8000\n1  -1000\n10  7000\n", totalsOf(listWith(R"({ "token": "%Length" })")));
    EXPECT_EQ("9  6000\n1  -1000\n10  6000\n", totalsOf(listWith(R"({ "token": "%Length", "total": "max" })")));
    EXPECT_EQ("9  2000\n1  -1000\n10  -1000\n", totalsOf(listWith(R"({ "token": "%Length", "total": "min" })")));
}

TEST(OtherTotalsTest, AMeanIsThatOfAllPiecesAndNotOfTheRowsTheyStandIn)
{
    EXPECT_EQ("9  3000\n1  -1000\n10  2200\n", totalsOf(listWith(kMean)));

    const std::string inOneRow = "%Name,%Material,%Length [mm],%Quantity\nA,S235,2000,3\nB,S235,6000,1\n";
    const std::string inThreeRows = "%Name,%Material,%Length [mm],%Quantity\n"
                                    "A,S235,2000,1\nA,S235,2000,1\nA,S235,2000,1\nB,S235,6000,1\n";
    EXPECT_EQ(totalsOf(listWith(kMean), inOneRow), totalsOf(listWith(kMean), inThreeRows));
}

TEST(OtherTotalsTest, AMeanOfPiecesThemselvesIsThatOfTheRows)
{
    const std::string column = R"({ "token": "%SumBy:%Quantity", "label": "Each", "decimals": 2, "total": "mean" })";
    EXPECT_EQ("3.00  8000\n1.00  -1000\n2.50  7000\n", totalsOf(listWith(column, R"({ "token": "%SumBy:%Length" })")));
}

TEST(OtherTotalsTest, ACountIsThatOfTheRowsWithTheDatumAndHasNoUnit)
{
    const std::string column = R"({ "token": "%SumBy:%Length", "label": "Lengths", "total": "count" })";
    EXPECT_EQ("9  2\n1  1\n10  3\n", totalsOf(listWith(column)));
    EXPECT_NE(std::string::npos, tableOf(listWith(column), kParts).find("Lengths  Length [mm]"));
}

TEST(OtherTotalsTest, TextsAreCounted)
{
    const std::string column = R"({ "token": "%SumBy:%Name", "label": "Rows", "total": "count" })";
    EXPECT_EQ("9  3\n1  1\n10  4\n", totalsOf(listWith(column, R"({ "token": "%SumBy:%Name" })")));
}

TEST(OtherTotalsTest, ATotalOfNoRowIsEmpty)
{
    const std::string parts = "%Name,%Material,%Length [mm],%Quantity\nA,S235,,3\nB,S355,5,1\n";
    for (const std::string kind : { "min", "max", "mean" })
        EXPECT_EQ("3\n1  5\n4  5\n",
                  totalsOf(listWith(R"({ "token": "%Length", "total": ")" + kind + R"(" })"), parts));
    EXPECT_EQ("3\n1  5\n4  5\n", totalsOf(listWith(kMean), "%Name,%Material,%Length [mm],%Quantity\nA,S235,7,0\n"
                                                           "A,S235,,3\nB,S355,5,1\n"))
        << "no piece has a length";
}

TEST(OtherTotalsTest, MergedRowsCountInNoTotal)
{
    const std::string parts = "%Name,%Material,%Length [mm],%Quantity\nA,S235,3,1\nA,S235,3,1\nB,S235,6,1\n";
    EXPECT_EQ("2  4.5\n2  4.5\n",
              totalsOf(listWith(kMean, R"({ "token": "%SumBy:%Length" })", R"("equalLines": "merge")"), parts));
    EXPECT_EQ("3  4\n3  4\n",
              totalsOf(listWith(kMean, R"({ "token": "%SumBy:%Length" })", R"("equalLines": "count")"), parts));
}

TEST(OtherTotalsTest, ALineOfSeveralRowsShowsTheValueOfOnePieceBelowSuchTotals)
{
    const std::string parts = "%Name,%Material,%Length [mm],%Quantity\nE,S235,3000,1\nE,S235,3000,1\n";
    const auto tableWith = [&parts](const std::string& total)
    {
        const std::string column = R"({ "token": "%Length")" + total + " }";
        return tableOf(listWith(column, R"({ "token": "%SumBy:%Length" })", R"("equalLines": "count")"), parts);
    };
    EXPECT_EQ(std::string::npos, tableWith(R"(, "total": "max")").find("6000"));
    EXPECT_NE(std::string::npos, tableWith("").find("6000"));
}

TEST(OtherTotalsTest, ATotalIsInTheUnitOfItsColumn)
{
    EXPECT_EQ("9  3\n1  -1\n10  2.2\n",
              totalsOf(listWith(R"({ "token": "%Length", "unit": "m", "decimals": 2, "total": "mean" })")));
}

TEST(OtherTotalsTest, WholeNumbersStayWholeButForTheirMean)
{
    const std::string parts = "%Name,%Material,%Quantity,%Floor\nA,S235,1,3\nB,S235,1,4\n";
    const auto totals = [&parts](const std::string& kind)
    {
        return totalsOf(listWith(R"({ "token": "%SumBy:%Floor", "label": "Floor", "total": ")" + kind + R"(" })",
                                 R"({ "token": "%SumBy:%Floor" })"),
                        parts);
    };
    EXPECT_EQ("2  3\n2  3\n", totals("min"));
    EXPECT_EQ("2  4\n2  4\n", totals("max"));
    EXPECT_EQ("2  3.5\n2  3.5\n", totals("mean"));
}

TEST(OtherTotalsTest, AFormulaIsOverTheSumsOfTheSameFooter)
{
    const std::string parts =
        "%Name,%Material,%Quantity,%Weight [kg],%Cost\nA,S235,1,10,5\nB,S235,1,30,7.5\nC,S355,1,4,1\n";
    const std::string list = listWith(kCostByWeight, kCostAndWeight);
    EXPECT_EQ("2  0.3125\n1  0.25\n3  0.306818\n", totalsOf(list, parts));
    EXPECT_NE(std::string::npos, tableOf(list, parts).find("Rate [EUR/kg]"));
    EXPECT_EQ("", warningsOf(list, parts));
}

TEST(OtherTotalsTest, SumsOfUnlikeRowsMakeNoTotal)
{
    const std::string list = listWith(kCostByWeight, kCostAndWeight);
    EXPECT_EQ("9\n1  0.25\n10\n", totalsOf(list)) << "C has a weight and no cost";
    EXPECT_EQ(
        "MB310 list.json:1:112: warning MB310: \"%C/%W\" is left empty where it cannot be "
        "calculated: %C is the sum of 2 rows, %W of 3; help: fill the gaps in the data, or leave out the rows with "
        "gaps by \"queryFilter\" or --where\n",
        warningsOf(list, kParts));
}

TEST(OtherTotalsTest, ADivisionByZeroMakesNoTotal)
{
    const std::string parts = "%Name,%Material,%Quantity,%Weight [kg],%Cost\nA,S235,1,0,5\n";
    const std::string list = listWith(kCostByWeight, kCostAndWeight);
    EXPECT_EQ("1\n1\n", totalsOf(list, parts));
    EXPECT_NE(std::string::npos, warningsOf(list, parts).find("it divides by zero"));
}

TEST(OtherTotalsTest, ACalculatedTotalHasTheKindThatFollowsFromItsSums)
{
    const std::string column = R"({ "token": "%SumBy:%Weight", "label": "Per piece",
        "total": { "formula": "%W/%N", "of": { "%W": "%SumBy:%Weight", "%N": "%SumBy:%Quantity" } } })";
    const std::string list = listWith(column, R"({ "token": "%SumBy:%Weight" })");
    EXPECT_NE(std::string::npos, tableOf(list, kParts).find("Per piece [kg]")) << tableOf(list, kParts);
    EXPECT_EQ("9  4.67\n1  4\n10  4.6\n", totalsOf(list));
}

TEST(OtherTotalsTest, ACalculatedTotalIsNotRoundedInTheUnitsOfTheModel)
{
    const std::string column = R"({ "token": "%SumBy:%Weight", "label": "Per length", "unit": "kg/m/5",
        "total": { "formula": "%W/%L", "of": { "%W": "%SumBy:%Weight", "%L": "%SumBy:%Length" } } })";
    const std::string sums = R"({ "token": "%SumBy:%Weight" }, { "token": "%SumBy:%Length" })";
    const std::string parts = "%Name,%Material,%Quantity,%Weight [kg],%Length [mm]\nA,S235,1,1,3000\n";
    EXPECT_NE(std::string::npos, tableOf(listWith(column, sums), parts).find("0.33333")) << "and not 0.333";
}

TEST(OtherTotalsTest, TheFootTellsThatTotalsAreNoSums)
{
    const auto footOf = [](const std::string& column, const std::string& sums)
    {
        std::string foot;
        for (const std::string& line : evaluatedReport(listWith(column, sums), kParts)->evaluated().foot().lines())
            foot += line + "\n";
        return foot;
    };
    EXPECT_NE(
        std::string::npos,
        footOf(kMean, R"({ "token": "%SumBy:%Length" })").find("Length: totals show the mean %Length of all pieces\n"));
    EXPECT_NE(std::string::npos,
              footOf(kCostByWeight, kCostAndWeight)
                  .find("Rate: totals show %C/%W with %C the total of %Cost and %W the total of %Weight\n"));
    EXPECT_EQ(std::string::npos, footOf(R"({ "token": "%Length" })", R"({ "token": "%SumBy:%Length" })").find("show"));
}
}
