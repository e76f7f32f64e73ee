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

const char* const kNone = "none";

std::string choiceFor(const std::set<std::string>& columns, const std::vector<NamedText>& files = shippedTemplates())
{
    const auto hasColumn = [&columns](const std::string& token) { return columns.count(token) > 0; };
    const NamedText* const pFile = TemplateChoice::choose(files, hasColumn);
    return pFile == nullptr ? kNone : pFile->name;
}
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

TEST(TemplateChoiceTest, DataMaySuitNothing)
{
    EXPECT_EQ(kNone, choiceFor({ "%Foo", "%Weight" }));
    EXPECT_EQ(kNone, choiceFor({ "%A" }, { fileOf("three", { "%A", "%B", "%C" }) }));
    EXPECT_EQ("two", choiceFor({ "%A" }, { fileOf("two", { "%A", "%B" }) }));
    EXPECT_EQ(kNone, choiceFor({ "%A" }, {}));
    EXPECT_EQ(kNone, choiceFor({ "%A" }, { fileOf("empty", {}) }));
}

TEST(TemplateChoiceTest, AListAboutRowsThatCannotBeThereSuitsNothing)
{
    // Half of a cutting list's data, but no %Name: all rows would be filtered out.
    EXPECT_EQ(kNone, choiceFor({ "%Mark", "%Profile", "%Material", "%Quantity", "%Length", "%Weight" }));
    EXPECT_EQ("parts-list", choiceFor({ "%PNum", "%Profile", "%Material", "%Quantity", "%Length", "%Weight" }));
}

TEST(TemplateChoiceTest, CoversComeInTheOrderInWhichTheySuitAndTheFirstIsChosen)
{
    const std::set<std::string> columns = { "%A", "%B", "%C" };
    const std::vector<NamedText> files = { fileOf("none", { "%D" }), fileOf("half", { "%A", "%D" }),
                                           fileOf("all", { "%A", "%B" }), fileOf("same", { "%C" }) };

    std::string names;
    for (const TemplateCover& cover :
         TemplateChoice::coversOf(files, [&columns](const std::string& token) { return columns.count(token) > 0; }))
        names += cover.name + " ";

    EXPECT_EQ("all same half none ", names);
    EXPECT_EQ("all", choiceFor(columns, files));
}

TEST(TemplateChoiceTest, AMalformedTemplateIsNamed)
{
    EXPECT_EQ(0U, faultOf(
                      [] {
                          choiceFor({ "%A" }, { { "broken.json", "[" } });
                      })
                      .find("3 broken.json:1:1: found no valid JSON"));
}
}
