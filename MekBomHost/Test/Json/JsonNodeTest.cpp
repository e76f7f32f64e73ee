#include "JsonNode.h"

#include "JsonReader.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
const std::string kName = "list.json";

std::string descriptionOf(const std::string& text)
{
    return JsonReader(kName, text).read().description();
}
}

TEST(JsonNodeTest, MembersAreFoundByTheirKey)
{
    const JsonNode root = JsonReader(kName, R"({ "a": 1, "": 2, "b": [ { "c": 3 } ] })").read();

    EXPECT_EQ(1.0, root.find("a")->number);
    EXPECT_EQ(2.0, root.find("")->number);
    EXPECT_EQ(nullptr, root.find("c"));
    EXPECT_EQ(3.0, root.find("b")->children[0].find("c")->number);
    EXPECT_EQ(nullptr, root.find("a")->find("a"));
}

TEST(JsonNodeTest, DescriptionsSayWhatWasFound)
{
    const struct
    {
        const char* text;
        const char* description;
    } kCases[] = {
        { "null", "null" },           { "true", "true" },
        { "false", "false" },         { "5", "the number 5" },
        { "-7", "the number -7" },    { "3000000000", "the number 3000000000" },
        { "2.50", "the number 2.5" }, { "1e300", "the number 1e+300" },
        { "\"a\\nb\"", "\"a?b\"" },   { "[1]", "an array" },
        { "{}", "an object" },
    };

    for (const auto& test : kCases)
        EXPECT_EQ(test.description, descriptionOf(test.text)) << test.text;
}

TEST(JsonNodeTest, WholeNumbersAreWrittenInFullHoweverLong)
{
    EXPECT_EQ("the number 18446744073709551616", descriptionOf("18446744073709551615")); // as the double next to it
}
}
