#include "TemplateReader.h"

#include "Support/HostTestSupport.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include <set>
#include <string>

// The JSON Schema is for editors; the program does not read it. These tests keep it in step with the reader, by asking
// the reader itself what it knows: its messages name the keys and names it expects.

namespace mekbom
{
namespace
{
nlohmann::json schema()
{
    return nlohmann::json::parse(readFile(MEK_SCHEMA_FILE));
}

std::set<std::string> keysOf(const nlohmann::json& object)
{
    std::set<std::string> keys;
    for (const auto& member : object.at("properties").items())
        keys.insert(member.key());
    return keys;
}

std::set<std::string> namesOf(const nlohmann::json& enumeration)
{
    return enumeration.at("enum").get<std::set<std::string>>();
}

// The names in quotes after "expected" in the first message about this template.
std::set<std::string> expectedNames(const std::string& templateText)
{
    std::string message = faultOf([&templateText] { TemplateReader::read("list.json", templateText); });
    message = message.substr(0, message.find('\n'));
    std::set<std::string> names;
    std::size_t begin = message.find('"', message.find(", expected "));
    while (begin != std::string::npos)
    {
        const std::size_t end = message.find('"', begin + 1);
        names.insert(message.substr(begin + 1, end - begin - 1));
        begin = message.find('"', end + 1);
    }
    return names;
}

std::string section(const std::string& members)
{
    return "{ \"sections\": [ { " + members + " } ] }";
}

bool readerTakesFilter(const std::string& filter)
{
    const std::string text = "{ \"queryFilter\": \"" + filter + "\", \"sections\": [ { \"type\": \"kDetails\" } ] }";
    return faultOf([&text] { TemplateReader::read("list.json", text); }).empty();
}
}

TEST(SchemaTest, ItKnowsTheKeysThatTheReaderKnows)
{
    const nlohmann::json definitions = schema().at("definitions");

    EXPECT_EQ(expectedNames("{ \"?\": 0 }"), keysOf(schema()));
    EXPECT_EQ(expectedNames(section("\"?\": 0, \"type\": \"kDetails\"")), keysOf(definitions.at("section")));
    EXPECT_EQ(expectedNames(section("\"type\": \"kDetails\", \"tuples\": [ { \"?\": 0, \"token\": \"%A\" } ]")),
              keysOf(definitions.at("tuple")));
    EXPECT_EQ(expectedNames("{ \"columns\": [ { \"?\": 0, \"token\": \"%A\" } ] }"), keysOf(definitions.at("column")));
}

TEST(SchemaTest, ItKnowsTheNamesThatTheReaderKnows)
{
    const nlohmann::json definitions = schema().at("definitions");

    EXPECT_EQ(expectedNames(section("\"type\": \"?\"")),
              namesOf(definitions.at("section").at("properties").at("type")));
    EXPECT_EQ(expectedNames("{ \"tokenUnits\": { \"%A\": \"?\" } }"), namesOf(definitions.at("unitType")));
    EXPECT_EQ(expectedNames("{ \"columns\": [ { \"token\": \"%A\", \"align\": \"?\" } ] }"),
              namesOf(definitions.at("column").at("properties").at("align")));
}

TEST(SchemaTest, ItRefusesUnknownKeysAsTheReaderDoes)
{
    const nlohmann::json root = schema();

    EXPECT_EQ(false, root.at("additionalProperties"));
    for (const char* const name : { "section", "tuple", "column" })
        EXPECT_EQ(false, root.at("definitions").at(name).at("additionalProperties")) << name;
}

TEST(SchemaTest, ItsExamplesOfFiltersAreFilters)
{
    const nlohmann::json examples = schema().at("properties").at("queryFilter").at("examples");

    ASSERT_FALSE(examples.empty());
    for (const auto& example : examples)
        EXPECT_TRUE(readerTakesFilter(example.get<std::string>())) << example;
}
}
