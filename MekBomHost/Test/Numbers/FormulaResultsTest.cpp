#include "FormulaResults.h"

#include "TemplateReader.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
ReportTemplate templateOf(const std::string& members, const std::string& details, const std::string& footer = "")
{
    ReportTemplate reportTemplate = TemplateReader::read("list.json",
                                                         "{ " + members +
                                                             R"( "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kDetails", "tuples": [ )" + details + R"( ] } ] }, { "type": "kReportFooter", "tuples": [ )" +
                                                             footer + " ] } ] }");
    reportTemplate.pTemplate->setUnitsForTokens(nullptr);
    return reportTemplate;
}

// The messages of all errors, a line each.
std::string undeclaredIn(const ReportTemplate& reportTemplate)
{
    std::string text;
    for (const Finding& finding : FormulaResults(reportTemplate).undeclared())
        text += finding.code + " " + finding.path + ": " + finding.statement + "\n";
    return text;
}
}

TEST(FormulaResultsTest, KindsFollowFromTheTokens)
{
    const ReportTemplate list = templateOf("", R"({ "token": "%Formula:%Length*%WeightMeter" })",
                                           R"({ "token": "%SumBy:%Formula:%Length*%WeightMeter" })");
    const FormulaResults results(list);

    ASSERT_NE(nullptr, results.find(L"%Formula:%Length*%WeightMeter"));
    EXPECT_EQ(VorBomTemplateUnits::kWeightUnit, results.find(L"%Formula:%Length*%WeightMeter")->kind);
    EXPECT_EQ(results.find(L"%Formula:%Length*%WeightMeter"), results.find(L"%SumBy:%Formula:%Length*%WeightMeter"));
    EXPECT_EQ(nullptr, results.find(L"%Formula:%Length*2"));
    EXPECT_EQ(nullptr, results.find(L"%Weight"));
    EXPECT_EQ("", undeclaredIn(list));
}

TEST(FormulaResultsTest, WhatTheColumnOfDetailsSaysHoldsForTotalsInOthers)
{
    const ReportTemplate list =
        templateOf(R"("columns": [ { "token": "%Cost", "result": "EUR" }, { "token": "%Sum" } ],)",
                   R"({ "token": "%Formula:%Weight*%Price", "column": "%Cost" })",
                   R"({ "token": "%SumBy:%Formula:%Weight*%Price", "value": 0.0, "column": "%Sum" })");
    const FormulaResult* const pCost = FormulaResults(list).find(L"%SumBy:%Formula:%Weight*%Price");

    ASSERT_NE(nullptr, pCost);
    EXPECT_EQ("", undeclaredIn(list));
    EXPECT_EQ("EUR", FormulaResults(list).find(L"%SumBy:%Formula:%Weight*%Price")->label);
}

TEST(FormulaResultsTest, UndeclaredResultsAreErrorsAtTheirTuple)
{
    const ReportTemplate list = templateOf("", R"({ "token": "%Name" }, { "token": "%Formula:%Weight*%Price" })",
                                           R"({ "token": "%SumBy:%Formula:%Weight*%Price", "value": 0.0 })");

    EXPECT_EQ(
        "MB421 /sections/0/children/0/tuples/1/token: \"%Weight*%Price\": weight x %Price is no kind of quantity\n",
        undeclaredIn(list));
    EXPECT_EQ(1, FormulaResults(list).undeclared().front().begin.line > 0);
}

TEST(FormulaResultsTest, ConstantsThatHideAUnitAreErrorsUntilDeclared)
{
    const char* const kBars = R"({ "token": "%Formula:%Length/1000" })";

    EXPECT_NE("", undeclaredIn(templateOf("", kBars)));
    for (const std::string result : { "none", "m", "bars" })
        EXPECT_EQ("",
                  undeclaredIn(templateOf(
                      R"("columns": [ { "token": "%Formula:%Length/1000", "result": ")" + result + R"(" } ],)", kBars)))
            << result;
}

TEST(FormulaResultsTest, TokensOfTheUsersOwnAreNumbersUnlessTheTemplateSaysText)
{
    const char* const kHours = R"({ "token": "%Formula:%Hours*2" })";

    EXPECT_EQ("",
              undeclaredIn(templateOf(R"("columns": [ { "token": "%Formula:%Hours*2", "result": "h" } ],)", kHours)));
    EXPECT_NE(std::string::npos,
              undeclaredIn(templateOf(R"("tokens": { "%Hours": "text" },)", kHours)).find("\"%Hours\" is a text"));
}

TEST(FormulaResultsTest, UnitsOfTheTemplateForAFormulaCountAsSaid)
{
    const ReportTemplate list =
        templateOf(R"("tokenUnits": { "%Length/1000": "kNoUnit", "%Width*7.85": "kWeightUnit" },)",
                   R"({ "token": "%Formula:%Length/1000" }, { "token": "%Formula:%Width*7.85" })");

    EXPECT_EQ("", undeclaredIn(list));
    EXPECT_EQ(FormulaResult::kPlain, FormulaResults(list).find(L"%Formula:%Length/1000")->measure);
    EXPECT_EQ(VorBomTemplateUnits::kWeightUnit, FormulaResults(list).find(L"%Formula:%Width*7.85")->kind);
}

// The formula printed as a length, and nobody was told.
TEST(FormulaResultsTest, UnitsOfTheTemplateMustNotContradictAFormulasTokens)
{
    const char* const kPieces = R"({ "token": "%Formula:%Weight*%Quantity" })";

    EXPECT_EQ("MB421 /sections/0/children/0/tuples/0/token: \"%Weight*%Quantity\": is weight, declared as length\n",
              undeclaredIn(templateOf(R"("tokenUnits": { "%Weight*%Quantity": "kDistanceUnit" },)", kPieces)));
    EXPECT_EQ("", undeclaredIn(templateOf(R"("tokenUnits": { "%Weight*%Quantity": "kWeightUnit" },)", kPieces)));
}

// The first one won, and the other column's heading was wrong.
TEST(FormulaResultsTest, TwoThatSaySomethingElseOfOneFormulaAreAnError)
{
    const std::string details = R"({ "token": "%Formula:%Weight*%Price", "column": "%Cost" })";
    const std::string total = R"({ "token": "%SumBy:%Formula:%Weight*%Price", "column": "%Sum" })";
    const auto told = [&](const std::string& ofCost, const std::string& ofSum, const std::string& units = "")
    {
        return undeclaredIn(templateOf(R"("columns": [ { "token": "%Cost", "result": ")" + ofCost +
                                           R"(" }, { "token": "%Sum", "result": ")" + ofSum + "\" } ]," + units,
                                       details, total));
    };

    EXPECT_EQ("MB421 /columns/1: \"%Weight*%Price\": the column \"%Cost\" says \"EUR\", and the column \"%Sum\" says "
              "\"USD\"\n",
              told("EUR", "USD"));
    EXPECT_EQ("MB421 /tokenUnits/%Weight*%Price: \"%Weight*%Price\": the column \"%Cost\" says \"EUR\", and "
              "\"tokenUnits\" says \"weight\"\n",
              told("EUR", "EUR", R"("tokenUnits": { "%Weight*%Price": "kWeightUnit" },)"));
    EXPECT_EQ("", told("EUR", "EUR", R"("tokenUnits": { "%Weight*%Price": "kNoUnit" },)"));
    EXPECT_EQ("", told("length", "distance"));
}

// Kilograms stood under "Total [lb]".
TEST(FormulaResultsTest, APlainNumberIsInTheUnitThatItsLabelNames)
{
    const auto told = [](const std::string& label)
    {
        return undeclaredIn(templateOf(R"("columns": [ { "token": "%Formula:%Weight*%Quantity", "result": "none",
                                                         "label": ")" +
                                           label + R"(" } ],)",
                                       R"({ "token": "%Formula:%Weight*%Quantity" })"));
    };

    EXPECT_EQ("MB421 /sections/0/children/0/tuples/0/token: \"%Weight*%Quantity\": gives weight, but no number of "
              "\"lb\"\n",
              told("Total [lb]"));
    EXPECT_EQ("", told("Total [kg]"));
    EXPECT_EQ("", told("Total [net]"));
    EXPECT_EQ("", told("Total"));
}

TEST(FormulaResultsTest, TheEngineIsToldTheKindsAndThatThereIsNone)
{
    const ReportTemplate list =
        templateOf(R"("columns": [ { "token": "%Formula:%Length/1000", "result": "none" } ],)",
                   R"({ "token": "%Formula:%Weight/%Length" }, { "token": "%Formula:%Length/1000" })");
    VorBomTemplateUnits& units = *list.pTemplate->getBomTemplateUnits();

    FormulaResults(list).registerWith(units);
    units.AddTokenType(L"%Length/1000", VorBomTemplateUnits::kDistanceUnit); // as the engine would

    EXPECT_EQ(VorBomTemplateUnits::kWeightPerDistanceUnit, units.getUnitType(L"%Weight/%Length"));
    EXPECT_EQ(VorBomTemplateUnits::kNoUnit, units.getUnitType(L"%Length/1000"));
}
}
