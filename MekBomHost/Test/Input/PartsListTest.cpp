#include "PartsList.h"

#include "CsvFile.h"
#include "CsvReader.h"

#include "TemplateReader.h"
#include "Utf8.h"

#include "Support/FakeSource.h"
#include "Support/HostTestSupport.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// A template whose details show these tokens.
ReportTemplate templateShowing(const std::vector<std::string>& tokens)
{
    std::string tuples;
    for (const std::string& token : tokens)
        tuples += (tuples.empty() ? "" : ",") + ("{ \"token\": \"" + token + "\" }");
    ReportTemplate shown = TemplateReader::read(
        "list.json", "{ \"sections\": [ { \"type\": \"kDetails\", \"tuples\": [" + tuples + "] } ] }");
    shown.pTemplate->setUnitsForTokens(nullptr);
    shown.pTemplate->findUsedTokens();
    return shown;
}

std::vector<std::string> tokensOf(const PartsList& parts)
{
    std::vector<std::string> tokens;
    for (const InputColumn& column : parts.columns())
        tokens.push_back(column.token);
    return tokens;
}

char letterOf(VorBomDataValue::eBomDataValueType type)
{
    return "?idt"[type];
}

// The rows of a parts list, one per line, all columns wanted: "A1: [%Weight d 2.5]". The letter is the value's type.
std::string rowsOf(PartsList& parts)
{
    const ReportTemplate shown = templateShowing(tokensOf(parts));
    parts.readRows(*shown.pTemplate);
    std::string rows;
    for (VorBomItemBase* pRow = shown.pTemplate->getBomData()->child(); pRow != nullptr; pRow = pRow->next())
    {
        rows += toUtf8(static_cast<VorBomDataRow*>(pRow)->objectHandle()) + ":";
        for (const VorBomDataTuple& tuple : pRow->getData())
            rows += " [" + toUtf8(tuple.token().token()) + " " + letterOf(tuple.value().type()) + " " +
                    toUtf8(tuple.value().asString()) + "]";
        rows += "\n";
    }
    return rows;
}

std::string rowsOf(const std::string& text)
{
    MemorySource source("parts.csv", text);
    CsvReader records(source);
    PartsList parts(records);
    return rowsOf(parts);
}

// The same, or what is wrong with it, on so many processors.
std::string rowsOrFaultOf(const std::string& text, unsigned numProcessors)
{
    std::string rows;
    const std::string fault = faultOf(
        [&]
        {
            MemorySource source("parts.csv", text);
            CsvReader records(source);
            PartsList parts(records, HeadingChoices(), numProcessors);
            rows = rowsOf(parts);
        });
    return rows + fault;
}

std::string faultIn(const std::string& text)
{
    return faultOf([&text] { rowsOf(text); });
}

// The same of a file whose delimiter and notation are found in it.
std::string rowsOfFile(const std::string& text)
{
    MemorySource source("parts.csv", text);
    FindingList notes;
    CsvFile records(source, InputChoices(), notes);
    PartsList parts(records);
    return rowsOf(parts);
}

std::string faultInFile(const std::string& text)
{
    return faultOf([&text] { rowsOfFile(text); });
}
}

TEST(PartsListTest, TheCatalogueDecidesTheTypeOfAColumn)
{
    EXPECT_EQ(": [%Name t 120] [%Quantity i 4] [%Weight d 5]\n", rowsOf("%Name,%Quantity,%Weight\n120,4,5\n"));
}

TEST(PartsListTest, ThePercentSignMayBeLeftOut)
{
    EXPECT_EQ(": [%Name t 120] [%Quantity i 4] [%Weight d 5]\n", rowsOf("Name, Quantity ,Weight\n120,4,5\n"));
}

TEST(PartsListTest, UnknownColumnsHaveTheTypeOfTheirContent)
{
    EXPECT_EQ(": [%A i 4] [%B d 4] [%C t 4]\n"
              ": [%B d 2.5] [%C t x]\n"
              ": [%A i 5]\n",
              rowsOf("A,B,C\n4,4,4\n,2.5,x\n5,,\n"));
}

TEST(PartsListTest, AnEmptyCellIsNoDatumAndARecordOfSuchCellsNoRow)
{
    EXPECT_EQ(": [%Weight d 5]\n: [%Name t x]\n", rowsOf("%Name,%Weight\n,5\n,\nx,\n\"\",\"\"\n"));
}

TEST(PartsListTest, TheHandleIsTheRowsIdentityAndADatum)
{
    EXPECT_EQ("007: [%Handle t 007] [%Weight d 1]\n8: [%Handle t 8]\n: [%Weight d 2]\n",
              rowsOf("Handle,%Weight\n007,1\n8,\n,2\n"));
}

TEST(PartsListTest, RowsWithoutHandleColumnAreNumberedForATemplateThatAsks)
{
    MemorySource source("parts.csv", "%Weight\n5\n6\n");
    CsvReader records(source);
    PartsList parts(records);
    const ReportTemplate shown = templateShowing({ "%Weight", "%Handle" });

    parts.readRows(*shown.pTemplate);

    const auto* const pSecond = static_cast<VorBomDataRow*>(shown.pTemplate->getBomData()->child()->next());
    EXPECT_EQ(VorString(L"2"), pSecond->objectHandle());
    EXPECT_EQ(VorString(L"2"), pSecond->getTupleAt(L"%Handle")->value().asString());
}

TEST(PartsListTest, OnlyWhatTheTemplateOrTheCallerAsksForIsKept)
{
    MemorySource source("parts.csv", "%Name,%Weight,%BoltName,Extra\nHEA200,5,M16,x\n");
    CsvReader records(source);
    PartsList parts(records);
    const ReportTemplate shown = templateShowing({ "%SumBy:%Weight" });

    parts.readRows(*shown.pTemplate, { L"%BoltName" });

    VorBomItemBase* const pRow = shown.pTemplate->getBomData()->child();
    ASSERT_EQ(2, pRow->getData().length());
    EXPECT_NE(nullptr, pRow->getTupleAt(L"%Weight"));
    EXPECT_NE(nullptr, pRow->getTupleAt(L"%BoltName"));
}

TEST(PartsListTest, TokensAndEqualTextsAreShared)
{
    MemorySource source("parts.csv", "%Name,Extra\nHEA200,x\nHEA200,x\n");
    CsvReader records(source);
    PartsList parts(records);
    const ReportTemplate shown = templateShowing({ "%Name", "%Extra" });
    parts.readRows(*shown.pTemplate);
    const VorBomItemBase* const pFirst = shown.pTemplate->getBomData()->child();

    for (int i = 0; i < 2; ++i)
    {
        const VorBomDataTuple& first = pFirst->getData()[i];
        const VorBomDataTuple& second = pFirst->next()->getData()[i];
        EXPECT_TRUE(first.token().token().sharesTextWith(second.token().token()));
        EXPECT_TRUE(static_cast<VorString*>(first.value().data())
                        ->sharesTextWith(*static_cast<VorString*>(second.value().data())));
    }
}

TEST(PartsListTest, UnitsOfTheHeaderRowConvert)
{
    EXPECT_EQ(": [%Length d 2286] [%Weight d 0.453592] [%Paint d 2.5e+06] [%Cut d 25.4]\n",
              rowsOf("Length [ft],%Weight [lb],Paint [m2],Cut [in]\n7.5,1,2.5,1\n"));
}

TEST(PartsListTest, UnitsOfTheUserConvert)
{
    MemorySource source("parts.csv", "%Paint\n2.5\n");
    CsvReader records(source);
    PartsList parts(records);
    parts.setInputUnit("%Paint", "m2");
    const ReportTemplate shown = templateShowing({ "%Paint" });

    parts.readRows(*shown.pTemplate);

    EXPECT_EQ(VorString(L"2.5e+06"), shown.pTemplate->getBomData()->child()->getData()[0].value().asString());
}

TEST(PartsListTest, CellsMayCarryUnitsOfTheirOwn)
{
    EXPECT_EQ(": [%Length d 2298.7] [%Weight d 45.3592]\n"
              ": [%Length d 2286] [%Weight d 5]\n"
              ": [%Length d 6000] [%Weight d 1000]\n",
              rowsOf("Length,Weight\n\"7'-6 1/2\"\"\",100 lb\n7.5 ft,5\n6000,1 t\n"));
    EXPECT_EQ(": [%Length d 304.8]\n: [%Length d 25.4]\n: [%Length d 10]\n", rowsOf("Length [ft]\n1\n1 in\n10 mm\n"));
    EXPECT_EQ(": [%Cut d 25.4]\n: [%Cut d 304.8]\n", rowsOf("Cut [in]\n1\n1'\n"));
}

TEST(PartsListTest, ColumnsOfFeetAndInchesTakeMarksAndOtherUnits)
{
    EXPECT_EQ(": [%Length d 2286]\n: [%Length d 2000]\n", rowsOf("Length [ft-in]\n\"7'-6\"\"\"\n2 m\n"));
    EXPECT_EQ("3 parts.csv:2: column \"Length [ft-in]\": found \"90\", expected feet and inches such as 7'-6 1/2\": "
              "every number needs its mark\n",
              faultIn("Length [ft-in]\n90\n"));
    EXPECT_EQ("3 parts.csv:2: column \"Bevel [deg-min-sec]\": found \"x\", expected degrees and minutes such as "
              "12\u00B030'\n",
              faultIn("Bevel [deg-min-sec]\nx\n"));
}

TEST(PartsListTest, CellsThatAreNoQuantitiesAreNamedWithTheirPlace)
{
    EXPECT_EQ(
        "3 parts.csv:2: column \"Length\": found \"7.5 fot\", expected a number: \"fot\" is no unit\n"
        "3 parts.csv:3: column \"Length\": found \"7.5 kg\", expected a number: \"kg\" is a unit of another "
        "kind\n"
        "3 parts.csv:4: column \"Length\": found \"1,23,456\", expected a number: digits are not grouped, and the "
        "decimal sign is a point\n"
        "3 parts.csv:5: column \"Length\": found \"7'-6\", expected a number: every number needs its mark\n"
        "3 parts.csv:6: error MB604: column \"Length\": found \"nan\", expected a number; help: leave the cell empty\n",
        faultIn("Length\n7.5 fot\n7.5 kg\n\"1,23,456\"\n7'-6\nnan\n"));
}

TEST(PartsListTest, NumbersOfNoKindCarryNoUnits)
{
    EXPECT_EQ(": [%Cut t 7.5 ft]\n", rowsOf("Cut\n7.5 ft\n"));
    EXPECT_EQ("3 parts.csv:2: column \"Quantity\": found \"4 kg\", expected a whole number\n",
              faultIn("Quantity\n4 kg\n"));
}

TEST(PartsListTest, UnitsThatDoNotFitAreNamed)
{
    EXPECT_EQ("3 parts.csv:1: column \"Length [kg]\": found unit \"kg\", expected a unit of distance such as mm, m, in "
              "or ft\n",
              faultIn("Length [kg]\n1\n"));
    EXPECT_EQ(
        "3 parts.csv:1: column \"Cut [fot]\": found unit \"fot\", expected a unit such as mm, m, ft, kg, lb or m2\n",
        faultIn("Cut [fot]\n1\n"));
    EXPECT_EQ(
        "3 parts.csv:1: column \"Quantity [kg]\": found unit \"kg\", expected none: %Quantity is a whole number\n",
        faultIn("Quantity [kg]\n1\n"));
    EXPECT_EQ("3 parts.csv:1: column \"Name [mm]\": found unit \"mm\", expected none: %Name is a text\n",
              faultIn("Name [mm]\n1\n"));
    EXPECT_EQ("3 parts.csv:1: column \"Handle [mm]\": found unit \"mm\", expected none: %Handle is a text\n",
              faultIn("Handle [mm]\n1\n"));
}

TEST(PartsListTest, UnitsOfTheUserAreTheUsersToMend)
{
    MemorySource source("parts.csv", "%Paint,%Length [mm],%Name\n2.5,1,x\n");
    CsvReader records(source);
    PartsList parts(records);
    const auto faultWith = [&parts](const char* token, const char* unit)
    { return faultOf([&parts, token, unit] { parts.setInputUnit(token, unit); }); };

    EXPECT_EQ("2 --input-unit %Pant=m2: parts.csv has no column \"%Pant\"\n", faultWith("%Pant", "m2"));
    EXPECT_EQ("2 --input-unit %Length=m: the column gives its unit already, \"mm\"\n", faultWith("%Length", "m"));
    EXPECT_EQ("", faultWith("%Length", "mm"));
    EXPECT_EQ("", faultWith("%Paint", "kg"));
    EXPECT_EQ("2 --input-unit %Paint=kg: found unit \"kg\", expected a unit of area such as mm2, m2 or ft2\n",
              faultOf([&parts] { parts.readRows(*templateShowing({ "%Paint" }).pTemplate); }));
}

TEST(PartsListTest, CellsThatAreNoNumbersAreNamedWithTheirPlace)
{
    EXPECT_EQ("3 parts.csv:3: column \"Weight\": found \"abc\", expected a number\n"
              "3 parts.csv:4: column \"%Quantity\": found \"2.5\", expected a whole number\n"
              "3 parts.csv:5: column \"%Quantity\": found \"3000000000\", expected a whole number from -2147483648 to "
              "2147483647\n"
              "3 parts.csv:6: column \"Weight\": found \"1,5\", which is 1.5 with a decimal comma and no number with a "
              "decimal point, expected a decimal point: mend the cell, or give --decimal , if all numbers are written "
              "so\n",
              faultIn("Weight,%Quantity\n1,1\nabc,1\n1,2.5\n1,3000000000\n\"1,5\",1\n"));
}

TEST(PartsListTest, NumbersAreReadAsTheFileWritesThem)
{
    EXPECT_EQ(": [%Name t 1,5] [%Quantity i 1200] [%Length d 7500] [%Price d 2.5]\n"
              ": [%Name t PL 12,5*200] [%Quantity i 4] [%Length d 1234.5] [%Price d 3]\n",
              rowsOfFile("Name;Quantity;Length;Price\n1,5;1.200;7,5 m;2,5\nPL 12,5*200;4,0;1.234,5;3\n"));
    EXPECT_EQ(": [%Quantity i 1200] [%Length d 1234.5]\n", rowsOfFile("Quantity;Length\n1'200;1'234.50\n"));
    EXPECT_EQ(": [%Quantity i 1200] [%Length d 1234.5]\n", rowsOfFile("Quantity,Length\n\"1,200\",\"1,234.50\"\n"));
    EXPECT_EQ(": [%Quantity i 1200] [%Length d 1234.5]\n", rowsOfFile("Quantity\tLength\n1\xC2\xA0"
                                                                      "200\t1\xE2\x80\xAF"
                                                                      "234,5\n"));
}

// Three decimals with a point in one row are a number of thousands in another, but for what stands elsewhere.
TEST(PartsListTest, ANumberIsReadAsTheOthersOfItsFileAre)
{
    EXPECT_EQ(": [%Weight d 1.234]\n: [%Weight d 0.24]\n", rowsOfFile("Weight;Name\n1.234;\n0.240;\n"));
    EXPECT_EQ(": [%Weight d 1234]\n: [%Weight d 0.24]\n", rowsOfFile("Weight;Name\n1.234;\n0,240;\n"));
    EXPECT_EQ(": [%Weight d 1.234]\n", rowsOfFile("Weight,Name\n1.234,\n"));
    EXPECT_EQ(": [%Weight d 1234]\n: [%Weight d 12.5]\n", rowsOfFile("Weight,Name\n\"1,234\",\n12.5,\n"));
    EXPECT_EQ(": [%Weight d 1.234]\n: [%Weight d 12.5]\n", rowsOfFile("Weight,Name\n\"1,234\",\n\"12,5\",\n"));
}

TEST(PartsListTest, ANumberThatMayBeTwoIsRefusedOnceForItsColumn)
{
    EXPECT_EQ(
        "3 parts.csv:2: column \"Weight\": \"1.234\" is 1.234 with a decimal point and 1234 with a decimal comma, "
        "and nothing tells which is meant: give --decimal . or --decimal ,\n",
        faultInFile("Weight;Name\n1.234;\n12;\n2.345;\n"));
    EXPECT_EQ(
        "3 parts.csv:2: column \"Quantity\": \"1,200\" is 1200 with a decimal point and 1.200 with a decimal comma, "
        "and nothing tells which is meant: give --decimal . or --decimal ,\n",
        faultInFile("Quantity,Name\n\"1,200\",\n"));
}

// 8.8 is the class of a bolt, a text, and no reason to take 1.234 for a little more than one.
TEST(PartsListTest, WhatMayBeATextSettlesNoNumber)
{
    EXPECT_EQ(
        "3 parts.csv:2: column \"Weight\": \"1.234\" is 1.234 with a decimal point and 1234 with a decimal comma, "
        "and nothing tells which is meant: give --decimal . or --decimal ,\n",
        faultInFile("Name;Bolts;Weight\nM16;8.8;1.234\n"));
    EXPECT_EQ(": [%Name t 1,5] [%Bolts t 8.8] [%Weight d 12.5]\n", rowsOfFile("Name;Bolts;Weight\n1,5;8.8;12,5\n"));
    EXPECT_EQ(": [%Bolts d 8.8] [%Weight d 12]\n", rowsOfFile("Bolts;Weight\n8.8;12\n"));
    EXPECT_EQ(": [%Price d 12.5] [%Weight d 12]\n", rowsOfFile("Price;Weight\n12,50;12\n"));
    EXPECT_EQ(": [%Price t 12,50] [%Bolts d 8.8]\n", rowsOfFile("Price;Bolts\n12,50;8.8\n"));
}

TEST(PartsListTest, ANumberThatContradictsTheOthersIsRefused)
{
    EXPECT_EQ(
        "3 parts.csv:3: column \"Weight\": found \"13.5\", which is 13.5 with a decimal point and no number with a "
        "decimal comma, expected a decimal comma, as \"12,5\" on line 2 shows: mend the cell, or give --decimal . "
        "if all numbers are written so\n",
        faultInFile("Weight;Name\n12,5;\n13.5;\n14,5;\n"));
    EXPECT_EQ(
        "3 parts.csv:2: column \"Weight\": \"1.234\" is 1.234 with a decimal point and 1234 with a decimal comma, "
        "and nothing tells which is meant: give --decimal . or --decimal ,\n"
        "3 parts.csv:3: column \"Weight\": found \"12,5\", which is 12.5 with a decimal comma and no number with a "
        "decimal point, expected a decimal point, as \"13.5\" on line 4 shows: mend the cell, or give --decimal , "
        "if all numbers are written so\n",
        faultInFile("Weight;Name\n1.234;\n12,5;\n13.5;\n14.5;\n"));
}

// The head of the file has whole numbers alone, so that nothing is known when a comma comes.
TEST(PartsListTest, ANumberFarBelowThatContradictsIsRefused)
{
    std::string text = "Weight;Name\n";
    while (text.size() < 100'000)
        text += "12;HEA200\n";
    const auto line = std::to_string(std::count(text.begin(), text.end(), '\n') + 1);

    EXPECT_EQ(
        "3 parts.csv:" + line +
            ": column \"Weight\": found \"12,5\", which is 12.5 with a decimal comma and no number with a decimal "
            "point, expected a decimal point, as no number of the first rows shows a comma: mend the cell, or give "
            "--decimal , if all numbers are written so\n",
        faultInFile(text + "12,5;\n"));
    EXPECT_NE("", faultInFile(text + "1.234;\n"));
    EXPECT_NE("", faultInFile(text + "1,234;\n"));
}

TEST(PartsListTest, WhatIsNotPlainInNumbersIsNoted)
{
    MemorySource source("parts.csv", "Weight;Length\n12,5;1.234\n1.234,5;2\n");
    FindingList notes;
    CsvFile records(source, InputChoices(), notes);
    PartsList parts(records);
    rowsOf(parts);

    ASSERT_EQ(2U, parts.findings().size());
    EXPECT_EQ("parts.csv: numbers have a decimal comma, as \"12,5\" on line 2 shows", messageOf(parts.findings()[0]));
    EXPECT_EQ("parts.csv:2: column \"Length\": \"1.234\" is read as 1234", messageOf(parts.findings()[1]));
}

TEST(PartsListTest, RowTotalsAreDividedByPiecesHoweverThoseAreWritten)
{
    MemorySource source("parts.csv", "Weight;Quantity\n2.400,0;1.200\n");
    FindingList notes;
    CsvFile records(source, InputChoices(), notes);
    PartsList parts(records);
    parts.setRowTotal("%Weight");

    EXPECT_EQ(": [%Weight d 2] [%Quantity i 1200]\n", rowsOf(parts));
}

TEST(PartsListTest, FindingsAreData)
{
    try
    {
        rowsOf("Name,Weight\nx,12\ny,1.x\n");
        FAIL();
    }
    catch (const Fault& fault)
    {
        ASSERT_EQ(1u, fault.findings().size());
        const Finding& finding = fault.findings().front();
        EXPECT_EQ("MB710", finding.code);
        EXPECT_EQ("parts.csv", finding.source);
        EXPECT_EQ("Weight", finding.field);
        EXPECT_EQ("\"1.x\"", finding.found);
        EXPECT_EQ("a number", finding.expected);
        EXPECT_EQ(3, finding.begin.line);
        EXPECT_EQ(3, finding.begin.column);
        EXPECT_EQ(3, finding.end.line);
        EXPECT_EQ(6, finding.end.column);
    }
}

TEST(PartsListTest, PlacesCountLinesWithinQuotes)
{
    EXPECT_EQ("3 parts.csv:4: column \"Weight\": found \"abc\", expected a number\n",
              faultIn("Name,Weight\n\"one\ntwo\n\",abc\n"));
}

TEST(PartsListTest, CellsOfAColumnWithUnitAreNumbers)
{
    EXPECT_EQ("3 parts.csv:2: column \"Cut [in]\": found \"x\", expected a number\n", faultIn("Cut [in]\nx\n"));
    EXPECT_EQ("3 parts.csv:2: column \"Cut [in]\": found \"1e308\", expected a smaller number\n",
              faultIn("Cut [in]\n1e308\n"));
}

TEST(PartsListTest, ColumnsThatNobodyWantsMayHoldAnything)
{
    MemorySource source("parts.csv", "%Name,%Weight,Cut [fot],%Paint,%length\nx,abc,y,2,z\n");
    CsvReader records(source);
    PartsList parts(records);
    const ReportTemplate shown = templateShowing({ "%Name", "%Formula:%Length/2" });

    const PartsFacts facts = parts.readRows(*shown.pTemplate);

    EXPECT_EQ(1, shown.pTemplate->getBomData()->child()->getData().length());
    EXPECT_EQ(1u, facts.columns.size());
}

TEST(PartsListTest, NumbersOfKindsThatNoFileGivesInTheModelsUnitNeedOne)
{
    EXPECT_EQ("3 parts.csv:3: column \"Paint\": found \"3.2\", expected a number with its unit: write the heading "
              "\"Paint [m2]\", or give --input-unit %Paint=m2\n"
              "3 parts.csv:4: column \"%WeightMeter\": found \"61.3\", expected a number with its unit: write the "
              "heading \"%WeightMeter [kg/m]\", or give --input-unit %WeightMeter=kg/m\n"
              "3 parts.csv:4: column \"Density\": found \"7850\", expected a number with its unit: write the heading "
              "\"Density [kg/m3]\", or give --input-unit %Density=kg/m3\n",
              faultIn("Paint,%WeightMeter,Density\n3.2 m2,,\n3.2,,\n3.3,61.3,7850\n"));
    EXPECT_EQ(": [%Paint d 3.2e+06]\n", rowsOf("Paint\n3.2 m2\n\"\"\n"));
    EXPECT_EQ(": [%Length d 2] [%Weight d 3] [%EndCutAngle d 0.5]\n",
              rowsOf("Length,Weight,EndCutAngle [rad]\n2,3,0.5\n"));
}

TEST(PartsListTest, AKindOfTheTemplateNeedsAUnitAsOneOfTheCatalogueDoes)
{
    const auto faultWith = [](const std::string& kind)
    {
        MemorySource source("parts.csv", "Fire\n4\n");
        CsvReader records(source);
        PartsList parts(records);
        ReportTemplate shown = TemplateReader::read("list.json", "{ \"tokenUnits\": { \"%Fire\": \"" + kind +
                                                                     "\" }, \"sections\": [ { \"type\": \"kDetails\", "
                                                                     "\"tuples\": [ { \"token\": \"%Fire\" } ] } ] }");
        shown.pTemplate->setUnitsForTokens(nullptr);
        shown.pTemplate->findUsedTokens();
        return faultOf([&] { parts.readRows(*shown.pTemplate); });
    };

    EXPECT_EQ("", faultWith("kDistanceUnit"));
    EXPECT_EQ("3 parts.csv:2: column \"Fire\": found \"4\", expected a number with its unit: write the heading "
              "\"Fire [m2/m]\", or give --input-unit %Fire=m2/m\n",
              faultWith("kAreaPerDistanceUnit"));
}

// Its numbers were printed in mm, below a heading that named no unit.
TEST(PartsListTest, AUnitThatTheTemplateDeniesIsRefused)
{
    const auto faultWith = [](const std::string& heading, const std::string& token)
    {
        const std::string text = heading + ",Name\n7.5,x\n";
        MemorySource source("parts.csv", text);
        CsvReader records(source);
        PartsList parts(records);
        ReportTemplate shown = TemplateReader::read("list.json", R"({ "tokenUnits": { "%Length": "kNoUnit", )"
                                                                 R"("%Gap": "kNoUnit" }, "sections": [ )"
                                                                 R"({ "type": "kDetails", "tuples": [ { "token": ")" +
                                                                     token + "\" } ] } ] }");
        shown.pTemplate->setUnitsForTokens(nullptr);
        shown.pTemplate->findUsedTokens();
        return faultOf([&] { parts.readRows(*shown.pTemplate); });
    };

    EXPECT_EQ("3 parts.csv:1: column \"Length [ft]\": found unit \"ft\", expected none: the template says that %Length "
              "has no unit\n",
              faultWith("Length [ft]", "%Length"));
    EXPECT_EQ("3 parts.csv:1: column \"Gap [in]\": found unit \"in\", expected none: the template says that %Gap has "
              "no unit\n",
              faultWith("Gap [in]", "%Gap"));
    EXPECT_EQ("", faultWith("Gap [in]", "%Name")) << "nobody wants it";
    EXPECT_EQ("", faultWith("Gap", "%Gap"));
}

TEST(PartsListTest, TextsOfTheCatalogueStayAsTheyAreWritten)
{
    EXPECT_EQ(": [%Name t 1E5] [%Material t 1.10]\n: [%Name t 0012] [%Material t 2]\n",
              rowsOf("Name,Material\n1E5,1.10\n0012,2\n"));
}

TEST(PartsListTest, ColumnsThatTheListComputesWithMustBeNumbers)
{
    const auto outcomeOf = [](const std::string& token, const char* pText)
    {
        MemorySource source("parts.csv", pText);
        CsvReader records(source);
        PartsList parts(records);
        const ReportTemplate shown = templateShowing({ token });
        const std::string fault = faultOf([&] { parts.readRows(*shown.pTemplate); });
        return fault.empty()
                   ? std::string(1, letterOf(shown.pTemplate->getBomData()->child()->getData()[0].value().type()))
                   : fault;
    };

    EXPECT_EQ("t", outcomeOf("%Price", "Price\n2\nn/a\n"));
    for (const char* const token : { "%SumBy:%Price", "%Formula:%Price*2", "%SumBy:%Formula:2*%Price" })
    {
        EXPECT_EQ("3 parts.csv:3: error MB601: column \"Price\": found \"n/a\", expected a number; help: the list "
                  "computes with "
                  "%Price\n",
                  outcomeOf(token, "Price\n2\nn/a\n"));
        EXPECT_EQ("i", outcomeOf(token, "Price\n0012\n3\n"));
        EXPECT_EQ("d", outcomeOf(token, "Price\n2\n3000000000\n"));
        EXPECT_EQ("d", outcomeOf(token, "Price\n2\n1e2\n"));
    }
}

TEST(PartsListTest, TheTemplateSaysWhatATokenOfItsOwnIs)
{
    const auto outcomeOf = [](eOwnToken kind, const char* pText)
    {
        MemorySource source("parts.csv", pText);
        CsvReader records(source);
        PartsList parts(records);
        parts.setOwnTokens({ { "%Rev", kind } });
        const ReportTemplate shown = templateShowing({ "%Rev" });
        const std::string fault = faultOf([&] { parts.readRows(*shown.pTemplate); });
        if (!fault.empty())
            return fault;
        const VorBomDataValue& value = shown.pTemplate->getBomData()->child()->getData()[0].value();
        return std::string(1, letterOf(value.type())) + " " + toUtf8(value.asString());
    };

    EXPECT_EQ("t 1.10", outcomeOf(kOwnText, "Rev\n1.10\n"));
    EXPECT_EQ("d 100000", outcomeOf(kOwnNumber, "Rev\n1E5\n"));
    EXPECT_EQ(
        "3 parts.csv:2: error MB601: column \"Rev\": found \"A\", expected a number; help: the template says that %Rev "
        "is a number\n",
        outcomeOf(kOwnNumber, "Rev\nA\n"));
    EXPECT_EQ("3 parts.csv:1: column \"Rev [mm]\": found unit \"mm\", expected none: %Rev is a text\n",
              outcomeOf(kOwnText, "Rev [mm]\n1\n"));
}

TEST(PartsListTest, RowsAreOnePieceWhereTheyDoNotSayHowMany)
{
    for (const char* const text : { "%Name\nx\n", "%Name,%Quantity\nx,\n" })
    {
        MemorySource source("parts.csv", text);
        CsvReader records(source);
        PartsList parts(records);
        const ReportTemplate shown = templateShowing({ "%SumBy:%Quantity" });

        parts.readRows(*shown.pTemplate);

        const VorBomDataTuple* const pPieces = shown.pTemplate->getBomData()->child()->getTupleAt(L"%Quantity");
        ASSERT_NE(nullptr, pPieces);
        EXPECT_EQ(VorBomDataValue::kIntData, pPieces->value().type());
        EXPECT_EQ(VorString(L"1"), pPieces->value().asString());
    }
}

TEST(PartsListTest, RowTotalsAreDividedInTheUnitOfTheirColumn)
{
    MemorySource source("parts.csv", "Weight [lb],Price,Quantity\n100,5,4\n10,,\n");
    CsvReader records(source);
    PartsList parts(records);
    parts.setRowTotal("%Weight");
    parts.setRowTotal("%Price");
    const ReportTemplate shown = templateShowing({ "%Weight", "%Price" });

    parts.readRows(*shown.pTemplate);

    const VorBomItemBase* const pFirst = shown.pTemplate->getBomData()->child();
    EXPECT_EQ(VorString(L"11.3398"), pFirst->getTupleAt(L"%Weight")->value().asString());
    EXPECT_EQ(VorString(L"1.25"), pFirst->getTupleAt(L"%Price")->value().asString());
    EXPECT_EQ(VorString(L"4.53592"), pFirst->next()->getTupleAt(L"%Weight")->value().asString());
}

TEST(PartsListTest, HeadingsOfTheTradeAreTokens)
{
    EXPECT_EQ(": [%PNum t B1] [%Name t HEA200] [%Material t S355] [%Quantity i 2] [%Length d 6000]\n",
              rowsOf("Mark,Profil,Werkstoff,Anzahl,Length m\nB1,HEA200,S355,2,6\n"));
    EXPECT_EQ(": [%Quantity i 4] [%Weight d 2.5]\n", rowsOf("Qty,Gesamtgewicht\n4,10\n"));
    EXPECT_EQ(": [%Quantity i 4] [%Weight d 10]\n", rowsOf("Qty,Gewicht\n4,10\n"));
}

TEST(PartsListTest, WhatIsInDoubtIsRefusedWhereItIsAskedFor)
{
    const auto faultFor = [](const char* pHeader, const char* pToken)
    {
        MemorySource source("parts.csv", pHeader);
        CsvReader records(source);
        PartsList parts(records);
        return faultOf([&] { parts.readRows(*templateShowing({ pToken }).pTemplate); });
    };

    EXPECT_EQ("3 parts.csv:1: column \"Position\": may be %PNum or %Num: say which, as in --map \"Position=%PNum\"\n",
              faultFor("Name,Position\n", "%PNum"));
    EXPECT_EQ("", faultFor("Name,Position\n", "%Name"));
    EXPECT_EQ("", faultFor("Name,Position\n", "%Position"));
    EXPECT_EQ(
        "3 parts.csv:1:1: columns \"Name\" and \"Profile\" may both be %Name: say what one of them is instead, as "
        "in --map \"Profile=%Other\"\n",
        faultFor("Name,Profile\n", "%Name"));
    EXPECT_NE("", faultFor("Name,Total weight\n", "%Weight"));
    EXPECT_NE("", faultFor("Qty,Weight,Unit weight\n", "%Weight"));
}

TEST(PartsListTest, MappingsNameColumns)
{
    MemorySource source("parts.csv", "Cost code,Profile,Brutto (lb)\nX,HEA200,100\n");
    CsvReader records(source);
    HeadingChoices choices;
    choices.mappings = { { "Cost code", "%UserAttr1" }, { "Brutto", "%Weight" } };
    PartsList parts(records, choices);

    EXPECT_EQ(": [%UserAttr1 t X] [%Name t HEA200] [%Weight d 45.3592]\n", rowsOf(parts));
}

TEST(PartsListTest, MappingsThatCannotBeFollowedAreRefused)
{
    const auto faultWith = [](const HeadingMapping& mapping)
    {
        return faultOf(
            [&]
            {
                MemorySource source("parts.csv", "Cost code,%Weight,Wt,Colour\n");
                CsvReader records(source);
                HeadingChoices choices;
                choices.mappings = { mapping };
                const PartsList parts(records, choices);
            });
    };

    EXPECT_EQ("2 --map Cost cod=%UserAttr1: parts.csv has no column \"Cost cod\": did you mean \"Cost code\"?\n",
              faultWith({ "Cost cod", "%UserAttr1", true }));
    EXPECT_EQ("", faultWith({ "Cost cod", "%UserAttr1", false }));
    EXPECT_EQ("3 parts.csv:1: found column \"%Weight\" twice, as \"%Weight\" and \"Wt\"\n",
              faultWith({ "Wt", "%Weight", true }));
}

TEST(PartsListTest, TheReadingOfHeadingsIsToldWhereItIsOfUse)
{
    MemorySource source("parts.csv", "Mark,Name,Qty,Total weight,Colour\n");
    CsvReader records(source);
    const PartsList parts(records);

    EXPECT_EQ("parts.csv: \"Mark\" -> %PNum, \"Total weight\" -> %Weight of all pieces",
              messageOf(*parts.readingOf({ "%PNum", "%Name", "%Weight", "%Colour" })));
    EXPECT_FALSE(parts.readingOf({ "%Name", "%Colour" }));
}

TEST(PartsListTest, RowTotalsAreOfColumnsWithNumbers)
{
    const auto faultWith = [](const char* pToken)
    {
        MemorySource source("parts.csv", "Name,Quantity,Weight\nx,4,2\n");
        CsvReader records(source);
        PartsList parts(records);
        return faultOf(
            [&]
            {
                parts.setRowTotal(pToken);
                parts.readRows(*templateShowing({}).pTemplate);
            });
    };

    EXPECT_EQ("", faultWith("%Weight"));
    EXPECT_EQ("2 --row-totals %Wieght: parts.csv has no column \"%Wieght\"\n", faultWith("%Wieght"));
    EXPECT_EQ("2 --row-totals %Name: %Name is a text\n", faultWith("%Name"));
    EXPECT_EQ("2 --row-totals %Quantity: %Quantity is a whole number\n", faultWith("%Quantity"));
}

TEST(PartsListTest, RepeatedHandlesAreFoundAndStopNothing)
{
    MemorySource source("parts.csv", "Handle,Name\n2A0,x\n2A0,y\n");
    CsvReader records(source);
    PartsList parts(records);

    parts.readRows(*templateShowing({ "%Name" }).pTemplate);

    ASSERT_EQ(1u, parts.findings().size());
    EXPECT_EQ("handle \"2A0\" stands in rows 1 and 2", parts.findings().front().statement);
}

// What a format with numbers of its own hands over.
TEST(PartsListTest, AHeadingMustNotBeRefused)
{
    Finding refusal;
    refusal.found = "a date";
    FakeSource source({ { textCell("Name"), RecordCell(refusal), RecordCell(refusal) } });

    EXPECT_EQ("3 parts.xyz:1: /1: found a date\n3 parts.xyz:1: /2: found a date\n",
              faultOf([&] { PartsList parts(source); }));
}

TEST(PartsListTest, StoredNumbersAreTakenAsTheyAreAndAsTextsWhereTheColumnHasTexts)
{
    FakeSource source(
        { { textCell("Handle"), textCell("Name"), textCell("Quantity"), textCell("Length [m]"), textCell("Other") },
          { RecordCell(7.0), RecordCell(120.5), RecordCell(4.0), RecordCell(0.1), RecordCell(3.0) },
          { RecordCell(), RecordCell(), RecordCell(), textCell("1 ft"), RecordCell(2.5) } });
    PartsList parts(source);

    EXPECT_EQ("7: [%Handle t 7] [%Name t 120.5] [%Quantity i 4] [%Length d 100] [%Other d 3]\n"
              ": [%Length d 304.8] [%Other d 2.5] [%Quantity i 1]\n",
              rowsOf(parts));
}

TEST(PartsListTest, StoredNumbersThatDoNotFitAreNamedAsTextsAre)
{
    FakeSource source({ { textCell("Quantity"), textCell("Length [ft-in]") },
                        { RecordCell(2.5), RecordCell(90.0) },
                        { RecordCell(3e9), RecordCell() } });
    PartsList parts(source);

    EXPECT_EQ(
        "3 parts.xyz:2: /0: column \"Quantity\": found \"2.5\", expected a whole number\n"
        "3 parts.xyz:2: /1: column \"Length [ft-in]\": found \"90\", expected feet and inches such as 7'-6 1/2\": "
        "every number needs its mark\n"
        "3 parts.xyz:3: /0: column \"Quantity\": found \"3000000000\", expected a whole number from -2147483648 to "
        "2147483647\n",
        faultOf([&parts] { rowsOf(parts); }));
}

TEST(PartsListTest, RaggedRowsAreNamedWithBothCounts)
{
    EXPECT_EQ("3 parts.csv:2: found 1 field, expected 2 as in the header row\n"
              "3 parts.csv:4: found 3 fields, expected 2 as in the header row\n",
              faultIn("a,b\n1\n1,2\n1,2,3\n"));
}

TEST(PartsListTest, TheHeaderRowNamesEachColumnOnce)
{
    EXPECT_EQ("3 parts.csv:1: found column \"%Weight\" a second time\n", faultIn("Weight,%Weight [kg]\n"));
    EXPECT_EQ("3 parts.csv:1: found no name in field 2, expected a column name\n", faultIn("a,,b\n"));
    EXPECT_EQ("3 parts.csv: found nothing, expected a header row with column names\n", faultIn(""));
    EXPECT_EQ("3 parts.csv: found nothing, expected a header row with column names\n", faultIn("\n\n"));
}

TEST(PartsListTest, AHeaderRowAloneIsAListWithoutRows)
{
    EXPECT_EQ("", rowsOf("%Name,%Weight\n"));
}

TEST(PartsListTest, NothingIsLeakedByARefusedList)
{
    const LeakCheck leakCheck;

    EXPECT_NE("", faultIn("%Name,%Weight\nx,1\ny,2\nz,abc\n"));
}

TEST(PartsListTest, LongListsAreTheSameWithOneThreadAndWithTwo)
{
    std::string text = "Handle,%Name,%Length,%Quantity,%Other,Note\n";
    for (int i = 0; i < 15'000; ++i)
    {
        const std::string number = std::to_string(i);
        text += number + ",B" + std::to_string(i % 1000) + (i % 7 == 0 ? ",7.5 ft," : "," + number + ".5,") +
                (i % 3 == 0 ? "" : "4") + "," + number + ",\"a \"\"note\"\" on row " + number + "\"\n";
    }

    const std::string rows = rowsOrFaultOf(text, 1);

    EXPECT_EQ(0u, rows.find("0: [%Handle t 0] [%Name t B0] [%Length d 2286]"));
    EXPECT_EQ(rows, rowsOrFaultOf(text, 2));
    EXPECT_EQ(rows, rowsOrFaultOf(text, 8));
}

// Row 8192 is the last that is read before a thread is started; a batch has 512.
TEST(PartsListTest, LongListsHaveTheSameMistakesWithOneThreadAndWithTwo)
{
    const std::vector<std::string> lines(15'001, "B1,12.5");
    for (const std::size_t row : { 1u, 512u, 513u, 8192u, 8193u, 8704u, 8705u, 15'000u })
        for (const char* const pMistake : { "B1,x", "B1", "B1,12.5,", "B1,\"12.5", "B1,12\"5", "B1,\xFF" })
        {
            std::vector<std::string> wrong = lines;
            wrong[0] = "%Name,%Length";
            wrong[row] = pMistake;
            wrong[14'000] = "B1,y";
            std::string text;
            for (const std::string& line : wrong)
                text += line + "\n";

            const std::string fault = rowsOrFaultOf(text, 1);

            EXPECT_NE(std::string::npos, fault.find("3 parts.csv:" + std::to_string(row + 1))) << fault;
            EXPECT_EQ(fault, rowsOrFaultOf(text, 2));
        }
}
}
