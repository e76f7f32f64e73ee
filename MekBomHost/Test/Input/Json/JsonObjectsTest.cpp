#include "JsonObjects.h"

#include "Fault.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
const std::string kName = "parts.json";

std::vector<std::string> objectsOf(const std::string& text)
{
    JsonObjects objects(kName, text);
    std::vector<std::string> all;
    for (std::string_view object = objects.next(); !object.empty(); object = objects.next())
        all.emplace_back(object);
    return all;
}

std::string messageFor(const std::string& text)
{
    try
    {
        objectsOf(text);
    }
    catch (const Fault& fault)
    {
        return messageOf(fault.findings().front());
    }
    return "no fault";
}

using Texts = std::vector<std::string>;
}

TEST(JsonObjectsTest, ElementsOfAnArrayAndLinesAreTheSame)
{
    const Texts expected = { R"({"a":1})", R"({"b":2})" };

    EXPECT_EQ(expected, objectsOf(R"([{"a":1},{"b":2}])"));
    EXPECT_EQ(expected, objectsOf("\xEF\xBB\xBF \r\n[ {\"a\":1}\n,\n\t{\"b\":2} ]\n"));
    EXPECT_EQ(expected, objectsOf("{\"a\":1}\n{\"b\":2}\n"));
    EXPECT_EQ(expected, objectsOf("{\"a\":1}\r\n\r\n{\"b\":2}"));
}

TEST(JsonObjectsTest, NothingAndAnEmptyArrayHaveNone)
{
    EXPECT_EQ(Texts(), objectsOf(""));
    EXPECT_EQ(Texts(), objectsOf(" \n"));
    EXPECT_EQ(Texts(), objectsOf("[]"));
    EXPECT_EQ(Texts(), objectsOf("[ ]\n"));
}

TEST(JsonObjectsTest, BracesWithinTextsAndObjectsDoNotEndOne)
{
    const std::string object = R"({"a{":"}\"}","b":{"c":{}},"d\\":"\\"})";

    EXPECT_EQ(Texts({ object, "{}" }), objectsOf("[" + object + ",{}]"));
}

TEST(JsonObjectsTest, TheyAreGivenAgain)
{
    const std::string text = "[{},\n {\"a\":1}]";
    JsonObjects objects(kName, text);
    objects.next();
    objects.next();
    EXPECT_EQ(2, objects.place().line);
    EXPECT_EQ(2, objects.place().column);
    objects.rewind();

    EXPECT_EQ("{}", objects.next());
    EXPECT_EQ(1, objects.place().line);
    EXPECT_EQ(2, objects.place().column);
}

TEST(JsonObjectsTest, WhatIsNoObjectIsRefusedWithItsPlace)
{
    EXPECT_EQ("parts.json:1:2: found \"5\", expected an object for each part: { \"Name\": \"HEA200\", ... }",
              messageFor("[5]"));
    EXPECT_EQ("parts.json:2:1: found \"x\", expected an object for each part: { \"Name\": \"HEA200\", ... }",
              messageFor("{}\nx"));
    EXPECT_EQ("parts.json:1:5: found \"{\", expected a comma or the array's end", messageFor("[{} {}]"));
    EXPECT_EQ("parts.json:1:4: found the end of the file, expected a comma or the array's end", messageFor("[{}"));
    EXPECT_EQ("parts.json:1:5: found the end of the file, expected the array's end", messageFor("[{},"));
    EXPECT_EQ("parts.json:1:5: found \"]\", expected an object for each part: { \"Name\": \"HEA200\", ... }",
              messageFor("[{},]"));
    EXPECT_EQ("parts.json:1:3: found \"x\", expected nothing behind the array", messageFor("[]x"));
    EXPECT_EQ("parts.json:2:1: found the end of the file within the object that starts here, expected its end",
              messageFor("[{},\n{\"a\": {}"));
    EXPECT_EQ("parts.json:1:1: found the end of the file within the object that starts here, expected its end",
              messageFor("{\"a}\\"));
}
}
