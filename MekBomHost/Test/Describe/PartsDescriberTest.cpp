#include "PartsDescriber.h"

#include "MemorySource.h"
#include "PartsFormats.h"

#include "Support/FakeSource.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
PartsDescription descriptionOf(const std::string& text, const InputChoices& choices = InputChoices())
{
    MemorySource source("a.csv", text);
    FindingList notes;
    const std::unique_ptr<RecordSource> pRecords = PartsFormats::open(source, choices, notes);
    return PartsDescriber(*pRecords, { choices.headings, {} }).describe();
}

// "Length [ft]: length, ft, 2, 2 different, 7.5 to 10, sum 17.5, of pieces 50"
std::string textOf(const ColumnDescription& column)
{
    return column.heading + ": " + column.kind + (column.unit.empty() ? "" : ", " + column.unit) + ", " +
           std::to_string(column.numFilled) + ", " + column.numDistinct + " different" +
           (column.smallest.empty() ? "" : ", " + column.smallest + " to " + column.largest) +
           (column.sumOfRows.empty() ? "" : ", sum " + column.sumOfRows) +
           (column.sumOfPieces.empty() ? "" : ", of pieces " + column.sumOfPieces);
}

std::vector<std::string> columnsOf(const PartsDescription& description)
{
    std::vector<std::string> texts;
    for (const ColumnDescription& column : description.columns)
        texts.push_back(textOf(column));
    return texts;
}

// The only column of a file with these cells, and what is odd about them.
std::vector<std::string> columnOf(const std::string& heading, const std::vector<std::string>& cells)
{
    std::string text = heading + ",Name\n";
    for (const std::string& cell : cells)
        text += cell + ",A\n";
    const PartsDescription description = descriptionOf(text);
    std::vector<std::string> texts = { columnsOf(description).front() };
    texts.insert(texts.end(), description.oddities.begin(), description.oddities.end());
    return texts;
}

using Texts = std::vector<std::string>;
}

TEST(PartsDescriberTest, AColumnIsSaidToHoldWhatAListReads)
{
    const PartsDescription description = descriptionOf("Name,Length [ft],Quantity,Weight,Phase no\n"
                                                       "HEA200,7.5,4,134.4,1\n"
                                                       "IPE360,10,,260,2\n"
                                                       ",,,,\n"
                                                       "HEA200,,2,,\n");

    EXPECT_EQ("a.csv", description.name);
    EXPECT_EQ(3u, description.numRows);
    EXPECT_EQ(1u, description.numEmptyRows);
    EXPECT_TRUE(description.hasPieces);
    EXPECT_EQ(Texts{}, description.oddities);
    EXPECT_EQ((Texts{ "Name: text, 3, 2 different, HEA200 to IPE360",
                      "Length [ft]: length, ft, 2, 2 different, 7.5 to 10, sum 17.5, of pieces 40",
                      "Quantity: whole number, 2, 2 different, 2 to 4, sum 6, of pieces 7",
                      "Weight: weight, kg (assumed), 2, 2 different, 134.4 to 260, sum 394.4, of pieces 797.6",
                      "Phase no: whole number, 2, 2 different, 1 to 2, sum 3" }),
              columnsOf(description));
}

TEST(PartsDescriberTest, WhatIsOfAllPiecesInTheFileIsNotMultipliedByThem)
{
    EXPECT_EQ("Gesamtgewicht [kg]: weight of all pieces, kg, 2, 2 different, 506.4 to 537.6, sum 1044, of pieces 1044",
              columnsOf(descriptionOf("Stück,Gesamtgewicht [kg]\n4,537.6\n2,506.4\n")).back());
}

TEST(PartsDescriberTest, WithoutAColumnOfPiecesThereAreNoSumsOfThem)
{
    const PartsDescription description = descriptionOf("Name,Weight [kg]\nA,2.5\nB,2.5\n");

    EXPECT_FALSE(description.hasPieces);
    EXPECT_EQ("Weight [kg]: weight, kg, 2, 1 different, 2.5 to 2.5, sum 5", columnsOf(description).back());
}

// A sum over pieces of which some are unknown would be too small, or too large.
TEST(PartsDescriberTest, PiecesThatAreNoWholeNumbersLeaveSumsOfThemOut)
{
    const PartsDescription description = descriptionOf("Quantity,Weight [kg]\n4,2.5\n1.5,2.5\n");

    EXPECT_FALSE(description.hasPieces);
    EXPECT_EQ((Texts{ "Quantity: whole number, 2, 1 different, 4 to 4, sum 4",
                      "Weight [kg]: weight, kg, 2, 1 different, 2.5 to 2.5, sum 5" }),
              columnsOf(description));
    EXPECT_EQ((Texts{ "a.csv: not every row says its pieces in a whole number, so that there are no sums of pieces",
                      "a.csv:3: column \"Quantity\": found \"1.5\", expected a whole number" }),
              description.oddities);
}

// Levels, widths and the weight of an assembly that all its parts name have no sum over pieces.
TEST(PartsDescriberTest, OnlyWhatOnePieceHasIsMultipliedByThem)
{
    EXPECT_EQ((Texts{ "Quantity: whole number, 1, 1 different, 4 to 4, sum 4, of pieces 4",
                      "%Width [mm]: length, mm, 1, 1 different, 80 to 80, sum 80",
                      "%AssemblyWeight [kg]: weight, kg, 1, 1 different, 9 to 9, sum 9",
                      "%Length [mm]: length, mm, 1, 1 different, 6000 to 6000, sum 6000, of pieces 24000" }),
              columnsOf(descriptionOf("Quantity,%Width [mm],%AssemblyWeight [kg],%Length [mm]\n4,80,9,6000\n")));
}

TEST(PartsDescriberTest, NobodyAddsUpDensitiesNorWeightsPerLength)
{
    EXPECT_EQ(Texts{ "Density [kg/m3]: density, kg/m3, 2, 1 different, 7850 to 7850" },
              columnOf("Density [kg/m3]", { "7850", "7850" }));
    EXPECT_EQ(Texts{ "kg/m: weight-per-length, kg/m, 2, 2 different, 16.7 to 42.3" },
              columnOf("kg/m", { "42.3", "16.7" }));
}

TEST(PartsDescriberTest, SumsAreRoundedToTheDecimalsOfTheirCells)
{
    EXPECT_EQ(Texts{ "Weight [lb]: weight, lb, 3, 1 different, 0.1 to 0.1, sum 0.3" },
              columnOf("Weight [lb]", { "0.1", "0.1", "0.1" }));
    EXPECT_EQ(Texts{ "Price: number, 2, 2 different, 0.1 to 0.2, sum 0.3" }, columnOf("Price", { "0.1", "0.2" }));
    EXPECT_EQ(Texts{ "Weight: weight, kg (assumed), 2, 1 different, 1e+308 to 1e+308, sum too large" },
              columnOf("Weight", { "1e308", "1e308" }));
}

TEST(PartsDescriberTest, SmallNumbersAreNotRoundedAway)
{
    EXPECT_EQ(Texts{ "Weight: weight, kg (assumed), 2, 2 different, 1e-20 to 2e-06, sum 2.00000000000001e-06" },
              columnOf("Weight", { "1e-20", "0.000002" }));
    EXPECT_EQ(Texts{ "Length [m]: length, m, 1, 1 different, 1e-303 to 1e-303, sum 1e-303" },
              columnOf("Length [m]", { "1e-300 mm" }));
}

TEST(PartsDescriberTest, FeetAndInchesAreShownToTheFinestFraction)
{
    EXPECT_EQ(Texts{ "Length [ft-in]: length, ft-in, 2, 2 different, 1/32\" to 7' 6 1/2\", sum 7' 6 17/32\"" },
              columnOf("Length [ft-in]", { "7'-6 1/2″", "1/32 in" }));
}

TEST(PartsDescriberTest, CellsWithUnitsOfTheirOwnAreConverted)
{
    EXPECT_EQ((Texts{ "Length [m]: length, m, 3, 3 different, 0.00254 to 7.5, sum 7.80734",
                      "a.csv:3: column \"Length [m]\": \"1 ft\" names a unit, unlike those above it" }),
              columnOf("Length [m]", { "7.5", "1 ft", "0.1 in" }));
    EXPECT_EQ(Texts{ "Length: length, mm, 1, 1 different, 7500 to 7500, sum 7500" }, columnOf("Length", { "7.5 m" }));
}

TEST(PartsDescriberTest, AUnitThatIsMissingIsOddAndNumbersAreShownAsTheyStand)
{
    const std::string lack = "a.csv:2: column \"Paint\": found \"1.2\", expected a number with its unit: write the "
                             "heading \"Paint [m2]\", or give --input-unit %Paint=m2";

    EXPECT_EQ((Texts{ "Paint: area, ?, 2, 2 different, 1.2 to 2.5, sum 3.7", lack }),
              columnOf("Paint", { "1.2", "2.5" }));
    EXPECT_EQ(Texts{ "Paint: area, m2, 2, 2 different, 1.2 to 2.5, sum 3.7" },
              columnOf("Paint", { "1.2 m2", "2.5 m2" }));
}

// 1.2 of nobody knows what and 2.5 m2 have no sum.
TEST(PartsDescriberTest, NumbersWithAndWithoutTheirUnitAreNotAddedUp)
{
    const Texts texts = columnOf("Paint", { "1.2", "2.5 m2" });

    ASSERT_EQ(3u, texts.size());
    EXPECT_EQ("Paint: area, ?, 2, 2 different", texts[0]);
    EXPECT_EQ("a.csv:3: column \"Paint\": \"2.5 m2\" names a unit, unlike those above it", texts[2]);
}

TEST(PartsDescriberTest, OfAColumnWhoseUnitIsNoneNoNumberIsRead)
{
    const Texts texts = columnOf("Weight [stone]", { "1", "2", "2" });

    ASSERT_EQ(2u, texts.size());
    EXPECT_EQ("Weight [stone]: weight, ?, 3, 2 different", texts[0]);
    EXPECT_EQ("a.csv:1: column \"Weight [stone]\": found unit \"stone\", expected a unit of weight such as kg or lb",
              texts[1]);
}

TEST(PartsDescriberTest, CellsThatAListRefusesAreOddAndInNoNumber)
{
    EXPECT_EQ((Texts{ "Weight: weight, kg (assumed), 5, 1 different, 2.5 to 2.5, sum 5",
                      "a.csv:3: column \"Weight\": found \"n/a\", expected a number (and 1 more cell)",
                      "a.csv:5: error MB604: column \"Weight\": found \"NaN\", expected a number; help: leave the cell "
                      "empty" }),
              columnOf("Weight", { "2.5", "n/a", "?", "NaN", "2.5" }));
}

TEST(PartsDescriberTest, OfNumbersAndTextsInOneColumnTheFirstIsOddThatDiffers)
{
    EXPECT_EQ((Texts{ "Grip: text, 4, 4 different, 12 to n/a",
                      "a.csv:3: column \"Grip\": \"n/a\" is no number, and makes texts of those above it" }),
              columnOf("Grip", { "12", "n/a", "40", "M" }));
    EXPECT_EQ((Texts{ "Bay: text, 4, 4 different, 12 to n/a",
                      "a.csv:4: column \"Bay\": \"12\" is a number, and a text as those above it" }),
              columnOf("Bay", { "n/a", "M", "12", "40" }));
    EXPECT_EQ(Texts{ "Bay: text, 2, 2 different, A to B" }, columnOf("Bay", { "A", "B" }));
    EXPECT_EQ(Texts{ "PNum: text, 2, 2 different, 12 to B" }, columnOf("PNum", { "12", "B" }));
}

TEST(PartsDescriberTest, AFractionNamesNoUnit)
{
    EXPECT_EQ(Texts{ "Width [in]: length, in, 2, 2 different, 0.5 to 1.375, sum 1.875" },
              columnOf("Width [in]", { "1 3/8", "0.5" }));
    EXPECT_EQ(2u, columnOf("Paint", { "1 1/2" }).size());
}

TEST(PartsDescriberTest, ZerosInFrontAndBlanksAroundAreOddInTexts)
{
    EXPECT_EQ((Texts{ "Article: text, 3, 3 different, 12 to 0418",
                      "a.csv:2: column \"Article\": \"0417\" begins with a zero, and is a text (and 1 more cell)" }),
              columnOf("Article", { "0417", "0418", "12" }));
    EXPECT_EQ((Texts{ "Material: text, 2, 2 different, S355 to S355 ",
                      "a.csv:3: column \"Material\": \"S355 \" has blanks around it, which make it another text" }),
              columnOf("Material", { "S355", "S355 " }));
    EXPECT_EQ(2u, columnOf("Material", { "\xC2\xA0S355" }).size());
    EXPECT_EQ(1u, columnOf("Weight", { " 0012.5 " }).size());
}

TEST(PartsDescriberTest, HandlesThatStandTwiceAreOdd)
{
    EXPECT_EQ(
        (Texts{ "Handle: text, 3, 2 different, 2A0 to 2A1",
                "a.csv: warning MB606: handle \"2A0\" stands in rows 1 and 3; help: give each row a handle of its "
                "own, or no row any" }),
        columnOf("Handle", { "2A0", "2A1", "2A0" }));
}

TEST(PartsDescriberTest, HeadingsInDoubtAreOddAndTheColumnIsDescribed)
{
    const PartsDescription description = descriptionOf("Position,Profil,Anzahl\n1,HEA200,2\n");

    EXPECT_EQ("%Position", description.columns[0].token);
    EXPECT_EQ("Position: whole number, 1, 1 different, 1 to 1, sum 1", columnsOf(description)[0]);
    EXPECT_EQ(Texts{ "a.csv:1: column \"Position\": may be %PNum or %Num: say which, as in --map \"Position=%PNum\"" },
              description.oddities);
    EXPECT_EQ((std::set<std::string>{ "%Num", "%PNum" }), description.doubtfulTokens);
}

TEST(PartsDescriberTest, AHeaderRowThatNoListTakesIsDescribed)
{
    const PartsDescription description = descriptionOf("Name,,Name\nA,1,B\n");

    EXPECT_EQ((Texts{ "Name: text, 1, 1 different, A to A", ": whole number, 1, 1 different, 1 to 1, sum 1",
                      "Name: text, 1, 1 different, B to B" }),
              columnsOf(description));
    EXPECT_EQ((Texts{ "a.csv:1: found no name in field 2, expected a column name",
                      "a.csv:1: found column \"%Name\" a second time",
                      "a.csv:1:1: columns \"Name\" and \"Name\" may both be %Name: say what one of them is instead, as "
                      "in --map \"Name=%Other\"" }),
              description.oddities);
}

TEST(PartsDescriberTest, RowsOfAnotherNumberOfCellsAreCountedAndNotRead)
{
    const PartsDescription description = descriptionOf("Name,Weight\nA,1\nB\nC,2,3\nD,4\n");

    EXPECT_EQ(2u, description.numRows);
    EXPECT_EQ("Weight: weight, kg (assumed), 2, 2 different, 1 to 4, sum 5", columnsOf(description)[1]);
    EXPECT_EQ(Texts{ "a.csv:3: found 1 field, expected 2 as in the header row (and 1 more row)" },
              description.oddities);
}

TEST(PartsDescriberTest, AHeaderRowAloneHasColumnsOfNothing)
{
    const PartsDescription description = descriptionOf("Name,Grip,Paint,Quantity\n");

    EXPECT_EQ(0u, description.numRows);
    EXPECT_EQ((Texts{ "Name: text, 0, 0 different", "Grip: nothing, 0, 0 different", "Paint: area, m2, 0, 0 different",
                      "Quantity: whole number, 0, 0 different" }),
              columnsOf(description));
    EXPECT_EQ(Texts{}, description.oddities);
}

TEST(PartsDescriberTest, AFileWithoutAHeaderRowIsRefused)
{
    EXPECT_EQ("3 a.csv: found nothing, expected a header row with column names\n", faultOf([] { descriptionOf(""); }));
}

TEST(PartsDescriberTest, NumbersAreReadInTheNotationOfTheFile)
{
    const std::string text = "Name;Weight;Grip\nA;1.253,25;12,5\nB;2,50;1,5\n";
    MemorySource source("a.csv", text);
    FindingList notes;
    const std::unique_ptr<RecordSource> pRecords = PartsFormats::open(source, InputChoices(), notes);
    PartsDescriber describer(*pRecords, HeadingChoices());
    const PartsDescription description = describer.describe();

    EXPECT_EQ((Texts{ "Name: text, 2, 2 different, A to B",
                      "Weight: weight, kg (assumed), 2, 2 different, 2.5 to 1253.25, sum 1255.75",
                      "Grip: number, 2, 2 different, 1.5 to 12.5, sum 14" }),
              columnsOf(description));
    EXPECT_EQ(Texts{ "a.csv:2: column \"Weight\": \"1.253,25\" is read as 1253.25" }, description.oddities);
    ASSERT_EQ(1u, describer.notes().size());
    EXPECT_EQ("a.csv: numbers have a decimal comma, as \"1.253,25\" on line 2 shows",
              messageOf(describer.notes().front()));
}

TEST(PartsDescriberTest, CellsMayBeNumbersOrRefused)
{
    Finding date;
    date.code = "date";
    date.found = "a date";
    date.expected = "a number";
    FakeSource source({ { textCell("Weight"), textCell("Grip"), textCell("Name") },
                        { RecordCell(2.5), RecordCell(7.25), RecordCell(7.0) },
                        { RecordCell(date), RecordCell(date), RecordCell(date) } });

    const PartsDescription description = PartsDescriber(source, HeadingChoices()).describe();

    EXPECT_EQ((Texts{ "Weight: weight, kg (assumed), 2, 1 different, 2.5 to 2.5, sum 2.5",
                      "Grip: number, 2, 1 different, 7.25 to 7.25, sum 7.25", "Name: text, 2, 1 different, 7 to 7" }),
              columnsOf(description));
    EXPECT_EQ((Texts{ "parts.xyz:3: /0: column \"Weight\": found a date, expected a number",
                      "parts.xyz:3: /1: column \"Grip\": found a date, expected a number",
                      "parts.xyz:3: /2: column \"Name\": found a date, expected a number" }),
              description.oddities);
}

TEST(PartsDescriberTest, AHeadingThatMustBeThereAndIsNotIsWrongUsage)
{
    InputChoices choices;
    choices.headings = { { "Cots code", "%UserAttr1", true } };

    EXPECT_EQ("2 --map Cots code=%UserAttr1: a.csv has no column \"Cots code\": did you mean \"Cost code\"?\n",
              faultOf([&choices] { descriptionOf("Name,Cost code\nA,1\n", choices); }));
}

TEST(PartsDescriberTest, ManyColumnsAreDescribed)
{
    const int numColumns = 100000;
    std::string header;
    std::string row;
    for (int i = 0; i < numColumns; ++i)
    {
        header += (i == 0 ? "C" : ",C") + std::to_string(i);
        row += (i == 0 ? "" : ",") + std::to_string(i);
    }

    const PartsDescription description = descriptionOf(header + "\n" + row + "\n" + row + "\n");

    ASSERT_EQ(static_cast<std::size_t>(numColumns), description.columns.size());
    EXPECT_EQ("C99999: whole number, 2, 1 different, 99999 to 99999, sum 199998", columnsOf(description).back());
    EXPECT_EQ(Texts{}, description.oddities);
}

// To find the place of one of them takes a look at the whole record.
TEST(PartsDescriberTest, OfManyOddColumnsTheFirstFewAreTold)
{
    const int numColumns = 50000;
    std::string header = "C";
    std::string row = "01";
    for (int i = 1; i < numColumns; ++i)
    {
        header += ",C" + std::to_string(i);
        row += ",01";
    }

    const PartsDescription description = descriptionOf(header + "\n" + row + "\n" + row + "\n");

    ASSERT_EQ(OddityLimit::kMostTold + 1, description.oddities.size());
    EXPECT_EQ("a.csv:2: column \"C\": \"01\" begins with a zero, and is a text (and 1 more cell)",
              description.oddities.front());
    EXPECT_EQ("a.csv: more is odd than is told here", description.oddities.back());
}

TEST(PartsDescriberTest, ManyRowsAreDescribed)
{
    const int numRows = 1000000;
    std::string text = "PNum,Quantity,Weight\n";
    for (int i = 0; i < numRows; ++i)
        text += "P" + std::to_string(i) + ",2,0.1\n";

    const PartsDescription description = descriptionOf(text);

    EXPECT_EQ((Texts{ "PNum: text, 1000000, more than 100000 different, P0 to P999999",
                      "Quantity: whole number, 1000000, 1 different, 2 to 2, sum 2000000, of pieces 2000000",
                      "Weight: weight, kg (assumed), 1000000, 1 different, 0.1 to 0.1, sum 100000, of pieces 200000" }),
              columnsOf(description));
}
}
