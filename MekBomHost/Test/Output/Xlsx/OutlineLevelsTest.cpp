#include "OutlineLevels.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
constexpr bool kHeader = false;
constexpr bool kFooter = true;

// The levels of the outline of lines at levels 0, 1, ...: "0012".
std::string outlinesOf(const std::vector<SectionPlace>& places, int numLevels)
{
    const OutlineLevels levels(places);
    std::string text;
    for (int level = 0; level < numLevels; ++level)
        text += std::to_string(levels.of({ level, true, false }));
    return text;
}
}

TEST(OutlineLevelsTest, EachLevelOfGroupsFoldsTheLinesWithinIt)
{
    EXPECT_EQ("0012", outlinesOf({ { 0, kFooter }, { 1, kHeader }, { 2, kHeader }, { 3, kHeader } }, 4));
}

TEST(OutlineLevelsTest, AListWithoutGroupsHasNoOutline)
{
    EXPECT_EQ("00", outlinesOf({ { 0, kFooter }, { 1, kHeader } }, 2));
    EXPECT_EQ("0", outlinesOf({ { 0, kHeader } }, 1));
    EXPECT_EQ("0", outlinesOf({}, 1));
}

TEST(OutlineLevelsTest, LevelsWithoutLinesDoNotCount)
{
    const OutlineLevels levels({ { 0, kFooter }, { 2, kHeader }, { 5, kHeader } });

    EXPECT_EQ(0, levels.of({ 2, true, false }));
    EXPECT_EQ(1, levels.of({ 5, true, false }));
}

TEST(OutlineLevelsTest, SheetsHaveSevenLevels)
{
    std::vector<SectionPlace> places;
    for (int level = 0; level < 12; ++level)
        places.push_back({ level, kHeader });

    EXPECT_EQ("001234567777", outlinesOf(places, 12));
}

TEST(OutlineLevelsTest, GroupsWithFootersHaveTheirSummariesBelow)
{
    EXPECT_TRUE(OutlineLevels({ { 0, kFooter }, { 1, kHeader }, { 1, kFooter }, { 2, kHeader } }).hasSummariesBelow());
    EXPECT_FALSE(OutlineLevels({ { 0, kFooter }, { 1, kHeader }, { 2, kHeader } }).hasSummariesBelow());
    EXPECT_FALSE(OutlineLevels({ { 1, kHeader }, { 2, kHeader }, { 2, kFooter } }).hasSummariesBelow());
}

TEST(OutlineLevelsTest, TheDeepestLinesAreTheList)
{
    const OutlineLevels levels({ { 0, kFooter }, { 1, kHeader }, { 2, kHeader } });

    EXPECT_TRUE(levels.isDeepest({ 2, true, true }));
    EXPECT_FALSE(levels.isDeepest({ 1, true, false }));
    EXPECT_FALSE(levels.isDeepest({ 0, false, true }));
}
}
