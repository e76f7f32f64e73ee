#include "TemplateReader.h"

#include "Utf8.h"

#include "Support/HostTestSupport.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
ReportTemplate templateOf(const std::string& text)
{
    return TemplateReader::read("list.json", text);
}

std::string faultIn(const std::string& text)
{
    return faultOf([&text] { templateOf(text); });
}

// A template with these members and one section that shows %Name.
std::string faultInRoot(const std::string& members)
{
    return faultIn("{ " + members +
                   ", \"sections\": [ { \"type\": \"kDetails\", \"tuples\": [ { \"token\": \"%Name\" } ] } ] }");
}

// A template whose only section has these members.
std::string faultInSection(const std::string& members)
{
    return faultIn("{ \"sections\": [ { " + members + " } ] }");
}

std::string listOf(const ReportTemplate& reportTemplate)
{
    VorString text;
    reportTemplate.pTemplate->list(text, 0, 1, 1);
    return Utf8::toBytes(text);
}

const char* const kTwoLevels = R"({
  // Weight by material.
  "$schema": "mekbom-template.schema.json",
  "title": "Weights",
  "queryFilter": "%Weight",
  "presentationOptions": 6,
  "tokenUnits": { "%PosNum": "kNoUnit", "%Cut": "kAngleUnit" },
  "columns": [
    { "token": "%Material", "label": "Grade", "width": 8, "align": "right" },
    { "token": "%Weight" }
  ],
  "sections": [
    { "type": "kReportHeader", "print": false,
      "children": [
        { "type": "kGroupHeader",
          "tuples": [ { "token": "%GroupBy:%Material", "value": "" }, { "token": "%Material" }, { "token": "%N", "value": 7 } ],
          "children": [ { "type": "kDetails", "tuples": [ { "token": "%Weight", "value": null } ] } ] },
        { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0, "column": "%Weight" } ] }
      ] },
    { "type": "kReportFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Weight", "value": 2.5 } ] }
  ]
})";
}

TEST(TemplateReaderTest, SectionsAndTuplesAreThoseOfTheFile)
{
    const ReportTemplate reportTemplate = templateOf(kTwoLevels);

    EXPECT_EQ("[ kBomTemplate ]\n"
              " [ kReportHeader]\n"
              "  [ kGroupHeader ][%GroupBy:%Material:][%Material:][%N:7]\n"
              "   [ kDetails     ][%Weight:]\n"
              "  [ kGroupFooter ][%SumBy:%Weight:0]\n"
              " [ kReportFooter][%SumBy:%Weight:2.5]",
              listOf(reportTemplate));
}

TEST(TemplateReaderTest, ValuesHaveTheTypeTheyAreWrittenWith)
{
    const ReportTemplate reportTemplate = templateOf(
        R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%A", "value": 0 }, { "token": "%B", "value": 0.0 },
             { "token": "%C", "value": "0" }, { "token": "%D", "value": null }, { "token": "%E" }, { "token": "%F", "value": 1e2 } ] } ] })");
    const VorBomDataTupleArray& tuples = reportTemplate.pTemplate->child()->getData();

    ASSERT_EQ(6, tuples.length());
    EXPECT_EQ(VorBomDataValue::kIntData, tuples[0].value().type());
    EXPECT_EQ(VorBomDataValue::kDoubleData, tuples[1].value().type());
    EXPECT_EQ(VorBomDataValue::kStringData, tuples[2].value().type());
    EXPECT_EQ(VorBomDataValue::kUnknownData, tuples[3].value().type());
    EXPECT_EQ(VorBomDataValue::kUnknownData, tuples[4].value().type());
    EXPECT_EQ(VorBomDataValue::kDoubleData, tuples[5].value().type());
}

TEST(TemplateReaderTest, SettingsReachTheEnginesTemplate)
{
    const ReportTemplate reportTemplate = templateOf(kTwoLevels);
    VorBomTemplate& engine = *reportTemplate.pTemplate;

    EXPECT_EQ(VorString(L"%Weight"), engine.getQueryFilter());
    EXPECT_TRUE(engine.isObjectPresentationOptionOn(static_cast<VorBomTemplate::eObjectsPresentationOptions>(6)));
    EXPECT_FALSE(engine.isObjectPresentationOptionOn(static_cast<VorBomTemplate::eObjectsPresentationOptions>(1)));
    EXPECT_EQ(VorBomTemplateUnits::kAngleUnit, engine.getBomTemplateUnits()->getUnitType(L"%Cut"));
    EXPECT_TRUE(reportTemplate.queryFilter.names(L"%Weight"));
}

TEST(TemplateReaderTest, WhatIsForPrintingStaysWithTheProgram)
{
    const ReportTemplate reportTemplate = templateOf(kTwoLevels);
    const VorBomItemBase* const pHeader = reportTemplate.pTemplate->child();

    EXPECT_EQ("Weights", reportTemplate.title);
    ASSERT_EQ(2u, reportTemplate.columns.size());
    EXPECT_EQ(VorString(L"%Material"), reportTemplate.columns[0].token);
    EXPECT_EQ("Grade", reportTemplate.columns[0].label);
    EXPECT_EQ(8, reportTemplate.columns[0].width);
    EXPECT_EQ(ColumnStyle::kRight, reportTemplate.columns[0].alignment);
    EXPECT_EQ("", reportTemplate.columns[1].label);
    EXPECT_EQ(0, reportTemplate.columns[1].width);
    EXPECT_EQ(ColumnStyle::kByType, reportTemplate.columns[1].alignment);
    EXPECT_FALSE(reportTemplate.styleOf(pHeader).isPrinted);
    EXPECT_TRUE(reportTemplate.styleOf(pHeader->child()).isPrinted);
    EXPECT_EQ("Total", reportTemplate.styleOf(pHeader->next()).label);
}

TEST(TemplateReaderTest, EverySectionAndUnitTypeHasItsName)
{
    const char* const sections[] = { "kReportHeader", "kPageHeader", "kGroupHeader", "kDetails",
                                     "kGroupFooter",  "kPageFooter", "kReportFooter" };
    const char* const units[] = { "kNoUnit",     "kDistanceUnit",          "kWeightUnit",          "kAreaUnit",
                                  "kAngleUnit",  "kWeightPerDistanceUnit", "kAreaPerDistanceUnit", "kReservedUnitType",
                                  "kDensityUnit" };

    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(VorBomTemplateItem::kReportHeader + i,
                  static_cast<VorBomTemplateItem*>(
                      templateOf("{ \"sections\": [ { \"type\": \"" + std::string(sections[i]) + "\" } ] }")
                          .pTemplate->child())
                      ->type());
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(i, templateOf("{ \"tokenUnits\": { \"%A\": \"" + std::string(units[i]) +
                                "\" }, \"sections\": [ { \"type\": \"kDetails\" } ] }")
                         .pTemplate->getBomTemplateUnits()
                         ->getUnitType(L"%A"));
}

TEST(TemplateReaderTest, UnknownKeysAreNamedWithTheKnownOnes)
{
    EXPECT_EQ(
        "3 list.json:1:3: found unknown key \"titel\", expected \"$schema\", \"title\", \"queryFilter\", "
        "\"presentationOptions\", \"tokenUnits\", \"tokens\", \"headings\", \"equalLines\", \"allow\", \"columns\" "
        "or \"sections\": did you mean \"title\"?\n",
        faultInRoot("\"titel\": \"x\""));
    EXPECT_EQ("3 list.json:1:19: /sections/0: found unknown key \"Type\", expected \"type\", \"print\", \"label\", "
              "\"summary\", \"orderGroups\", \"tuples\" or \"children\": did you mean \"type\"?\n"
              "3 list.json:1:17: /sections/0: found no key \"type\", expected one\n",
              faultInSection("\"Type\": \"kDetails\""));
}

TEST(TemplateReaderTest, WrongKindsAreNamedWithTheirPathAndPlace)
{
    EXPECT_EQ("3 list.json:1:1: found an array, expected an object\n", faultIn("[]"));
    EXPECT_EQ("3 list.json:1:12: /title: found the number 5, expected a text\n", faultInRoot("\"title\": 5"));
    EXPECT_EQ("3 list.json:1:26: /presentationOptions: found the number 2.5, expected a whole number\n",
              faultInRoot("\"presentationOptions\": 2.5"));
    EXPECT_EQ("3 list.json:1:17: /tokenUnits: found an array, expected an object\n", faultInRoot("\"tokenUnits\": []"));
    EXPECT_EQ("3 list.json:1:15: /columns/0: found \"%Name\", expected an object\n",
              faultInRoot("\"columns\": [\"%Name\"]"));
    EXPECT_EQ("3 list.json:1:48: /sections/0/print: found \"no\", expected true or false\n",
              faultInSection("\"type\": \"kDetails\", \"print\": \"no\""));
    EXPECT_EQ("3 list.json:1:50: /sections/0/tuples/0: found no key \"token\", expected one\n",
              faultInSection("\"type\": \"kDetails\", \"tuples\": [{}]"));
    EXPECT_EQ("3 list.json:2:2: /sections/0/tuples/0/value: found true, expected a number, a text or null\n",
              faultInSection("\"type\": \"kDetails\", \"tuples\": [{ \"token\": \"%A\", \"value\":\n true }]"));
    EXPECT_EQ(
        "3 list.json:2:2: /sections/0/tuples/0/value: found the number 3000000000, expected one from -2147483648 to "
        "2147483647\n",
        faultInSection("\"type\": \"kDetails\", \"tuples\": [{ \"token\": \"%A\", \"value\":\n 3000000000 }]"));
    EXPECT_EQ("3 list.json:1:61: /sections/0/tuples/0/token: found an empty text, expected another\n",
              faultInSection("\"type\": \"kDetails\", \"tuples\": [{ \"token\": \"\" }]"));
}

TEST(TemplateReaderTest, UnknownNamesAreNamedWithTheKnownOnes)
{
    EXPECT_EQ("3 list.json:1:26: /sections/0/type: found \"kDetail\", expected \"kReportHeader\", \"kPageHeader\", "
              "\"kGroupHeader\", \"kDetails\", \"kGroupFooter\", \"kPageFooter\" or \"kReportFooter\": did you "
              "mean \"kDetails\"?\n",
              faultInSection("\"type\":\"kDetail\""));
    EXPECT_EQ(
        "3 list.json:1:24: /tokenUnits/%A: found \"kg\", expected \"kNoUnit\", \"kDistanceUnit\", \"kWeightUnit\", "
        "\"kAreaUnit\", \"kAngleUnit\", \"kWeightPerDistanceUnit\", \"kAreaPerDistanceUnit\", \"kReservedUnitType\" or "
        "\"kDensityUnit\"\n",
        faultInRoot("\"tokenUnits\": { \"%A\":\"kg\" }"));
    EXPECT_EQ("3 list.json:1:42: /columns/0/align: found \"centre\", expected \"left\" or \"right\"\n",
              faultInRoot("\"columns\": [ { \"token\":\"%Name\",\"align\":\"centre\" } ]"));
    EXPECT_EQ("3 list.json:1:42: /columns/0/width: found the number 0, expected one from 1 to 200\n",
              faultInRoot("\"columns\": [ { \"token\":\"%Name\",\"width\":0 } ]"));
    EXPECT_EQ("3 list.json:1:18: /queryFilter: found \"BoltName\", expected a condition such as "
              "%BoltName, !%BoltName, %Material = 'S355' or %Length > 6 m\n",
              faultInRoot("\"queryFilter\": \"BoltName\""));
}

TEST(TemplateReaderTest, AllFaultsAreReportedAtOnce)
{
    EXPECT_EQ("3 list.json:1:12: /title: found the number 5, expected a text\n"
              "3 list.json:1:30: /queryFilter: found the number 6, expected a text\n",
              faultInRoot("\"title\": 5, \"queryFilter\": 6"));
}

TEST(TemplateReaderTest, ATemplateHasSections)
{
    EXPECT_EQ("3 list.json:1:1: found no section, expected at least one in \"sections\"\n", faultIn("{}"));
    EXPECT_EQ("3 list.json:1:1: found no section, expected at least one in \"sections\"\n",
              faultIn("{ \"sections\": [] }"));
}

TEST(TemplateReaderTest, AColumnIsDescribedOnceAndShown)
{
    EXPECT_EQ("3 list.json:1:37: /columns/1: found column \"%Name\" a second time\n",
              faultInRoot("\"columns\": [ { \"token\":\"%Name\" }, { \"token\":\"%Name\" } ]"));
    EXPECT_EQ("3 list.json:1:15: /columns/0: found column \"%Nmae\", which no printed section shows\n",
              faultInRoot("\"columns\": [{ \"token\":\"%Nmae\" }]"));
    EXPECT_EQ("", faultIn(R"({ "columns": [ { "token": "%Weight" }, { "token": "%Pieces" } ],
                  "sections": [ { "type": "kDetails", "tuples": [ { "token": "%SumBy:%Weight" },
                                                                  { "token": "%Quantity", "column": "%Pieces" } ] } ] })"));
}

TEST(TemplateReaderTest, OnlyMistakesOfAuthorsCanBeExcused)
{
    const std::string sections = R"(, "sections": [ { "type": "kDetails" } ] })";

    EXPECT_EQ("two are one", templateOf(R"({ "allow": { "MB105": "two are one" })" + sections).allowed.at("MB105"));
    EXPECT_EQ("3 list.json:1:23: /allow/MB805: found \"MB805\", expected the code of a mistake, such as \"MB105\"\n",
              faultIn(R"({ "allow": { "MB805": "reason" })" + sections));
}

TEST(TemplateReaderTest, HeadingsStandForTokensOfRows)
{
    const std::string sections = R"(, "sections": [ { "type": "kDetails" } ] })";
    using Pairs = std::vector<std::pair<std::string, std::string>>;

    EXPECT_EQ((Pairs{ { "Cost code", "%UserAttr1" }, { "Surface/m", "%%PaintMeter" }, { "Bay", "%Bay" } }),
              templateOf(R"({ "headings": { "Cost code": "%UserAttr1", "Surface/m": "%%PaintMeter", "Bay": "%Bay" })" +
                         sections)
                  .headings);
    for (const char* const token : { "UserAttr1", "%SumBy:%Weight", "%Formula:%Weight*2", "%GroupBy:%Name" })
        EXPECT_EQ("3 list.json:1:22: /headings/A: found \"" + std::string(token) +
                      "\", expected a token such as \"%UserAttr1\"\n",
                  faultIn(R"({ "headings": { "A": ")" + std::string(token) + "\" }" + sections))
            << token;
    EXPECT_NE("", faultIn(R"({ "headings": { "A": 5 })" + sections));
    EXPECT_NE("", faultIn(R"({ "headings": [])" + sections));
}

TEST(TemplateReaderTest, NothingIsLeakedByARefusedTemplate)
{
    const LeakCheck leakCheck;

    EXPECT_NE("", faultIn(R"({ "sections": [ { "type": "kDetails", "children": [ { "type": "kNone" } ] } ] })"));
}

namespace
{
// Three levels, of which the one with `members` may print its groups alone.
std::string summaryOf(const std::string& group, const std::string& details = "")
{
    return R"({ "equalLines": "merge", "sections": [
        { "type": "kReportHeader", "children": [
          { "type": "kGroupHeader")" +
           group + R"(, "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%Material" } ], "children": [
            { "type": "kDetails")" +
           details + R"(, "tuples": [ { "token": "%Name" } ] },
            { "type": "kGroupFooter", "tuples": [ { "token": "%Name" } ] } ] },
          { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] } ] })";
}

// Which sections have a line: "h" for headers, "f" for footers, with their level.
std::string printedIn(const ReportTemplate& reportTemplate)
{
    std::string printed;
    int level = 0;
    for (const VorBomItemBase* pHeader = reportTemplate.pTemplate->child(); pHeader != nullptr;
         pHeader = pHeader->child(), ++level)
    {
        printed += reportTemplate.hasLine(*pHeader) ? "h" + std::to_string(level) + " " : "";
        printed += pHeader->next() != nullptr && reportTemplate.hasLine(*pHeader->next())
                       ? "f" + std::to_string(level) + " "
                       : "";
    }
    return printed;
}
}

TEST(TemplateReaderTest, BelowASummaryNothingIsPrintedAndNothingMerges)
{
    const ReportTemplate groups = templateOf(summaryOf(", \"summary\": true"));

    EXPECT_EQ("h1 f1 ", printedIn(groups));
    EXPECT_EQ(kKeepEqualLines, groups.equalLines);
    EXPECT_EQ("h1 f1 h2 f2 ", printedIn(templateOf(summaryOf(", \"summary\": false"))));
}

TEST(TemplateReaderTest, DetailsThatAreASummaryAreNotPrinted)
{
    const ReportTemplate details = templateOf(summaryOf("", ", \"summary\": true"));

    EXPECT_EQ("h1 f1 f2 ", printedIn(details));
    EXPECT_EQ(kKeepEqualLines, details.equalLines);
}
}
