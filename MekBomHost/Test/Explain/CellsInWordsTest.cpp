#include "CellsInWords.h"

#include "Support/ExplainSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(CellsInWordsTest, TotalsAreAdditions)
{
    const ExplainedParts parts(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts);
    const CellsInWords cells(parts.explained());

    EXPECT_EQ("Pieces, %Quantity added up: 1 + 1 + 4 + 3 = 9\n"
              "Weight, %Weight*%Quantity added up: 366.59 + 366.59 + 3.52 + 10.74 = 747.44 kg\n",
              cells.ofFooter(parts.line(6)));
    EXPECT_EQ("", cells.ofHeader(parts.line(6)));
}

TEST(CellsInWordsTest, FormulasAreToldWithTheirData)
{
    const ExplainedParts parts(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts);

    EXPECT_EQ("Weight: %Weight*%Quantity, with %Weight 0.88 kg and %Quantity 4, is 3.52 kg\n",
              CellsInWords(parts.explained()).ofHeader(parts.line(4)));
}

TEST(CellsInWordsTest, AStartingValueIsPartOfTheAddition)
{
    const ExplainedParts parts(R"({ "sections": [
      { "type": "kReportHeader", "children": [ { "type": "kDetails", "print": false,
        "tuples": [ { "token": "%Name" } ] } ] },
      { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Quantity", "value": 10 } ] } ] })",
                               "%Name,%Quantity\nB1,2\nB2,3\n", "metric", { "MB304", "MB106", "MB308" });

    EXPECT_EQ("Quantity, %Quantity added up: 10 + 2 + 3 = 15, the first from the template\n",
              CellsInWords(parts.explained()).ofFooter(parts.line(1)));
}

TEST(CellsInWordsTest, WhatTheRowLacksIsTheTemplates)
{
    const ExplainedParts parts(R"({ "sections": [ { "type": "kReportHeader", "children": [ { "type": "kDetails",
      "tuples": [ { "token": "%Name" }, { "token": "%Length", "value": 0.0 },
                  { "token": "%Formula:%Length*2", "value": 0.0 } ] } ] } ] })",
                               "%Name,%Length\nB1,\nB2,3\n", "metric", { "MB505", "MB413" });

    EXPECT_EQ("Length: \"0\" is the template's, the row has none\n"
              "%Length*2: %Length*2, with %Length 0 mm (the template's), is 0 mm\n",
              CellsInWords(parts.explained()).ofHeader(parts.line(1)));
}

TEST(CellsInWordsTest, AFormulaWithoutItsDataIsNotComputed)
{
    const ExplainedParts parts(R"({ "sections": [ { "type": "kReportHeader", "children": [ { "type": "kDetails",
      "tuples": [ { "token": "%Name" }, { "token": "%Formula:%Length*2", "value": 7.0 } ] } ] } ] })",
                               "%Name,%Length\nB1,\nB2,3\n", "metric", { "MB106", "MB413" });

    EXPECT_EQ("%Length*2: %Length*2, with %Length none, was not computed; \"7\" is the template's\n",
              CellsInWords(parts.explained()).ofHeader(parts.line(1)));
}

TEST(CellsInWordsTest, AFooterShowsWhatTheLastRowHas)
{
    const ExplainedParts parts(R"({ "sections": [
      { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" } ] } ] },
      { "type": "kReportFooter", "tuples": [ { "token": "%Name" } ] } ] })",
                               "%Name\nB1\nB2\n", "metric", { "MB503", "MB305" });

    EXPECT_EQ("Name: \"B2\" of the last row counted that has it\n",
              CellsInWords(parts.explained()).ofFooter(parts.line(3)));
}
}
