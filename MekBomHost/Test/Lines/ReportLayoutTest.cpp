#include "ReportLayout.h"

#include "TemplateReader.h"
#include "Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
ReportLayout layoutOf(const std::string& templateText)
{
    const VorUnitsManager metric = VorUnitsManager::metric();
    const ReportTemplate reportTemplate = TemplateReader::read("list.json", templateText);
    reportTemplate.pTemplate->setUnitsForTokens(&metric);
    return ReportLayout(reportTemplate, metric);
}

// A report of details and a footer around them.
std::string report(const std::string& members, const std::string& details, const std::string& footer)
{
    return "{ " + members +
           R"("sections": [ { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ )" + details +
           R"( ] } ] }, { "type": "kReportFooter", )" + footer + " } ] }";
}

// "%Name %Weight", the columns by their tokens.
std::string tokensOf(const ReportLayout& layout)
{
    std::string tokens;
    for (const ReportColumn& column : layout.columns())
        tokens += (tokens.empty() ? "" : " ") + Utf8::toBytes(column.token);
    return tokens;
}

const char* const kNameAndWeight = R"({ "token": "%Name" }, { "token": "%Weight" })";
const char* const kTotal = R"("label": "Total", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ])";
}

TEST(ReportLayoutTest, DescribedColumnsComeFirstThenThoseOfTheSections)
{
    const ReportLayout layout = layoutOf(report(R"("columns": [ { "token": "%Weight" } ], )", kNameAndWeight, kTotal));

    EXPECT_EQ("%Weight %Name", tokensOf(layout));
    EXPECT_EQ((std::vector<int>{ 1, 0 }), layout.section({ 1, false }).columns);
    EXPECT_EQ((std::vector<int>{ 0 }), layout.section({ 0, true }).columns);
    EXPECT_EQ(2U, layout.columns()[0].shownTokens.size());
}

TEST(ReportLayoutTest, ASectionThatShowsATokenTwiceHasTwoColumnsForIt)
{
    const ReportLayout layout = layoutOf(report("", R"({ "token": "%Name" }, { "token": "%Name" })", kTotal));

    EXPECT_EQ("%Name %Name %Weight", tokensOf(layout));
    EXPECT_EQ((std::vector<int>{ 0, 1 }), layout.section({ 1, false }).columns);
}

TEST(ReportLayoutTest, LabelsStandInTheFirstColumnThatTheirSectionLeavesFree)
{
    const ReportLayout layout = layoutOf(report("", kNameAndWeight, kTotal));
    const ReportLayout full = layoutOf(report("", R"({ "token": "%Weight" })", kTotal));

    EXPECT_EQ("Total", layout.section({ 0, true }).label);
    EXPECT_EQ(0, layout.section({ 0, true }).labelColumn);
    EXPECT_EQ(-1, layout.section({ 1, false }).labelColumn);
    EXPECT_EQ(-1, full.section({ 0, true }).labelColumn);
}

TEST(ReportLayoutTest, ASectionThatIsNotPrintedShowsNothing)
{
    const ReportLayout layout = layoutOf(report("", kNameAndWeight, std::string("\"print\": false, ") + kTotal));

    EXPECT_EQ("", layout.section({ 0, true }).label);
    EXPECT_TRUE(layout.section({ 0, true }).columns.empty());
}

TEST(ReportLayoutTest, SectionsShareALineWhenTheyHaveNoLabelAndOtherColumns)
{
    const char* const kQuantity = R"("tuples": [ { "token": "%SumBy:%Quantity", "value": 0 } ])";
    const auto header = [](const std::string& tuples, const std::string& footer)
    {
        return R"({ "sections": [ { "type": "kReportHeader", "tuples": [ )" + tuples +
               R"( ], "children": [ { "type": "kDetails" } ] }, { "type": "kReportFooter", )" + footer + " } ] }";
    };

    EXPECT_TRUE(layoutOf(header(kNameAndWeight, kQuantity)).levels()[0].canShareLine);
    EXPECT_FALSE(layoutOf(header(kNameAndWeight, kTotal)).levels()[0].canShareLine) << "the footer has a label";
    EXPECT_FALSE(layoutOf(header(R"({ "token": "%Quantity" })", kQuantity)).levels()[0].canShareLine);
}

TEST(ReportLayoutTest, ColumnsSayWhatTheyHoldAndHowTheyAreToLook)
{
    const ReportLayout layout = layoutOf(report(
        R"("columns": [ { "token": "%Weight", "label": "Mass", "width": 9, "align": "left" } ], )",
        R"({ "token": "%Weight" }, { "token": "%Name" }, { "token": "%Quantity" }, { "token": "%Formula:%Length/2" })",
        kTotal));
    const ReportColumn& weight = layout.columns()[0];
    const ReportColumn& name = layout.columns()[1];
    const ReportColumn& quantity = layout.columns()[2];
    const ReportColumn& half = layout.columns()[3];

    EXPECT_EQ("Mass", weight.label);
    EXPECT_EQ("kg", weight.unitSymbol);
    EXPECT_STREQ("weight", weight.pUnitKind->name);
    EXPECT_EQ(9, weight.width);
    EXPECT_TRUE(weight.isNumeric);
    EXPECT_FALSE(weight.isAlignedRight);

    EXPECT_EQ("Name", name.label);
    EXPECT_EQ(nullptr, name.pUnitKind);
    EXPECT_FALSE(name.isNumeric || name.isAlignedRight);
    EXPECT_EQ(0, name.width);

    EXPECT_EQ("Quantity", quantity.heading());
    EXPECT_TRUE(quantity.isNumeric && quantity.isAlignedRight);

    EXPECT_EQ("%Length/2 [mm]", half.heading());
}
}
