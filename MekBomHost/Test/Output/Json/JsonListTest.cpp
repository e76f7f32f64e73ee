#include "JsonListWriter.h"

#include "Support/ReportTestSupport.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
using Json = nlohmann::json;

Json listOf(const std::string& templateText, const std::string& parts,
            const VorUnitsManager& units = VorUnitsManager::metric())
{
    return Json::parse(writtenBy(JsonListWriter(), templateText, parts, units));
}

// Marks by material, with totals at both levels; `members` are more of the template's.
std::string groups(const std::string& members)
{
    return "{ " + members + R"("title": "Weights", "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%Weight" } ] } ] },
      { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] },
    { "type": "kReportFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";
}

const char* const kParts = "Handle,PNum,Material,Weight\n2A0,B1,S355,10.5\n2A1,B1,S355,10.5\n2A2,P1,S235,2\n";

std::string details(const std::string& tuples, const std::string& members = std::string())
{
    return "{ " + members + R"("sections": [ { "type": "kDetails", "tuples": [ )" + tuples + " ] } ] }";
}
}

TEST(JsonListTest, AListIsNestedGroupsOfLines)
{
    const Json list = listOf(groups(R"("equalLines": "keep", )"), kParts);

    EXPECT_EQ("mekbom-list", list["format"]);
    EXPECT_EQ(1, list["version"]);
    EXPECT_EQ("Weights", list["title"]);
    EXPECT_EQ(Json::parse(R"([ { "level": 0,
        "groups": [
          { "level": 1,
            "header": { "values": [ "S235", null, null ], "shown": [ "S235", null, null ] },
            "lines": [ { "level": 2, "values": [ null, "P1", 2 ], "shown": [ null, "P1", "2" ],
                         "handles": [ "2A2" ] } ],
            "footer": { "values": [ null, null, 2 ], "shown": [ null, null, "2" ] } },
          { "level": 1,
            "header": { "values": [ "S355", null, null ], "shown": [ "S355", null, null ] },
            "lines": [ { "level": 2, "values": [ null, "B1", 10.5 ], "shown": [ null, "B1", "10.5" ],
                         "handles": [ "2A0" ] },
                       { "level": 2, "values": [ null, "B1", 10.5 ], "shown": [ null, "B1", "10.5" ],
                         "handles": [ "2A1" ] } ],
            "footer": { "values": [ null, null, 21 ], "shown": [ null, null, "21" ] } } ],
        "footer": { "label": "Total", "values": [ null, null, 23 ], "shown": [ null, null, "23" ] } } ])"),
              list["groups"]);
}

TEST(JsonListTest, ColumnsSayWhatTheirValuesAre)
{
    const Json list = listOf(details(R"({ "token": "%PNum" }, { "token": "%Length" }, { "token": "%Quantity" },
                                        { "token": "%Formula:%Weight*2" })",
                                     R"("columns": [ { "token": "%PNum", "label": "Mark" },
                                        { "token": "%Formula:%Weight*2", "label": "Cost", "result": "EUR" } ], )"),
                             "PNum,Length,Quantity,Weight\nP1,2286,2,10\n", VorUnitsManager::imperial());

    EXPECT_EQ(Json::parse(R"([
        { "token": "%PNum", "label": "Mark", "heading": "Mark", "kind": "text", "unit": null, "shownUnit": null },
        { "token": "%Formula:%Weight*2", "label": "Cost", "heading": "Cost [EUR]", "kind": "number", "unit": "EUR",
          "shownUnit": "EUR" },
        { "token": "%Length", "label": "Length", "heading": "Length [ft-in]", "kind": "length", "unit": "ft",
          "shownUnit": "ft-in" },
        { "token": "%Quantity", "label": "Quantity", "heading": "Quantity", "kind": "number", "unit": null,
          "shownUnit": null } ])"),
              list["columns"]);
    EXPECT_EQ(Json::parse(R"([ "P1", 20, 7.5, 2 ])"), list["lines"][0]["values"]);
    EXPECT_EQ(Json::parse(R"([ "P1", "20", "7' 6\"", "2" ])"), list["lines"][0]["shown"]);
}

TEST(JsonListTest, RowsThatWereMergedAreToldApartFromThoseThatCount)
{
    const Json merged = listOf(groups(R"("equalLines": "merge", )"), kParts)["groups"][0]["groups"][1]["lines"][0];
    const Json counted = listOf(groups(R"("equalLines": "count", )"), kParts)["groups"][0]["groups"][1]["lines"][0];

    EXPECT_EQ(Json::parse(R"([ "2A0" ])"), merged["handles"]);
    EXPECT_EQ(Json::parse(R"([ "2A1" ])"), merged["mergedHandles"]);
    EXPECT_EQ(Json::parse(R"([ "2A0", "2A1" ])"), counted["handles"]);
    EXPECT_FALSE(counted.contains("mergedHandles"));
}

TEST(JsonListTest, ARowWithoutHandleHasNull)
{
    EXPECT_EQ(Json::parse("[ null ]"), listOf(details(R"({ "token": "%PNum" })"), "PNum\nP1\n")["lines"][0]["handles"]);
}

// Header and footer share a line on paper; here each has its own values.
TEST(JsonListTest, GroupsWithoutLinesHaveTheHandlesThatTheirTotalsCount)
{
    const std::string list = R"({ "equalLines": "keep", "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kGroupHeader",
          "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
          "children": [ { "type": "kDetails", "print": false, "tuples": [ { "token": "%PNum" } ] } ] },
        { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] } ] })";

    EXPECT_EQ(Json::parse(R"({ "level": 1,
                "header": { "values": [ "S355", null ], "shown": [ "S355", null ] },
                "footer": { "values": [ null, 21 ], "shown": [ null, "21" ], "handles": [ "2A0", "2A1" ] } })"),
              listOf(list, kParts)["groups"][0]["groups"][1]);
}

TEST(JsonListTest, NumbersOfSeveralUnitsSayTheirs)
{
    const Json list = listOf(R"({ "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%Length", "column": "%Size" } ] } ] },
        { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0, "column": "%Size" } ] } ],
        "columns": [ { "token": "%PNum" }, { "token": "%Size" } ] })",
                             "PNum,Length,Weight\nP1,2286,10\n");

    EXPECT_EQ("mixed", list["columns"][1]["kind"]);
    EXPECT_TRUE(list["columns"][1]["unit"].is_null());
    EXPECT_EQ(Json::parse(R"([ null, "mm" ])"), list["groups"][0]["lines"][0]["units"]);
    EXPECT_EQ(Json::parse(R"([ "P1", "2286 mm" ])"), list["groups"][0]["lines"][0]["shown"]);
    EXPECT_EQ(Json::parse(R"([ null, "kg" ])"), list["groups"][0]["footer"]["units"]);
}

TEST(JsonListTest, WhatTheListIsMadeOfIsData)
{
    const Json foot = listOf(groups(R"("equalLines": "merge", "queryFilter": "%Weight > 3", )"), kParts)["foot"];

    EXPECT_EQ(3, foot["rowsRead"]);
    EXPECT_EQ(1, foot["rowsMerged"]);
    EXPECT_EQ(1, foot["rowsListed"]);
    EXPECT_EQ(Json::parse(R"([ { "condition": "%Weight > 3", "fromTemplate": true, "rows": 1 } ])"), foot["filtered"]);
    EXPECT_EQ(Json::parse(R"([ { "label": "Weight", "amount": "10.5 kg" } ])"), foot["lost"]);
    EXPECT_EQ(Json::parse(R"([ { "label": "Weight", "rows": 1 } ])"), foot["totals"]);
    EXPECT_EQ("Merged rows are in no total: Weight 10.5 kg", foot["text"][1]);
}

TEST(JsonListTest, SectionsOfPagesSaySo)
{
    const std::string list = R"({ "equalLines": "keep", "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kPageHeader", "label": "Frame", "tuples": [ { "token": "%Material" } ],
          "children": [ { "type": "kDetails", "tuples": [ { "token": "%PNum" } ] } ] },
        { "type": "kPageFooter", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] },
        { "type": "kReportFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] })";

    const Json report = listOf(list, kParts)["groups"][0];

    EXPECT_EQ(Json::parse(R"({ "ofPage": true, "label": "Frame", "values": [ "S355", null, null ],
                               "shown": [ "S355", null, null ] })"),
              report["groups"][0]["header"]);
    EXPECT_EQ(Json::parse(R"({ "ofPage": true, "values": [ null, null, 23 ], "shown": [ null, null, "23" ] })"),
              report["groups"][0]["footer"]);
    EXPECT_FALSE(report["footer"].contains("ofPage"));
    EXPECT_FALSE(report["groups"][0]["lines"][0].contains("ofPage"));
}

TEST(JsonListTest, TextsAreEscaped)
{
    const Json list = listOf(details(R"({ "token": "%PNum" })"), "PNum\n\"a\"\"b\\c\nd\"\n");

    EXPECT_EQ("a\"b\\c\nd", list["lines"][0]["values"][0]);
}

TEST(JsonListTest, AListWithoutRowsHasNoGroups)
{
    EXPECT_EQ(Json::array(), listOf(groups(""), "PNum,Material,Weight\n")["groups"]);
    EXPECT_EQ(Json::array(), listOf(details(R"({ "token": "%PNum" })"), "PNum\n")["lines"]);
}

// The footer alone tells where a group ends: the group opens with its first line.
TEST(JsonListTest, GroupsWithoutHeaderOpenWithTheirFirstLine)
{
    const std::string list = R"({ "equalLines": "keep", "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kGroupHeader", "print": false,
          "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" } ],
          "children": [ { "type": "kDetails", "tuples": [ { "token": "%PNum" } ] } ] },
        { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] } ] })";

    const Json groupsOfList = listOf(list, kParts)["groups"][0]["groups"];

    ASSERT_EQ(2u, groupsOfList.size());
    EXPECT_EQ(1u, groupsOfList[0]["lines"].size());
    EXPECT_EQ(2u, groupsOfList[1]["lines"].size());
    EXPECT_EQ(Json::parse("[ null, 21 ]"), groupsOfList[1]["footer"]["values"]);
}

// A template may nest as deep as its reader goes; nothing here goes down with it.
TEST(JsonListTest, DeepGroupsAreWrittenLevelByLevel)
{
    const int numLevels = 120;
    std::string inner = R"({ "type": "kDetails", "tuples": [ { "token": "%PNum" } ] })";
    for (int level = 0; level < numLevels; ++level)
        inner = R"({ "type": "kGroupHeader", "tuples": [ { "token": "%GroupBy:%Material" } ], "children": [ )" + inner +
                " ] }";

    const Json list = listOf(R"({ "equalLines": "keep", "sections": [ )" + inner + " ] }", kParts);

    const Json* pGroup = &list;
    for (int level = 0; level < numLevels; ++level)
        pGroup = &(*pGroup)["groups"][0];
    EXPECT_EQ(3u, (*pGroup)["lines"].size());
}
}
