#include "TemplateInWords.h"

#include "TemplateReader.h"

#include "Support/ExplainSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string wordsFor(const std::string& text)
{
    return TemplateInWords(TemplateReader::read("list.json", text)).text();
}

// The words about level 1 of a list whose groups have the tuples `header`, whose details have `details`.
std::string levelOne(const std::string& header, const std::string& details = std::string())
{
    const std::string words =
        wordsFor(R"({ "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kGroupHeader", "tuples": [ )" +
                 header + R"( ], "children": [ { "type": "kDetails", "tuples": [ )" + details + " ] } ] } ] } ] }");
    const std::size_t begin = words.find("Level 1");
    return words.substr(begin, words.find('\n', begin) - begin);
}
}

TEST(TemplateInWordsTest, EachLevelIsToldWithItsSections)
{
    EXPECT_EQ("Weights\n"
              "The list is about the rows where %Material\n"
              "Lines of a group that read alike become one, with the pieces and totals of all\n"
              "\n"
              "Level 0, the whole list\n"
              "  header  has no line\n"
              "  footer  is labelled \"Total\"; adds up %Quantity, from 0; adds up %Weight*%Quantity, from 0\n"
              "Level 1, a group for each different %Material, sorted by %Material, ascending, as plain text, then by "
              "%Name, ascending, in natural order\n"
              "  header  shows %Material, of the row that opens it\n"
              "  footer  is labelled \"Sum\"; adds up %Quantity, from 0; adds up %Weight*%Quantity, from 0\n"
              "Level 2, a line for each row\n"
              "  line    shows %Name, %Quantity and %Weight; computes %Weight*%Quantity\n",
              wordsFor(partsByMaterial("\"queryFilter\": \"%Material\", \"equalLines\": \"count\", ")));
}

TEST(TemplateInWordsTest, WhatBecomesOfEqualLinesIsSaid)
{
    EXPECT_NE(std::string::npos, wordsFor(partsByMaterial("\"equalLines\": \"keep\", ")).find("are printed each"));
    EXPECT_NE(std::string::npos, wordsFor(partsByMaterial("\"equalLines\": \"merge\", ")).find("is in no total"));
}

TEST(TemplateInWordsTest, GroupsWhoseRowsAreNotSortedTogetherAreRuns)
{
    const char* const kRuns = "Level 1, a group for each run of rows with the same %Material";

    EXPECT_EQ(kRuns, levelOne(R"({ "token": "%GroupBy:%Material" })"));
    EXPECT_EQ(std::string(kRuns) + ", sorted by %Name, ascending, in natural order, then by %Material, ascending, as "
                                   "plain text",
              levelOne(R"({ "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Name,%Material" })"));
    EXPECT_EQ("Level 1, a group for each different %Material",
              levelOne(R"({ "token": "%GroupBy:%Material" })", R"({ "token": "%SortAscBy:%Material,%Name" })"));
}

TEST(TemplateInWordsTest, KeysHaveTheDirectionAndTheOrderThatTheyAreSortedIn)
{
    EXPECT_EQ("Level 1, all rows of the group around it, sorted by %Weight and %Length, descending, as numbers, then "
              "by %Name, descending, in natural order, then by %PosNum, ascending, as plain text",
              levelOne(R"({ "token": "%SortDescBy:%Weight,%Length,%Name" }, { "token": "%SortAscBy:%PosNum" })"));
}

TEST(TemplateInWordsTest, WhatHasNoEffectWhereItStandsIsSaid)
{
    const std::string words = wordsFor(R"({ "sections": [
      { "type": "kReportHeader", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ], "children": [
        { "type": "kDetails", "print": false, "tuples": [ { "token": "%Name" } ] } ] },
      { "type": "kReportFooter", "tuples": [ { "token": "%Formula:%Weight*2" }, { "token": "%Name" } ] } ] })");

    EXPECT_NE(std::string::npos, words.find("  header  adds nothing to %Weight, from 0\n")) << words;
    EXPECT_NE(std::string::npos, words.find("  line    shows %Name; is not printed\n")) << words;
    EXPECT_NE(std::string::npos,
              words.find("  footer  shows %Name, of the last row counted that has it; leaves %Weight*2 uncomputed\n"))
        << words;
}
}
