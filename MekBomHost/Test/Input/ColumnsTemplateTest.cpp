#include "ColumnsTemplate.h"

#include "CsvReader.h"
#include "JsonReader.h"
#include "PartsList.h"

#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// The template for a parts list of that header row.
std::string templateFor(const std::string& header)
{
    MemorySource source("parts.csv", header);
    CsvReader records(source);
    return ColumnsTemplate::textOf(PartsList(records).columns());
}

std::string printed(const std::string& parts)
{
    return tableOf(templateFor(parts.substr(0, parts.find('\n') + 1)), parts);
}

std::string without(std::string text, const std::string& word)
{
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word))
        text.erase(at, word.size());
    return text;
}

// What the group's comments ask an author to do.
std::string withGroup(const std::string& text)
{
    const std::string instruction =
        "        // Groups: take away the slashes before the next two lines, and before the one "
        "below the details.\n";
    EXPECT_NE(std::string::npos, text.find(instruction));
    return without(without(text, instruction), "        // ");
}
}

TEST(ColumnsTemplateTest, EveryColumnIsPrintedInTheOrderOfTheFile)
{
    EXPECT_EQ("Note  Name    Length [mm]  Grip\n"
              "----  ------  -----------  ----\n"
              "b     HEA200         5000    12\n"
              "a     IPE360         2000    30\n",
              printed("Note,%Name,Length [m],Grip\na,IPE360,2,30\nb,HEA200,5,12\n"));
}

TEST(ColumnsTemplateTest, RowsAreSortedByTheFirstTextsOfTheCatalogue)
{
    EXPECT_EQ("Quantity  PNum   Name\n"
              "--------  -----  ----\n"
              "       1  P2     B\n"
              "       2  P10    A\n"
              "--------  -----  ----\n"
              "       3  Total\n",
              printed("Quantity,PNum,Name\n2,P10,A\n1,P2,B\n"));
}

TEST(ColumnsTemplateTest, HandlesAndListsSortNothing)
{
    EXPECT_EQ("Handle  a b\n"
              "------  ---\n"
              "2       y\n"
              "1       x\n",
              printed("Handle,a b\n2,y\n1,x\n"));
}

// Four pieces of 134.4 kg weigh 537.6 kg.
TEST(ColumnsTemplateTest, WeightsAreAddedUpOverThePieces)
{
    EXPECT_EQ("Name    Quantity  Weight [kg]  Total weight [kg]\n"
              "------  --------  -----------  -----------------\n"
              "HEA200         4        134.4              537.6\n"
              "IPE360         1        100                100\n"
              "------  --------  -----------  -----------------\n"
              "Total          5                           637.6\n",
              printed("%Name,%Quantity,%Weight\nHEA200,4,134.4\nIPE360,1,100\n"));
}

TEST(ColumnsTemplateTest, WithoutPiecesARowIsOne)
{
    EXPECT_EQ("Name    Weight [kg]\n"
              "------  -----------\n"
              "HEA200        134.4\n"
              "IPE360        100\n"
              "------  -----------\n"
              "Total         234.4\n",
              printed("%Name,%Weight\nHEA200,134.4\nIPE360,100\n"));
}

TEST(ColumnsTemplateTest, AUnitMakesAQuantityOfAColumnOfOnesOwn)
{
    EXPECT_EQ("Name    Grip [mm]\n"
              "------  ---------\n"
              "HEA200       12.7\n",
              printed("Name,Grip [in]\nHEA200,0.5\n"));
    const std::string text = templateFor("Name,Grip [in]\n");
    EXPECT_NE(std::string::npos, text.find("\"tokenUnits\": {\n    \"%Grip\": \"kDistanceUnit\"\n  }"));
    EXPECT_NE(std::string::npos, text.find("\"tokens\": {\n    \"%Grip\": \"number\"\n  }"));
    EXPECT_EQ(std::string::npos, templateFor("Name,Grip [yyy]\n").find("tokenUnits"));
}

TEST(ColumnsTemplateTest, WhatColumnsHoldIsSaidWhereItIsKnown)
{
    InputColumn mark;
    mark.token = "%Mark";
    mark.tupleToken = L"%Mark";
    InputColumn grip = mark;
    grip.token = "%Grip";
    grip.tupleToken = L"%Grip";
    EXPECT_EQ(std::string::npos, ColumnsTemplate::textOf({ mark, grip }).find("\"tokens\""));
    mark.type = VorBomDataValue::kStringData;
    grip.type = VorBomDataValue::kIntData;

    const std::string text = ColumnsTemplate::textOf({ mark, grip });

    EXPECT_NE(std::string::npos, text.find("\"tokens\": {\n    \"%Mark\": \"text\",\n    \"%Grip\": \"number\"\n  }"));
}

TEST(ColumnsTemplateTest, ColumnsAreHeadedAsTheFileHasThem)
{
    EXPECT_EQ("Mark   Profil  Anzahl  Weight [kg]  Total weight [kg]\n"
              "-----  ------  ------  -----------  -----------------\n"
              "B1     HEA200       2          2.5                  5\n"
              "-----  ------  ------  -----------  -----------------\n"
              "Total               2                               5\n",
              printed("Mark,Profil,Anzahl,Gesamtgewicht [kg]\nB1,HEA200,2,5\n"));
}

TEST(ColumnsTemplateTest, HeadingsThatWereMappedStandInTheTemplate)
{
    MemorySource source("parts.csv", "Cost code,Qty\n");
    CsvReader records(source);
    HeadingChoices choices;
    choices.mappings = { { "cost code", "%UserAttr1" } };
    const std::string text = ColumnsTemplate::textOf(PartsList(records, choices).columns());

    EXPECT_NE(std::string::npos, text.find("\"headings\": {\n    \"Cost code\": \"%UserAttr1\"\n  },\n")) << text;
}

TEST(ColumnsTemplateTest, ColumnsThatAskForSomethingAreLeftOut)
{
    EXPECT_EQ("Name    %PaintMeter [m²/m]\n"
              "------  ------------------\n"
              "HEA200                 0.5\n",
              printed("%SumBy:%Weight,%GroupBy:%Name,%SortDescBy:%Name,%FilterBy:%A,%Formula:1+1,%Name,"
                      "%%PaintMeter [m2/m]\n1,2,3,4,5,HEA200,0.5\n"));
}

TEST(ColumnsTemplateTest, HeadingsCannotBreakOutOfTheText)
{
    const std::string parts = "\"a\"\"b\",\"// \\ \n { \",Träger\n1,2,3\n";

    const std::string text = templateFor(parts);

    EXPECT_EQ("%a\"b", JsonReader("list.json", text).read().find("columns")->children[0].find("token")->text);
    EXPECT_NE("", tableOf(text, parts));
}

TEST(ColumnsTemplateTest, TheCommentsMakeAGroupWhenTheirSlashesAreTakenAway)
{
    const std::string parts = "%Name,%Quantity\nHEA200,4\nHEA200,2\nIPE360,1\n";
    const std::string text = withGroup(templateFor("%Name,%Quantity\n"));

    EXPECT_EQ("Name    Quantity\n"
              "------  --------\n"
              "HEA200\n"
              "HEA200         4\n"
              "HEA200         2\n"
              "Sum            6\n"
              "\n"
              "IPE360\n"
              "IPE360         1\n"
              "Sum            1\n"
              "------  --------\n"
              "Total          7\n",
              tableOf(text, parts));
    EXPECT_EQ(0u, tableOf(withGroup(templateFor("%Name,Note\n")), "%Name,Note\nHEA200,a\n").find("Name    Note\n"));
}
}
