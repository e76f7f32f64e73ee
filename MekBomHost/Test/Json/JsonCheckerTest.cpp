#include "JsonChecker.h"

#include "JsonReader.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
const std::string kName = "list.json";

class JsonCheckerTest : public testing::Test
{
protected:
    std::string faults() const
    {
        return faultOf([this] { m_json.throwIfAnyError(); });
    }

    const JsonNode m_root =
        JsonReader(kName, R"({ "text": "a", "whole": 7, "yes": true, "list": [ 5, { "b": 1 } ], "none": "" })").read();
    const JsonItem m_item{ m_root, "/x" };
    JsonChecker m_json{ kName };
};
}

TEST_F(JsonCheckerTest, MembersOfTheRightKindAreRead)
{
    EXPECT_EQ("a", m_json.textOf(m_item, "text"));
    EXPECT_EQ("a", m_json.requiredTextOf(m_item, "text"));
    EXPECT_EQ(7, m_json.integerOf(m_item, "whole", 1, 7, 0));
    EXPECT_TRUE(m_json.booleanOf(m_item, "yes", false));
    EXPECT_EQ(1, m_json.choiceOf(m_item, "text", { "b", "a" }));
    ASSERT_EQ(2u, m_json.elementsOf(m_item, "list").size());
    EXPECT_EQ("/x/list/1", m_json.elementsOf(m_item, "list")[1].path);
    EXPECT_TRUE(m_json.isObjectOf(m_item, { "text", "whole", "yes", "list", "none", "more" }));
    EXPECT_TRUE(m_json.has(m_item, "list"));
    EXPECT_EQ("", faults());
}

TEST_F(JsonCheckerTest, MissingMembersHaveTheirFallback)
{
    EXPECT_EQ("", m_json.textOf(m_item, "?"));
    EXPECT_EQ(-5, m_json.integerOf(m_item, "?", 1, 7, -5));
    EXPECT_TRUE(m_json.booleanOf(m_item, "?", true));
    EXPECT_EQ(-1, m_json.choiceOf(m_item, "?", { "a" }));
    EXPECT_TRUE(m_json.elementsOf(m_item, "?").empty());
    EXPECT_EQ("", faults());
}

TEST_F(JsonCheckerTest, RequiredMembersAreMissed)
{
    EXPECT_FALSE(m_json.has(m_item, "?"));
    EXPECT_EQ("", m_json.requiredTextOf(m_item, "!"));
    EXPECT_EQ("", m_json.requiredTextOf(m_item, "none"));
    EXPECT_EQ("3 list.json:1:1: /x: found no key \"?\", expected one\n"
              "3 list.json:1:1: /x: found no key \"!\", expected one\n"
              "3 list.json:1:76: /x/none: found an empty text, expected another\n",
              faults());
}

TEST_F(JsonCheckerTest, WrongKindsAndValuesAreNamed)
{
    EXPECT_EQ("", m_json.textOf(m_item, "whole"));
    EXPECT_EQ(0, m_json.integerOf(m_item, "whole", 8, 9, 0));
    EXPECT_EQ(-1, m_json.choiceOf(m_item, "text", { "b", "c", "d" }));
    EXPECT_FALSE(m_json.isObjectOf(m_json.elementsOf(m_item, "list")[0], {}));
    EXPECT_EQ("3 list.json:1:25: /x/whole: found the number 7, expected a text\n"
              "3 list.json:1:25: /x/whole: found the number 7, expected one from 8 to 9\n"
              "3 list.json:1:11: /x/text: found \"a\", expected \"b\", \"c\" or \"d\"\n"
              "3 list.json:1:51: /x/list/0: found the number 5, expected an object\n",
              faults());
}

TEST_F(JsonCheckerTest, UnknownKeysAreNamedAndTheObjectIsOneAllTheSame)
{
    EXPECT_TRUE(m_json.isObjectOf(m_json.elementsOf(m_item, "list")[1], { "a" }));
    EXPECT_EQ("3 list.json:1:56: /x/list/1: found unknown key \"b\", expected \"a\"\n", faults());
}

TEST_F(JsonCheckerTest, NamesThatAreNearlyRightAreTold)
{
    const JsonNode root = JsonReader(kName, R"({ "lable": "rihgt" })").read();
    const JsonItem item{ root, "" };
    EXPECT_TRUE(m_json.isObjectOf(item, { "token", "label" }));
    EXPECT_EQ(-1, m_json.choiceOf(item, "lable", { "left", "right" }));
    EXPECT_EQ("3 list.json:1:3: found unknown key \"lable\", expected \"token\" or \"label\": did you mean \"label\"?\n"
              "3 list.json:1:12: /lable: found \"rihgt\", expected \"left\" or \"right\": did you mean \"right\"?\n",
              faults());
}
}
