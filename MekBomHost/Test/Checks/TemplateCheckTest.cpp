#include "TemplateCheck.h"

#include "Excuses.h"
#include "MistakeExamples.h"

#include "Support/CheckedText.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

// MistakeTableTest has a template for every rule that trips it, and one that does not. Here is what lies between.

namespace mekbom
{
namespace
{
using MistakeExamples::groupedList;
using MistakeExamples::kByMaterial;
using MistakeExamples::kParts;
using MistakeExamples::kWeights;
using MistakeExamples::listOfSections;
using MistakeExamples::Tuples;

// The codes of what is found in a list with these tuples in its group header, details and group footer.
std::string codesIn(const Tuples& group, const Tuples& details, const Tuples& footer, const std::string& keys = "")
{
    return codesOf(mistakesIn(groupedList(group, details, footer, keys)));
}

std::string codesInGroup(const Tuples& group)
{
    return codesIn(group, kParts, kWeights);
}

std::string codesInDetails(const Tuples& details)
{
    return codesIn(kByMaterial, details, kWeights);
}

std::string codesInFooter(const Tuples& footer)
{
    return codesIn(kByMaterial, kParts, footer);
}
}

TEST(TemplateCheckTest, FindingsNameTheirPlaceAndTheAuthorsOwnTokens)
{
    EXPECT_EQ("list.json:5:32: error MB201: \"%GroupBy:%Material\" groups rows that are not sorted by %Material: the "
              "same group comes several times; help: \"%GroupBy:%Material\" needs \"%SortAscBy:%Material\" beside it\n",
              linesOf(mistakesIn(groupedList({ "%GroupBy:%Material", "%Material" }, kParts, kWeights))));
}

TEST(TemplateCheckTest, FindingsStandInTheOrderOfTheFile)
{
    EXPECT_EQ("MB301 MB302", codesIn(kByMaterial, { "%PNum", "%SumBy:%Weight" }, { "%SumBy:%Name" }));
}

TEST(TemplateCheckTest, APageHeaderAroundTheListIsOneAllTheSame)
{
    EXPECT_EQ("MB101", codesOf(mistakesIn(listOfSections(
                           R"({ "type": "kPageHeader", "children": [ { "type": "kDetails", "tuples": [
                               { "token": "%PNum" } ] } ] })"))));
}

TEST(TemplateCheckTest, KeysOfOneGroupMayStandInAnyOrderAndOnAnyLevel)
{
    EXPECT_EQ("", codesInGroup({ "%GroupBy:%Material,%Name", "%SortDescBy:%Name,%SortAscBy:%Material", "%Name" }));
    EXPECT_EQ("", codesIn({ "%GroupBy:%Material", "%Material" }, { "%SortAscBy:%Material", "%PNum" }, kWeights));
    EXPECT_EQ("", codesInGroup({ "%GroupBy:%Material", "%SortAscBy:%Material,%Name", "%Material" }));
    EXPECT_EQ("MB201", codesInGroup({ "%GroupBy:%Material,%Name", "%SortAscBy:%Material,%Class,%Name", "%Name" }));
}

TEST(TemplateCheckTest, AnInnerGroupsKeyInFrontOfTheOuterOnesSplitsTheOuterOne)
{
    const auto sorted = [](const std::string& outerKeys)
    {
        return codesOf(mistakesIn(listOfSections(
            R"({ "type": "kGroupHeader", "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:)" +
            outerKeys + R"(" } ], "children": [
              { "type": "kGroupHeader", "tuples": [ { "token": "%GroupBy:%Name" } ], "children": [
                { "type": "kDetails", "tuples": [ { "token": "%PNum" } ] } ] } ] })")));
    };

    EXPECT_EQ("", sorted("%Material,%Name"));
    EXPECT_EQ("MB201", sorted("%Name,%Material"));
}

TEST(TemplateCheckTest, ListsAreMendedInTheHelp)
{
    const std::string lines =
        linesOf(mistakesIn(groupedList({ "%GroupBy:%Material; %Name", "%SortAscBy:,%Material" }, kParts, kWeights)));

    EXPECT_NE(std::string::npos, lines.find("help: write \"%GroupBy:%Material,%Name\"\n")) << lines;
    EXPECT_NE(std::string::npos, lines.find("help: write \"%SortAscBy:%Material\"\n")) << lines;
}

TEST(TemplateCheckTest, EmptyDetailsAreNoMistakeWhereNoLinesMerge)
{
    EXPECT_EQ("MB105", codesInDetails({ "%SortAscBy:%PNum" }));
    EXPECT_EQ("", codesIn(kByMaterial, { "%SortAscBy:%PNum" }, kWeights, R"("equalLines": "keep")"));
    EXPECT_EQ("MB105", codesIn(kByMaterial, { "%SortAscBy:%PNum" }, kWeights, R"("equalLines": "merge")"));
}

TEST(TemplateCheckTest, ATokenOfTheUsersOwnMayTellLinesApart)
{
    EXPECT_EQ("MB106", codesInDetails({ "%Weight" }));
    EXPECT_EQ("", codesIn(kByMaterial, { "%Weight", "%Position" }, kWeights, R"("tokens": { "%Position": "text" })"));
    EXPECT_EQ("", codesIn(kByMaterial, { "%Weight" }, kWeights, R"("equalLines": "merge")"));
}

TEST(TemplateCheckTest, TotalsMayStartWithAnyZero)
{
    for (const char* const value : { "0", "0.0", "\"\"", "null" })
        EXPECT_EQ("", codesInFooter({ std::string(R"({ "token": "%SumBy:%Weight", "value": )") + value + " }" }))
            << value;
    const std::vector<Finding> text =
        mistakesIn(groupedList(kByMaterial, kParts, { R"({ "token": "%SumBy:%Weight", "value": "none" })" }));
    ASSERT_EQ("MB304", codesOf(text));
    EXPECT_EQ(Finding::kNote, text[0].severity);
}

TEST(TemplateCheckTest, AFooterMayShowWhatItsGroupHasInCommon)
{
    EXPECT_EQ("", codesInFooter({ "%Material" }));
    EXPECT_EQ("MB503", codesInFooter({ "%Name" }));
    EXPECT_EQ("MB305", codesInFooter({ "%Quantity" }));
    EXPECT_EQ("MB305", codesIn(kByMaterial, { "%PNum", "%Formula:%Weight*2" }, { "%Formula:%Weight*2" }));
}

TEST(TemplateCheckTest, FormulasAreComparedLetterByLetter)
{
    const Tuples details = { "%PNum", "%Formula:%Weight*2" };

    EXPECT_EQ("", codesIn(kByMaterial, details, { "%SumBy:%Formula:%Weight*2" }));
    EXPECT_EQ("MB306", codesIn(kByMaterial, details, { "%SumBy:%Formula:%Weight * 2" }));
    EXPECT_EQ("MB306", codesIn(kByMaterial, details, { "%SumBy:%Formula:%Weight*2 " }));
    EXPECT_EQ("MB306", codesIn({ "%GroupBy:%Material", "%SortAscBy:%Material", "%Formula:%Weight*2" }, kParts,
                               { "%SumBy:%Formula:%Weight*2" }));
    EXPECT_EQ("MB403", codesInFooter({ "%Formula:%Weight*2" }));
}

TEST(TemplateCheckTest, ATotalWasRefusedForTheBlankThatItsFormulaHasInTheDetailsToo)
{
    EXPECT_EQ("", codesIn(kByMaterial, { "%PNum", "%Formula:%Weight*2 " }, { "%SumBy:%Formula:%Weight*2 " }));
}

TEST(TemplateCheckTest, TokensAreLookedForWhereverTheyStand)
{
    EXPECT_EQ("MB501", codesInFooter({ "%SumBy:%Wieght" }));
    EXPECT_EQ("MB501", codesInFooter({ "%SumBy:Weight" }));
    EXPECT_EQ("MB421 MB501", codesInDetails({ "%PNum", "%Formula:%Weight*%Pirce" }));
    EXPECT_EQ("MB501", codesInDetails({ "%PNum", "%Sumby:%Weight" }));
    EXPECT_EQ("MB501", codesInDetails({ "%PNum", R"({ "token": "%Name", "column": "%Rloe" })" }));
    EXPECT_EQ("", codesIn(kByMaterial, { "%PNum", R"({ "token": "%Name", "column": "%Mine" })" }, kWeights,
                          R"("columns": [ { "token": "%Mine" } ])"));
    EXPECT_EQ("MB501 MB211 MB501 MB503", codesInGroup({ "%GroupBy:%Materail", "%SortAscBy:%Materail", "%Material" }));
}

TEST(TemplateCheckTest, AColumnOfTheDataIsKnown)
{
    const std::string list = groupedList(kByMaterial, { "%PNum", "%posNum" }, kWeights);

    EXPECT_EQ("MB501", codesOf(mistakesIn(list)));
    EXPECT_EQ("", codesOf(mistakesIn(list, { "%PNum", "%posNum", "%Weight", "%Material" })));
}

TEST(TemplateCheckTest, AnEntryOfTokenUnitsMustNameATokenOfTheList)
{
    EXPECT_EQ("MB501", codesIn(kByMaterial, kParts, kWeights, R"("tokenUnits": { "%Wieght": "kWeightUnit" })"));
    EXPECT_EQ("", codesIn(kByMaterial, kParts, kWeights, R"("tokenUnits": { "%SumBy:%Weight": "kWeightUnit" })"));
    EXPECT_EQ("", codesIn(kByMaterial, { "%PNum", "%Gap" }, kWeights, R"("tokenUnits": { "%Gap": "kDistanceUnit" })"));
    EXPECT_EQ("", codesIn(kByMaterial, { "%PNum", "%Formula:%Weight*2" }, kWeights,
                          R"("tokenUnits": { "%Weight*2": "kWeightUnit" })"));
}

TEST(TemplateCheckTest, AnEntryOfTokenUnitsNamesAFormulaByItsTextAlone)
{
    for (const std::string prefix : { "%Formula:", "%SumBy:%Formula:" })
        EXPECT_EQ("MB501", codesIn(kByMaterial, { "%PNum", "%Formula:%Weight*2" }, { "%SumBy:%Formula:%Weight*2" },
                                   R"("tokenUnits": { ")" + prefix + R"(%Weight*2": "kDistanceUnit" })"));
}

// Kilograms stood under the author's "Mass [lb]".
TEST(TemplateCheckTest, AnEntryOfTokenUnitsMustNotDenyTheKindOfATokenOfTheCatalogue)
{
    for (const std::string entry : { R"("%Weight": "kNoUnit")", R"("%Weight": "kDistanceUnit")",
                                     R"("%Weight": "kReservedUnitType")", R"("%SumBy:%Weight": "kNoUnit")" })
        EXPECT_EQ("MB507", codesIn(kByMaterial, kParts, kWeights, "\"tokenUnits\": { " + entry + " }")) << entry;
    EXPECT_EQ("", codesIn(kByMaterial, kParts, kWeights, R"("tokenUnits": { "%Weight": "kWeightUnit" })"));
}

TEST(TemplateCheckTest, TheTokenWithTwoPercentSignsIsNone)
{
    EXPECT_EQ("", codesInDetails({ "%PNum", "%%PaintMeter" }));
    EXPECT_EQ("MB502", codesInDetails({ "%PNum", "%%Weight" }));
    EXPECT_EQ("MB502", codesInDetails({ "%PNum", "Weight" }));
}

TEST(TemplateCheckTest, AMarkStandsForWhatDescribesItsObjects)
{
    EXPECT_EQ("", codesInGroup({ "%GroupBy:%MNum", "%SortAscBy:%MNum", "%MNum", "%MName", "%AssemblyWeight" }));
    EXPECT_EQ("MB503", codesInGroup({ "%GroupBy:%MNum", "%SortAscBy:%MNum", "%MNum", "%Material" }));
    EXPECT_EQ("", codesInGroup({ "%GroupBy:%PNum", "%SortAscBy:%PNum", "%PNum", "%Material", "%Weight" }));
}

TEST(TemplateCheckTest, TheShippedTemplatesHaveNoMistakes)
{
    for (const char* const name : { "cutting-list", "assembly-list", "bolt-list", "parts-list" })
    {
        const std::string text = readFile(std::string(MEK_EXAMPLES_DIR "/Templates/") + name + ".json");
        const Excuses excuses(TemplateReader::read("list.json", text).allowed, {});
        EXPECT_EQ("", linesOf(excuses.without(mistakesIn(text)))) << name;
    }
}

TEST(TemplateCheckTest, TheTemplatesOfTestsAndBenchmarksHaveNoMistakes)
{
    for (const char* const path :
         { MEK_TEST_DIR "/Reports/frame-weights.json", MEK_TEST_DIR "/../Bench/large-report.json" })
        EXPECT_EQ("", linesOf(mistakesIn(readFile(path)))) << path;
}

TEST(TemplateCheckTest, WhatRowsShareIsAddedByEachOfThem)
{
    EXPECT_EQ("MB308", codesInFooter({ "%SumBy:%AssemblyWeight" }));
    EXPECT_EQ("MB308", codesInFooter({ "%SumBy:%MQuantity" }));
    EXPECT_EQ("MB308", codesInFooter({ "%SumBy:%QuantityInAllAssemblyInPhase" }));
    EXPECT_EQ("MB308", codesInFooter({ "%SumBy:%LengthInModel" }));
    EXPECT_EQ("MB308", codesIn(kByMaterial, { "%PNum", "%Formula:%AssemblyWeight*%MQuantity" },
                               { "%SumBy:%Formula:%AssemblyWeight*%MQuantity" }));
    EXPECT_EQ("", codesInFooter({ "%SumBy:%Weight", "%SumBy:%Quantity" }));
}

// Whatever was shared, the weight was recommended.
TEST(TemplateCheckTest, WhatRowsShareIsReplacedByWhatEachHasOfIt)
{
    const auto remedyFor = [](const std::string& token)
    {
        const std::vector<Finding> mistakes = mistakesIn(groupedList(kByMaterial, kParts, { "%SumBy:" + token }));
        return mistakes.size() == 1 ? mistakes[0].remedy : codesOf(mistakes);
    };
    const std::string inHeader = " in the header of its group instead";
    const std::string own = inHeader + ", or sum what is the row's own: \"%SumBy:";

    EXPECT_EQ("show \"%AssemblyWeight\"" + own + "%Formula:%Weight*%Quantity\"", remedyFor("%AssemblyWeight"));
    EXPECT_EQ("show \"%AssemblyExactWeight\"" + own + "%Formula:%ExactWeight*%Quantity\"",
              remedyFor("%AssemblyExactWeight"));
    EXPECT_EQ("show \"%SawLengthInModel\"" + own + "%Formula:%SawLength*%Quantity\"", remedyFor("%SawLengthInModel"));
    EXPECT_EQ("show \"%PaintInAssembly\"" + own + "%Formula:%Paint*%Quantity\"", remedyFor("%PaintInAssembly"));
    EXPECT_EQ("show \"%QuantityInAllAssemblyInPhase\"" + own + "%Quantity\"",
              remedyFor("%QuantityInAllAssemblyInPhase"));
    EXPECT_EQ("show \"%MQuantityInPhase\"" + own + "%Formula:%IsMP*%Quantity\"", remedyFor("%MQuantityInPhase"));
}

TEST(TemplateCheckTest, WithoutDataNobodyIsToldWhatRowsHave)
{
    const std::string list = groupedList(kByMaterial, { "%PNum", "%posNum" }, kWeights);

    EXPECT_EQ("no token \"%posNum\" is known: neither the catalogue nor the template has it, and the template's own "
              "value is taken everywhere",
              mistakesIn(list)[0].statement);
    EXPECT_EQ("no token \"%posNum\" is known: no row has it, and the template's own value is taken everywhere",
              mistakesIn(list, { "%PNum" })[0].statement);
}

// Thousands of unknown tokens in a list, and as many columns in the data, took minutes.
TEST(TemplateCheckTest, AfterAHundredUnknownTokensNobodyIsAskedWhatTheyMean)
{
    Tuples details = { "%PNum" };
    for (int i = 0; i <= 100; ++i)
        details.push_back("%Wieght");
    const std::vector<Finding> mistakes = mistakesIn(groupedList(kByMaterial, details, kWeights));

    ASSERT_EQ(101u, mistakes.size());
    EXPECT_EQ("did you mean \"%Weight\"?", mistakes[99].remedy);
    EXPECT_EQ(0u, mistakes[100].remedy.find("declare a token of your own: "));
}

TEST(TemplateCheckTest, AFormulaMayGiveTheAssemblyToOneOfItsRows)
{
    EXPECT_EQ("", codesIn(kByMaterial, { "%PNum", "%Formula:%AssemblyWeight*%IsMP" },
                          { "%SumBy:%Formula:%AssemblyWeight*%IsMP" }));
}

TEST(TemplateCheckTest, AHeaderNeverShowsThePiecesOfItsGroup)
{
    const std::string list = groupedList({ "%GroupBy:%PNum", "%SortAscBy:%PNum", "%PNum", "%Quantity" }, kParts, {});
    EXPECT_EQ("MB503", codesOf(mistakesIn(list)));
    EXPECT_EQ("MB503", codesOf(mistakesIn(list, { "%PNum", "%Length", "%Weight", "%Quantity" })));

    EXPECT_EQ("MB503", codesInGroup({ "%GroupBy:%PNum", "%SortAscBy:%PNum", "%Formula:%Weight*%Quantity" }));
    EXPECT_EQ("", codesInGroup({ "%GroupBy:%Quantity", "%SortAscBy:%Quantity", "%Quantity" }));
}

TEST(TemplateCheckTest, ANumberOtherThanZeroIsPrintedLikeData)
{
    EXPECT_EQ("MB505", codesInDetails({ "%PNum", R"({ "token": "%Weight", "value": 1000.0 })" }));
    EXPECT_EQ("MB505", codesInDetails({ "%PNum", R"({ "token": "%Quantity", "value": 1 })" }));
    EXPECT_EQ("MB505", codesInDetails({ "%PNum", R"({ "token": "%Name", "value": 0 })" }));
    EXPECT_EQ("", codesInDetails({ "%PNum", R"({ "token": "%Name", "value": "" })" }));
    EXPECT_EQ("", codesInDetails({ "%PNum", R"({ "token": "%Weight", "value": 0.0 })" }));
    EXPECT_EQ("", codesInDetails({ "%PNum", R"({ "token": "%Weight", "value": 0 })" }));
}

TEST(TemplateCheckTest, AConstantOfTheTemplateMayStartAsItLikes)
{
    const std::string list = groupedList(kByMaterial, { "%PNum", R"({ "token": "%Cost", "value": 99 })" }, {},
                                         R"("tokens": { "%Cost": "number" })");
    EXPECT_EQ("MB504", codesOf(mistakesIn(list)));
    EXPECT_EQ("MB505 MB504", codesOf(mistakesIn(list, { "%PNum", "%Material", "%Cost" })));
}
}
