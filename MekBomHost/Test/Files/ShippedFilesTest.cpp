#include "ShippedFiles.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;
}

TEST(ShippedFilesTest, EveryShippedTemplateIsOneToChooseFrom)
{
    std::vector<std::string> files;
    for (const auto& entry : fs::directory_iterator(fs::path(MEK_EXAMPLES_DIR) / "Templates"))
        if (entry.path().filename() != "default.json") // has a name of its own on the command line
            files.push_back("Templates/" + entry.path().filename().string());
    std::vector<std::string> known = ShippedFiles::templates();
    std::sort(files.begin(), files.end());
    std::sort(known.begin(), known.end());

    EXPECT_EQ(files, known);
}

TEST(ShippedFilesTest, FilesAreFoundOrMissed)
{
    EXPECT_TRUE(fs::exists(ShippedFiles::find(ShippedFiles::kPartsList)));
    EXPECT_EQ(0u, faultOf([] { ShippedFiles::find("missing.csv"); }).find("3 missing.csv: found neither in "));
}

TEST(ShippedFilesTest, TemplatesGoByTheirNames)
{
    EXPECT_EQ((std::vector<std::string>{ "cutting-list", "assembly-list", "bolt-list", "parts-list" }),
              ShippedFiles::templateNames());
    EXPECT_EQ("Templates/bolt-list.json", ShippedFiles::templateNamed("bolt-list"));
    for (const char* const name : { "", "bolt", "Bolt-list", "bolt-list.json", "Templates/bolt-list", "default" })
        EXPECT_EQ("", ShippedFiles::templateNamed(name)) << name;
}
}
