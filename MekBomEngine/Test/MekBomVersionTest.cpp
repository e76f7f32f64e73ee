#include "MekBomVersion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

// MEK_PROJECT_VERSION is what the build makes of the header: packages and shared libraries are named after it.
TEST(MekBomVersionTest, IsThatOfTheProjectWhenCompiledAndWhenRun)
{
    const std::string compiled = std::to_string(MEK_BOM_VERSION_MAJOR) + "." + std::to_string(MEK_BOM_VERSION_MINOR) +
                                 "." + std::to_string(MEK_BOM_VERSION_PATCH);

    EXPECT_EQ(MEK_PROJECT_VERSION, compiled);
    EXPECT_STREQ(MEK_PROJECT_VERSION, mekBomVersionText());
    EXPECT_EQ(MEK_BOM_VERSION, mekBomVersion());
}

TEST(MekBomVersionTest, LaterVersionsAreGreaterNumbers)
{
    EXPECT_EQ(MEK_BOM_VERSION_MAJOR, MEK_BOM_VERSION / 10000);
    EXPECT_EQ(MEK_BOM_VERSION_MINOR, MEK_BOM_VERSION / 100 % 100);
    EXPECT_EQ(MEK_BOM_VERSION_PATCH, MEK_BOM_VERSION % 100);
}

TEST(MekBomVersionTest, TheChangelogBeginsWithIt)
{
    std::ifstream changelog(std::filesystem::path(MEK_ENGINE_DIR).parent_path() / "CHANGELOG.md");
    std::string line;
    while (std::getline(changelog, line) && line.compare(0, 3, "## ") != 0)
    {
    }

    EXPECT_EQ(std::string("## ") + MEK_PROJECT_VERSION, line);
}
