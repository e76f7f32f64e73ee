#include "Catalogue.h"

#include "Support/HostTestSupport.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace mekbom
{
namespace
{
using Json = nlohmann::json;

// The first element of a chapter that has `value` under `key`.
Json elementOf(const std::string& chapter, const std::string& key, const std::string& value)
{
    for (const Json& element : Json::parse(Catalogue::textOf(chapter)))
        if (element.contains(key) && element[key] == value)
            return element;
    return {};
}
}

TEST(CatalogueTest, EveryChapterIsJson)
{
    ASSERT_FALSE(Catalogue::names().empty());
    for (const std::string& name : Catalogue::names())
        EXPECT_FALSE(Json::parse(Catalogue::textOf(name)).empty()) << name;
    EXPECT_EQ("", Catalogue::textOf("token"));
}

TEST(CatalogueTest, TokensHaveTheirKinds)
{
    EXPECT_EQ(Json::parse(R"({ "token": "%Weight", "value": "number", "order": "number", "kind": "weight" })"),
              elementOf("tokens", "token", "%Weight"));
    EXPECT_EQ(Json::parse(R"({ "token": "%PNum", "value": "text", "order": "natural", "kind": null })"),
              elementOf("tokens", "token", "%PNum"));
    EXPECT_EQ("text", elementOf("tokens", "tokensFrom", "%UserAttr")["value"]);
}

TEST(CatalogueTest, UnitsSayWhatTheyAre)
{
    const Json inch = elementOf("units", "unit", "in");
    EXPECT_EQ("length", inch["kind"]);
    EXPECT_EQ("in/3", inch["notation"]);
    EXPECT_EQ("25.4 mm", inch["oneIs"]);
    EXPECT_EQ("a unit of weight such as kg or lb", elementOf("kinds", "kind", "weight")["meaning"]);
}

TEST(CatalogueTest, TheSchemaIsThatOfTheFile)
{
    EXPECT_EQ(readFile(MEK_SCHEMA_FILE), Catalogue::textOf("schema"));
}
}
