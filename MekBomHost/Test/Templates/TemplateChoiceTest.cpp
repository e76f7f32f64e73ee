#include "TemplateChoice.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

// The chosen template's name without folder and ending.
std::string choiceFor(const std::set<std::string>& columns)
{
    return fs::path(TemplateChoice::choose("parts.csv",
                                           [&columns](const std::string& token) { return columns.count(token) > 0; }))
        .stem()
        .string();
}
}

TEST(TemplateChoiceTest, TheTemplateIsTakenThatFindsTheGreatestPartOfItsData)
{
    EXPECT_EQ("cutting-list",
              choiceFor({ "%Name", "%Material", "%Quantity", "%Length", "%Weight", "%Paint", "%BoltName" }));
    EXPECT_EQ("bolt-list", choiceFor({ "%BoltName", "%Standard", "%Material", "%Diameter", "%Length", "%Quantity" }));
    EXPECT_EQ("parts-list", choiceFor({ "%PNum", "%Role", "%Name", "%Material", "%Length", "%Quantity", "%Weight" }));
    EXPECT_EQ("assembly-list",
              choiceFor({ "%MNum", "%MName", "%MQuantity", "%AssemblyWeight", "%PNum", "%IsMP", "%Role" }));
}

TEST(TemplateChoiceTest, OfEqualsTheFirstIsTaken)
{
    const auto hasAll = [](const std::string&) { return true; };

    EXPECT_EQ("cutting-list", fs::path(TemplateChoice::choose("parts.csv", hasAll)).stem().string());
}

TEST(TemplateChoiceTest, DataThatSuitNothingAreRefused)
{
    EXPECT_EQ("3 parts.csv: found columns that suit no shipped template, expected columns such as %Name, %Material, "
              "%Quantity, "
              "%Length and %Weight, or option --template\n",
              faultOf(
                  [] {
                      choiceFor({ "%Foo", "%Weight" });
                  }));
}
}
