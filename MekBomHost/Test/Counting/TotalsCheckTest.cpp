#include "TotalsCheck.h"

#include "PackedSections.h"
#include "TemplateReader.h"

#include "Support/ReportTestSupport.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
const char* const kByMaterial = R"({ "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Formula:%Weight*2" } ] } ] },
      { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] },
    { "type": "kReportFooter", "tuples": [ { "token": "%Name" }, { "token": "%SumBy:%Weight", "value": 100.0 },
        { "token": "%SumBy:%Quantity" }, { "token": "%SumBy:%Formula:%Weight*2", "value": 0.0 } ] } ] })";

const char* const kParts = "%Name,%Material,%Weight,%Quantity\n"
                           "HEA200,S355,10.5,2\n"
                           "HEA200,S355,10.5,3\n"
                           "IPE360,S355,0.1,1\n"
                           "L50,S355,,1\n"
                           "IPE360,S235,2,1\n";

// Hands the check another section than the engine makes: what a mistake in the adding up would look like.
class Tamper : public SectionRelay
{
public:
    using Change = std::function<void(VorBomReportSection& footer, std::vector<VorBomTypedValue>& values)>;

    Tamper(VorBomSectionSink& next, Change change) : SectionRelay(next), m_change(std::move(change)) {}

    void takeFooter(const VorBomReportSection& footer) override
    {
        const auto numTuples = static_cast<std::size_t>(footer.section.getData().length());
        std::vector<VorBomTypedValue> values(footer.pValues, footer.pValues + numTuples);
        VorBomReportSection changed = footer;
        m_change(changed, values);
        changed.pValues = values.data();
        SectionRelay::takeFooter(changed);
    }

private:
    Change m_change;
};

struct Outcome
{
    std::string mistake; // empty for none
    int numChecked = 0;
};

Outcome outcomeOf(const std::string& templateText, const std::string& partsText, const Tamper::Change& change)
{
    const std::unique_ptr<Report> pReport = reportOf(templateText, partsText);
    PackedSections sections(pReport->reportTemplate());
    TotalsCheck check(pReport->reportTemplate(), sections);
    Tamper tamper(check, change);
    Outcome outcome;
    try
    {
        VorBomEvaluator2::evaluate(&pReport->engineTemplate(), tamper);
    }
    catch (const std::runtime_error& error)
    {
        outcome.mistake = error.what();
    }
    outcome.numChecked = check.numChecked();
    return outcome;
}

Outcome outcomeOf(const std::string& templateText, const std::string& partsText)
{
    return outcomeOf(templateText, partsText, [](VorBomReportSection&, std::vector<VorBomTypedValue>&) {});
}
}

TEST(TotalsCheckTest, TotalsThatAreRightPass)
{
    const Outcome outcome = outcomeOf(kByMaterial, kParts);

    EXPECT_EQ("", outcome.mistake);
    EXPECT_EQ(5, outcome.numChecked) << "two of groups, and three of the report: its name is no total";
}

TEST(TotalsCheckTest, AWrongTotalOfAGroupIsNamedWithBothNumbers)
{
    const Outcome outcome = outcomeOf(kByMaterial, kParts,
                                      [](VorBomReportSection& footer, std::vector<VorBomTypedValue>& values)
                                      {
                                          if (footer.level == 1)
                                              values[0].number *= 1 + 1e-8;
                                      });

    EXPECT_EQ("the total of %Weight in the footer of level 1, below \"S235\", is 2.00000002, but adding up its rows "
              "(1) gives 2",
              outcome.mistake);
}

TEST(TotalsCheckTest, AWrongTotalOfTheReportIsFoundInEveryColumn)
{
    for (const std::size_t column : { 1U, 2U, 3U })
    {
        const Outcome outcome = outcomeOf(kByMaterial, kParts,
                                          [column](VorBomReportSection& footer, std::vector<VorBomTypedValue>& values)
                                          {
                                              if (footer.level == 0)
                                                  values[column].number += 1;
                                          });

        EXPECT_EQ(0U, outcome.mistake.find("the total of %")) << column;
        EXPECT_NE(std::string::npos, outcome.mistake.find("in the footer of level 0, is ")) << outcome.mistake;
    }
}

TEST(TotalsCheckTest, ATextInPlaceOfATotalIsFound)
{
    const Outcome outcome = outcomeOf(kByMaterial, kParts,
                                      [](VorBomReportSection& footer, std::vector<VorBomTypedValue>& values)
                                      {
                                          if (footer.level == 0)
                                              values[1].type = VorBomDataValue::kStringData;
                                      });

    EXPECT_NE(std::string::npos, outcome.mistake.find("is no number, but adding up its rows (4) gives 112.6"))
        << outcome.mistake;
}

// The same as a row that the engine took out of the sums without telling.
TEST(TotalsCheckTest, ARowThatLeftTheTotalsUnnoticedIsFound)
{
    const std::unique_ptr<Report> pReport = reportOf(kByMaterial, kParts);
    static_cast<VorBomDataRow*>(pReport->engineTemplate().getBomData()->child())->setUseThisDataForSums(0);
    pReport->checkTotals();

    EXPECT_THROW(pReport->evaluate(), std::runtime_error);
}

TEST(TotalsCheckTest, FootersBesideTheDetailsCountTheirOwnRow)
{
    const char* const list = R"({ "sections": [
        { "type": "kReportHeader", "children": [
          { "type": "kDetails", "tuples": [ { "token": "%Weight" } ] },
          { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] },
        { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";

    const Outcome outcome = outcomeOf(list, "%Weight\n2.5\n2.5\n4\n");

    EXPECT_EQ("", outcome.mistake);
    EXPECT_EQ(4, outcome.numChecked);
}

TEST(TotalsCheckTest, TotalsOfTextsAreNotLookedAt)
{
    const char* const list = R"({ "sections": [
        { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" } ] } ] },
        { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Name", "value": 0.0 } ] } ] })";
    const AssertLog log; // the engine reports such a total

    const Outcome outcome = outcomeOf(list, "%Name\nA\nB\n");

    EXPECT_EQ("", outcome.mistake);
    EXPECT_EQ(0, outcome.numChecked);
}

TEST(TotalsCheckTest, NumbersOfUnlikeSizesAndSignsAreAddedExactly)
{
    std::string parts = "%Name,%Material,%Weight\n";
    for (int i = 0; i < 3000; ++i)
        parts += "P" + std::to_string(i) + ",S" + std::to_string(i % 7) + "," +
                 (i % 3 == 0   ? "1e12"
                  : i % 3 == 1 ? "0.001"
                               : "-1e12") +
                 "\n";

    EXPECT_EQ("", outcomeOf(kByMaterial, parts).mistake);
}

// Each number has room in a double, and their sum has not; the compensation of an infinite sum is no number.
TEST(TotalsCheckTest, ASumThatIsInfiniteOnBothSidesPasses)
{
    EXPECT_EQ("", outcomeOf(kByMaterial, "%Name,%Material,%Weight\nA,S355,1e308\nB,S355,1.5e308\nC,S355,2\n").mistake);
}
}
