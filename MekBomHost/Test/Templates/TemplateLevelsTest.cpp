#include "TemplateLevels.h"

#include "Support/EvaluatedParts.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(TemplateLevelsTest, EachLevelHasAHeaderAndMayHaveAFooter)
{
    const ReportTemplate reportTemplate = TemplateReader::read("list.json", kPartsByMaterial);
    const TemplateLevels levels(*reportTemplate.pTemplate);

    EXPECT_EQ(3, levels.count());
    EXPECT_EQ(VorBomTemplateItem::kReportHeader, levels.section({ 0, false })->type());
    EXPECT_EQ(VorBomTemplateItem::kReportFooter, levels.section({ 0, true })->type());
    EXPECT_EQ(VorBomTemplateItem::kGroupHeader, levels.section({ 1, false })->type());
    EXPECT_EQ(VorBomTemplateItem::kDetails, levels.section({ 2, false })->type());
    EXPECT_EQ(nullptr, levels.section({ 2, true }));
    EXPECT_EQ(levels.section({ 2, false }), &levels.details());
    EXPECT_FALSE(levels.isDeepest(1));
    EXPECT_TRUE(levels.isDeepest(2));
}

TEST(TemplateLevelsTest, RequestsAreThoseOfTheHeader)
{
    const ReportTemplate reportTemplate = TemplateReader::read("list.json", kPartsByMaterial);
    const TemplateLevels levels(*reportTemplate.pTemplate);

    EXPECT_EQ((std::vector<VorString>{ L"%Material" }), levels.groupTokens(1));
    EXPECT_EQ((std::vector<VorString>{ L"%SortAscBy:%Material" }), levels.sortRequests(1));
    EXPECT_TRUE(levels.groupTokens(0).empty());
    EXPECT_TRUE(levels.sortRequests(2).empty());
}
}
