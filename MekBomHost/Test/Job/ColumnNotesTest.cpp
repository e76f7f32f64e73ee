#include "ColumnNotes.h"

#include "CsvReader.h"
#include "MemorySource.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// The notes of a parts list of that header row.
std::string missing(const std::string& header, const std::vector<std::string>& tokens)
{
    MemorySource source("parts.csv", header);
    CsvReader records(source);
    return messageOf(ColumnNotes::missing(PartsList(records), "parts.csv", tokens));
}

std::string asTheyAre(const std::string& header)
{
    MemorySource source("parts.csv", header);
    CsvReader records(source);
    return messageOf(ColumnNotes::printedAsTheyAre(PartsList(records), "parts.csv"));
}
}

TEST(ColumnNotesTest, MissingColumnsAreNamed)
{
    EXPECT_EQ("parts.csv has no column for %Length, %Weight, which the template asks for",
              missing("%Name\n", { "%Length", "%Weight" }));
}

TEST(ColumnNotesTest, ColumnsThatMayHaveBeenMeantAreNamedAsTheFileHasThem)
{
    EXPECT_EQ(
        "parts.csv has no column for %Length, which the template asks for: did you mean its column \"lenght [m]\"?",
        missing("%Name,lenght [m]\n", { "%Length" }));
    EXPECT_EQ("parts.csv has no column for %Length, %Weight, which the template asks for: "
              "did you mean its columns \"Wieght\", \"LENGHT\"?",
              missing("Wieght,%Name,LENGHT\n", { "%Length", "%Weight" }));
}

TEST(ColumnNotesTest, MisspelledWordsOfTheTradeAreGuessed)
{
    EXPECT_EQ("parts.csv has no column for %Material, %Name, which the template asks for: "
              "did you mean its columns \"Proflie\", \"Werkstof\"?",
              missing("Proflie,Werkstof,%PNum\n", { "%Material", "%Name" }));
}

TEST(ColumnNotesTest, TwoNamesOfTheCatalogueAreTwoData)
{
    EXPECT_EQ("parts.csv has no column for %MName, which the template asks for", missing("%Name\n", { "%MName" }));
}

// The template has the slip, not the file.
TEST(ColumnNotesTest, ANameThatTheCatalogueLacksMayMeanOneThatItHas)
{
    EXPECT_EQ("parts.csv has no column for %Wieght, which the template asks for: did you mean its column \"Weight\"?",
              missing("Weight\n", { "%Wieght" }));
}

TEST(ColumnNotesTest, AColumnThatIsNearerToAnotherNameIsNotMeant)
{
    EXPECT_EQ("parts.csv has no column for %Weight, which the template asks for", missing("Lenght\n", { "%Weight" }));
}

TEST(ColumnNotesTest, FewColumnsAreNamed)
{
    const std::string note = missing("lenght,LENGHT,Lenght,Lengh,Lengt,Legth,Lngth\n", { "%Length" });

    EXPECT_NE(std::string::npos, note.find("\"Lengt\"?"));
    EXPECT_EQ(std::string::npos, note.find("Legth"));
}

TEST(ColumnNotesTest, ADoubtThatStopsNothingIsANote)
{
    MemorySource source("parts.csv", "Position\n");
    CsvReader records(source);
    const Finding note = ColumnNotes::inDoubt(PartsList(records).columns().front(), "parts.csv");

    EXPECT_EQ(Finding::kNote, note.severity);
    EXPECT_EQ("parts.csv: column \"Position\": may be %PNum or %Num: say which, as in --map \"Position=%PNum\"",
              messageOf(note));
}

TEST(ColumnNotesTest, TheChosenListIsNamed)
{
    EXPECT_EQ("list bolt-list (Bolt list), which suits these columns; --template NAME takes another",
              messageOf(ColumnNotes::chosen("bolt-list", "Bolt list")));
    EXPECT_EQ("list bolt-list, which suits these columns; --template NAME takes another",
              messageOf(ColumnNotes::chosen("bolt-list", "")));
}

TEST(ColumnNotesTest, WhoseColumnsAreOwnOnesLearnsHowToBeginAList)
{
    const std::string note = "parts.csv suits no shipped list and is printed as it is; begin a list of your own with "
                             "mekbom new-list DATA > list.json";

    EXPECT_EQ(note, asTheyAre("designation,family\n"));
    EXPECT_EQ(note + ": did you mean \"%Name\" by \"nmae\", \"%Length\" by \"lenght\"?", asTheyAre("nmae,lenght\n"));
}
}
