#include "FindingJson.h"

#include "MistakeCodes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace mekbom
{
TEST(FindingJsonTest, EveryMemberOfAFindingIsThere)
{
    Finding finding = Finding::stating(MistakeCodes::kDetailsEmpty, "the details show nothing");
    finding.source = "list \"1\".json";
    finding.begin = { 8, 17 };
    finding.end = { 9, 3 };
    finding.path = "/sections/0";
    finding.remedy = "write more";

    const auto array = nlohmann::json::parse(FindingJson::textOf({ finding, finding }));

    ASSERT_EQ(2u, array.size());
    EXPECT_EQ("error", array[0]["severity"]);
    EXPECT_EQ("MB105", array[0]["code"]);
    EXPECT_EQ("list \"1\".json", array[0]["source"]);
    EXPECT_EQ(8, array[0]["line"]);
    EXPECT_EQ(17, array[0]["column"]);
    EXPECT_EQ(9, array[0]["endLine"]);
    EXPECT_EQ(3, array[0]["endColumn"]);
    EXPECT_EQ("/sections/0", array[0]["path"]);
    EXPECT_EQ("the details show nothing", array[0]["statement"]);
    EXPECT_EQ("write more", array[0]["remedy"]);
    EXPECT_EQ(messageOf(finding), array[0]["message"]);
    for (const char* const key : { "field", "found", "expected", "sentence" })
        EXPECT_EQ("", array[0][key]) << key;
}

TEST(FindingJsonTest, WithoutFindingsTheArrayIsEmpty)
{
    EXPECT_EQ("[]\n", FindingJson::textOf({}));
}

TEST(FindingJsonTest, BytesThatAreNoUtf8AreReplaced)
{
    Finding finding;
    finding.source = "l\xFFst.json";

    EXPECT_EQ("l\xEF\xBF\xBDst.json", nlohmann::json::parse(FindingJson::textOf({ finding }))[0]["source"]);
}
}
