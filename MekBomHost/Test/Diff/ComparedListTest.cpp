#include "ComparedList.h"

#include "Support/DiffSupport.h"

#include "Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
const char* const kParts = "Handle,PNum,Name,Material,Quantity,Weight\n"
                           "h1,P1,HEA200,S355,4,10\nh2,P1,HEA200,S355,2,10\nh3,P2,PL10,S235,1,2.5\n";

std::string groupedList(const std::string& details, const std::string& members = "")
{
    return R"({ "equalLines": "count", "sections": [ { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader", )" +
           members +
           R"("tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails", "tuples": [ )" +
           details + R"( ] } ] },
      { "type": "kGroupFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Quantity", "value": 0 } ] } ] } ] })";
}

const std::string kDetails = R"({ "token": "%SortDescBy:%PNum" }, { "token": "%PNum" }, { "token": "%Quantity" })";

// "S355|P1|6 {h1 h2}" for each line.
std::string linesOf(const ComparedList& list)
{
    std::string text;
    for (const ComparedLine& line : list.lines())
    {
        for (const std::string& cell : line.texts)
            text += cell + "|";
        text += "{";
        for (const VorString& handle : line.handles)
            text += Utf8::toBytes(handle) + " ";
        text += "}\n";
    }
    return text;
}
}

TEST(ComparedListTest, LinesHaveWhatTheGroupsAroundThemShow)
{
    const ListOfParts parts(groupedList(kDetails), kParts);
    EXPECT_EQ("S235|P2|1|{h3 }\nS355|P1|6|{h1 h2 }\n", linesOf(parts.list));
    EXPECT_TRUE(parts.list.hasHandles());
}

TEST(ComparedListTest, ColumnsWithTotalsAreCounted)
{
    const ListOfParts parts(groupedList(kDetails), kParts);
    ASSERT_EQ(3U, parts.list.columns().size());
    EXPECT_FALSE(parts.list.columns()[0].isCounted);
    EXPECT_EQ(0, parts.list.columns()[0].groupLevel - 1); // level 0 is that of the report
    EXPECT_FALSE(parts.list.columns()[1].isCounted);
    EXPECT_TRUE(parts.list.columns()[2].isCounted);
    EXPECT_EQ(-1, parts.list.columns()[2].groupLevel);
}

TEST(ComparedListTest, WhatTheListGroupsAndSortsByIsTheKey)
{
    const ListOfParts parts(groupedList(kDetails), kParts);
    EXPECT_EQ("S235\x1FP2\x1F", parts.list.lines()[0].key);
}

TEST(ComparedListTest, AKeyThatIsNotShownIsThatOfTheRow)
{
    const ListOfParts parts(groupedList(R"({ "token": "%SortAscBy:%Name" }, { "token": "%Quantity" })"), kParts);
    EXPECT_EQ("S355\x1FHEA200\x1F", parts.list.lines()[1].key);
}

TEST(ComparedListTest, GroupsAreTheLinesOfAListThatPrintsThemAlone)
{
    const ListOfParts parts(groupedList(kDetails, R"("summary": true, )"), kParts);
    EXPECT_EQ("S235|1|{h3 }\nS355|6|{h1 h2 }\n", linesOf(parts.list));
}

TEST(ComparedListTest, NumberedRowsHaveNoHandles)
{
    const ListOfParts parts(groupedList(kDetails), "PNum,Material,Quantity\nP1,S355,4\n");
    EXPECT_FALSE(parts.list.hasHandles());
}
}
