#include "GroupOrder.h"

#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// Groups by material, and in these by name, which are in no order of totals unless it is said. Marks alone are printed.
std::string listWith(const std::string& orderOfMaterials, const std::string& orderOfNames = "")
{
    return R"({ "columns": [ { "token": "%Material" }, { "token": "%Name" }, { "token": "%PNum" },
                             { "token": "%SumBy:%Weight", "hidden": true } ], "equalLines": "keep", "sections": [
      { "type": "kGroupHeader", )" +
           orderOfMaterials +
           R"( "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material,%Name" },
                                              { "token": "%Material" } ],
        "children": [
          { "type": "kGroupHeader", )" +
           orderOfNames + R"( "tuples": [ { "token": "%GroupBy:%Name" }, { "token": "%Name" } ],
            "children": [ { "type": "kDetails", "tuples": [ { "token": "%PNum" } ] } ] },
          { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] },
      { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] })";
}

const char* const kHeaviestFirst = R"("orderGroups": { "by": "%SumBy:%Weight", "descending": true },)";
const char* const kLightestFirst = R"("orderGroups": { "by": "%SumBy:%Weight" },)";

// "S235(L50 L60) S355(HEA)": the groups as they are printed, with the marks left out.
std::string groupsOf(const std::string& templateText, const std::string& partsText)
{
    const std::unique_ptr<Report> pReport = evaluatedReport(templateText, partsText);
    const EvaluatedReport report = pReport->evaluated();
    std::string groups;
    ReportLines lines = report.lines();
    ReportLine line;
    while (lines.next(line))
        if (line.place.hasHeader)
            groups += (groups.empty() ? "" : " ") +
                      std::string(line.texts[static_cast<std::size_t>(line.place.level)].view());
    return groups;
}

const char* const kParts = "%PNum,%Name,%Material,%Weight [kg]\n"
                           "1,L50,S235,10\n"
                           "2,L60,S235,30\n"
                           "3,HEA,S275,900\n"
                           "4,L50,S355,\n"
                           "5,IPE,S460,40\n";
}

TEST(GroupOrderTest, WithoutAWordGroupsAreInTheOrderOfTheirTexts)
{
    EXPECT_EQ("S235 L50 1 L60 2 S275 HEA 3 S355 L50 4 S460 IPE 5", groupsOf(listWith(""), kParts));
}

TEST(GroupOrderTest, GroupsAreInTheOrderOfTheirTotals)
{
    EXPECT_EQ("S275 HEA 3 S235 L50 1 L60 2 S460 IPE 5 S355 L50 4", groupsOf(listWith(kHeaviestFirst), kParts))
        << "equal totals stay as they came, and a group without a total is the last";
    EXPECT_EQ("S235 L50 1 L60 2 S460 IPE 5 S275 HEA 3 S355 L50 4", groupsOf(listWith(kLightestFirst), kParts));
}

TEST(GroupOrderTest, GroupsStayInTheGroupAroundThem)
{
    EXPECT_EQ("S235 L60 2 L50 1 S275 HEA 3 S355 L50 4 S460 IPE 5", groupsOf(listWith("", kHeaviestFirst), kParts));
    EXPECT_EQ("S275 HEA 3 S235 L60 2 L50 1 S460 IPE 5 S355 L50 4",
              groupsOf(listWith(kHeaviestFirst, kHeaviestFirst), kParts));
}

TEST(GroupOrderTest, AListWithoutRowsHasNoGroups)
{
    EXPECT_EQ("", groupsOf(listWith(kHeaviestFirst), "%PNum,%Name,%Material,%Weight [kg]\n"));
}

TEST(GroupOrderTest, LinesThatAreCountedGoWithTheirGroup)
{
    std::string list = listWith(kHeaviestFirst);
    list.replace(list.find("keep"), 4, "count");
    EXPECT_EQ("S275 HEA 3 S235 L50 1", groupsOf(list, "%PNum,%Name,%Material,%Weight [kg]\n"
                                                      "1,L50,S235,10\n1,L50,S235,10\n3,HEA,S275,900\n"));
}

TEST(GroupOrderTest, ATotalThatIsNoSumDecidesAsWell)
{
    std::string list = listWith(kHeaviestFirst);
    const std::string hidden = R"("hidden": true)";
    list.replace(list.find(hidden), hidden.size(), hidden + R"(, "total": "min")");
    EXPECT_EQ("S275 HEA 3 S460 IPE 5 S235 L50 1 L60 2 S355 L50 4", groupsOf(list, kParts));
}

// Sections go on over many pages, of which the ranges are parts.
TEST(GroupOrderTest, ManyGroupsAreOrderedAsSortingTheirTotalsOrdersThem)
{
    constexpr int kGroups = 30000;
    std::mt19937 random(7); // arbitrary
    std::vector<int> weights(kGroups);
    std::string parts = "%PNum,%Name,%Material,%Weight [kg]\n";
    for (int i = 0; i < kGroups; ++i)
    {
        weights[static_cast<std::size_t>(i)] = static_cast<int>(random() % 5000);
        const std::string number = std::to_string(100000 + i);
        const std::string weight = std::to_string(weights[static_cast<std::size_t>(i)]);
        parts += number + ",a text that takes room on a page " + number + ",M" + number + "," + weight + "\n";
    }
    std::vector<int> order(kGroups);
    for (int i = 0; i < kGroups; ++i)
        order[static_cast<std::size_t>(i)] = i;
    std::stable_sort(order.begin(), order.end(),
                     [&weights](int first, int second)
                     { return weights[static_cast<std::size_t>(first)] > weights[static_cast<std::size_t>(second)]; });
    std::string expected;
    for (const int i : order)
    {
        const std::string number = std::to_string(100000 + i);
        expected.append(expected.empty() ? "M" : " M").append(number).append(" a text that takes room on a page ");
        expected.append(number).append(" ").append(number);
    }

    EXPECT_TRUE(expected == groupsOf(listWith(kHeaviestFirst), parts));
}
}
