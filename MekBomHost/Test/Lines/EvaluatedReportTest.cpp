#include "EvaluatedReport.h"

#include "Support/EvaluatedParts.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(EvaluatedReportTest, ExtentsReachOverAllSectionsOfAColumn)
{
    const EvaluatedParts parts(kPartsByMaterial, { { L"Träger", L"S355", 1 }, { L"L50", L"S235J2", 99.5 } });
    const EvaluatedReport& report = parts.report();

    ASSERT_EQ(3U, report.columns().size());
    EXPECT_EQ(6U, report.extentOf(0).longest);
    EXPECT_FALSE(report.extentOf(1).areAllPlain);
    EXPECT_EQ(5U, report.extentOf(2).longest) << "the total, 100.5, is wider than 99.5";
    EXPECT_TRUE(report.extentOf(2).areAllPlain);
}

TEST(EvaluatedReportTest, LabelsAreThoseThatLinesHave)
{
    const EvaluatedParts parts(kPartsByMaterial, { { L"A", L"S355", 1 } });
    const EvaluatedParts nothing(kPartsByMaterial, {});

    EXPECT_EQ(std::vector<std::string>{ "Total" }, parts.report().labelsIn(0));
    EXPECT_TRUE(parts.report().labelsIn(1).empty());
    EXPECT_TRUE(nothing.report().labelsIn(0).empty());
}

TEST(EvaluatedReportTest, TheTitleIsTheTemplates)
{
    EXPECT_EQ("Weights", EvaluatedParts(kPartsByMaterial, {}).report().title());
    EXPECT_EQ("", EvaluatedParts(kMaterials, {}).report().title());
}
}
