#include "EvaluatedReport.h"

#include "Support/EvaluatedParts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
TEST(EvaluatedReportTest, ExtentsReachOverAllSectionsOfAColumn)
{
    const EvaluatedParts parts(kPartsByMaterial, { { L"Träger", L"S355", 1 }, { L"L50", L"S235J2", 99.5 } });
    const std::vector<TextExtent> extents = parts.report().textExtents();

    ASSERT_EQ(3U, extents.size());
    EXPECT_EQ(6U, extents[0].longest);
    EXPECT_FALSE(extents[1].areAllPlain);
    EXPECT_EQ(5U, extents[2].longest) << "the total, 100.5, is wider than 99.5";
    EXPECT_TRUE(extents[2].areAllPlain);
}

TEST(EvaluatedReportTest, SectionsThatShowNothingAndReportsWithoutRowsHaveNoLines)
{
    const EvaluatedParts parts(kPartsByMaterial, { { L"A", L"S355", 1 } });
    const EvaluatedParts nothing(kPartsByMaterial, {});

    std::string places;
    for (const SectionPlace place : parts.report().placesWithLines())
        places += std::to_string(place.level) + (place.isFooter ? " footer, " : " header, ");
    EXPECT_EQ("0 footer, 1 header, 1 footer, 2 header, ", places);
    EXPECT_TRUE(nothing.report().placesWithLines().empty());
}

TEST(EvaluatedReportTest, TheTitleIsTheTemplates)
{
    EXPECT_EQ("Weights", EvaluatedParts(kPartsByMaterial, {}).report().title());
    EXPECT_EQ("", EvaluatedParts(kMaterials, {}).report().title());
}
}
