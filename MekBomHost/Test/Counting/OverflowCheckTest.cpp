#include "OverflowCheck.h"

#include "ReportJob.h"

#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace mekbom
{
namespace
{
const char* const kByMaterial = R"({ "equalLines": "keep", "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails",
                        "tuples": [ { "token": "%PNum" }, { "token": "%Formula:%Weight*%Quantity" } ] } ] },
      { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Formula:%Weight*%Quantity" } ] } ] },
    { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Formula:%Weight*%Quantity" } ] } ] })";

const char* const kHeadings = "%PNum,%Material,%Weight,%Quantity\n";

// The status of a report, and what it says.
std::string toldOf(const std::string& rows, const std::string& weightUnit = "kg")
{
    const std::string parts = kHeadings + rows; // which the request views
    ReportRequest request;
    request.parts.push_back(std::make_unique<MemorySource>("parts.csv", parts));
    request.pTemplate = std::make_unique<MemorySource>("list.json", kByMaterial);
    request.checksTotals = true;
    request.unitChoices = { { "weight", weightUnit } };
    ReportJob job(std::move(request));
    std::string told = std::to_string(job.run());
    for (const Finding& finding : job.findings().all())
        told += "\n" + finding.code + " " + finding.statement;
    return told;
}
}

TEST(OverflowCheckTest, NumbersThatAreNumbersPass)
{
    EXPECT_EQ("0", toldOf("A,S235,1e307,1\nB,S235,1e307,8\n"));
    EXPECT_EQ("0", toldOf("inf,nan,1,1\n")) << "these are texts";
}

// The list printed "inf", and the status was 0.
TEST(OverflowCheckTest, ATotalThatPassesTheGreatestNumberIsAnErrorAtItsGroup)
{
    EXPECT_EQ("1\nMB607 \"%SumBy:%Formula:%Weight*%Quantity\" of the group \"S355\" comes to inf, which is beyond all "
              "numbers that can be printed\n"
              "MB607 \"%SumBy:%Formula:%Weight*%Quantity\" of the whole list comes to inf, which is beyond all numbers "
              "that can be printed",
              toldOf("A,S235,1,1\nB,S355,1e308,1\nC,S355,1e308,1\n"));
}

TEST(OverflowCheckTest, AFormulaThatPassesItIsAnErrorAtItsLine)
{
    const std::string told = toldOf("A,S235,1,1\nB,S355,1e308,2\nC,S355,1e308,3\n");

    EXPECT_EQ(0u, told.find("1\nMB607 \"%Formula:%Weight*%Quantity\" in the line \"B, inf\" comes to inf")) << told;
    EXPECT_EQ(std::string::npos, told.find("\"C, inf\"")) << "of each tuple once";
}

TEST(OverflowCheckTest, ANumberThatPassesItInTheReadersUnitIsAnErrorToo)
{
    EXPECT_EQ("0", toldOf("A,S235,1e306,1\n"));

    const std::string told = toldOf("A,S235,1e306,1\n", "g");

    EXPECT_EQ(0u, told.find("1\nMB607 \"%Formula:%Weight*%Quantity\" in the line \"A, inf\" comes to inf")) << told;
}

TEST(OverflowCheckTest, NegativeOverflowsAndWhatIsNoNumberAreToldAsTheyAre)
{
    const std::string told = toldOf("A,S235,1e308,2\nB,S235,-1e308,2\n");

    EXPECT_NE(std::string::npos, told.find("of the group \"S235\" comes to nan")) << told;
}
}
