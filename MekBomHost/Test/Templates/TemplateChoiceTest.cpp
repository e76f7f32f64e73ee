#include "TemplateChoice.h"

#include "ShippedFiles.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

// The shipped templates, as they are handed to the choice, named without folder and ending.
std::vector<NamedText> shippedTemplates()
{
    std::vector<NamedText> files;
    for (const std::string& file : ShippedFiles::templates())
        files.push_back({ fs::path(file).stem().string(), readFile(ShippedFiles::find(file)) });
    return files;
}

// A template of one line that shows these tokens.
NamedText fileOf(const std::string& name, const std::vector<std::string>& tokens)
{
    std::string tuples;
    for (const std::string& token : tokens)
        tuples += (tuples.empty() ? "" : ", ") + ("{ \"token\": \"" + token + "\" }");
    return { name, "{ \"sections\": [ { \"type\": \"kDetails\", \"tuples\": [ " + tuples + " ] } ] }" };
}

std::string choiceFor(const std::set<std::string>& columns, const std::vector<NamedText>& files = shippedTemplates())
{
    const auto hasColumn = [&columns](const std::string& token) { return columns.count(token) > 0; };
    return TemplateChoice::choose("parts.csv", files, hasColumn).name;
}

std::string faultFor(const std::set<std::string>& columns, const std::vector<NamedText>& files = shippedTemplates())
{
    return faultOf([&columns, &files] { choiceFor(columns, files); });
}

const char* const kNoneSuits = "3 parts.csv: found columns that suit no shipped template, expected columns such as "
                               "%Name, %Material, %Quantity, %Length and %Weight, or option --template\n";
}

TEST(TemplateChoiceTest, TheShippedTemplateIsTakenThatFindsTheGreatestPartOfItsData)
{
    EXPECT_EQ("cutting-list",
              choiceFor({ "%Name", "%Material", "%Quantity", "%Length", "%Weight", "%Paint", "%BoltName" }));
    EXPECT_EQ("bolt-list", choiceFor({ "%BoltName", "%Standard", "%Material", "%Diameter", "%Length", "%Quantity" }));
    EXPECT_EQ("parts-list", choiceFor({ "%PNum", "%Role", "%Name", "%Material", "%Length", "%Quantity", "%Weight" }));
    EXPECT_EQ("assembly-list",
              choiceFor({ "%MNum", "%MName", "%MQuantity", "%AssemblyWeight", "%PNum", "%IsMP", "%Role" }));
}

TEST(TemplateChoiceTest, PartsAreComparedNotNumbers)
{
    const std::vector<NamedText> files = { fileOf("five", { "%A", "%B", "%C", "%D", "%E" }),
                                           fileOf("two", { "%A", "%F" }) };

    EXPECT_EQ("five", choiceFor({ "%A", "%B", "%C" }, files));
    EXPECT_EQ("two", choiceFor({ "%A", "%B", "%C", "%F" }, files));
}

TEST(TemplateChoiceTest, OfEqualsTheFirstIsTaken)
{
    EXPECT_EQ("one", choiceFor({ "%A", "%B" }, { fileOf("one", { "%A" }), fileOf("other", { "%B" }) }));
    EXPECT_EQ("other", choiceFor({ "%A", "%B" }, { fileOf("other", { "%B" }), fileOf("one", { "%A" }) }));
}

TEST(TemplateChoiceTest, DataThatSuitNothingAreRefused)
{
    EXPECT_EQ(kNoneSuits, faultFor({ "%Foo", "%Weight" }));
    EXPECT_EQ(kNoneSuits, faultFor({ "%A" }, { fileOf("three", { "%A", "%B", "%C" }) }));
    EXPECT_EQ("", faultFor({ "%A" }, { fileOf("two", { "%A", "%B" }) }));
    EXPECT_EQ(kNoneSuits, faultFor({ "%A" }, {}));
    EXPECT_EQ(kNoneSuits, faultFor({ "%A" }, { fileOf("none", {}) }));
}

TEST(TemplateChoiceTest, AMalformedTemplateIsNamed)
{
    EXPECT_EQ(0U, faultFor({ "%A" }, { { "broken.json", "[" } }).find("3 broken.json:1:1: found no valid JSON"));
}
}
