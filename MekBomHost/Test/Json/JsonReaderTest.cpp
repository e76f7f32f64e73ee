#include "JsonReader.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
const std::string kName = "list.json";

JsonNode nodesOf(const std::string& text)
{
    return JsonReader(kName, text).read();
}

// The tree with places, in reading order: { "a": [5] } -> "object@1:1(a@1:3=array@1:8(the number 5@1:9))"; with the
// ends behind a '-' when `withEnds`.
std::string placesOf(const JsonNode& node, bool withEnds = false)
{
    const auto textOf = [](const TextPlace& place)
    { return std::to_string(place.line) + ":" + std::to_string(place.column); };
    const auto at = [withEnds, textOf](const TextSpan& span)
    { return "@" + textOf(span.begin) + (withEnds ? "-" + textOf(span.end) : ""); };
    std::string text = node.description() + at(node.span);
    if (node.kind != JsonNode::kArray && node.kind != JsonNode::kObject)
        return text;
    text += "(";
    for (const JsonNode& child : node.children)
        text += (text.back() == '(' ? "" : " ") + (child.key.empty() ? "" : child.key + at(child.keySpan) + "=") +
                placesOf(child, withEnds);
    return text + ")";
}

std::string faultIn(const std::string& text)
{
    return faultOf([&text] { nodesOf(text); });
}

struct PlaceCase
{
    const char* text;
    const char* places;
};

const PlaceCase kPlaces[] = {
    { "{}", "an object@1:1()" },
    { "  [ ]", "an array@1:3()" },
    { "\"a\"", "\"a\"@1:1" },
    { "5", "the number 5@1:1" },
    { "\xEF\xBB\xBF{}", "an object@1:2()" }, // the byte order mark is a character of the file
    { "[1,2]", "an array@1:1(the number 1@1:2 the number 2@1:4)" },
    { "[1]", "an array@1:1(the number 1@1:2)" },
    { "[12\n,3.5\n]", "an array@1:1(the number 12@1:2 the number 3.5@2:2)" },
    { "[null,true,false]", "an array@1:1(null@1:2 true@1:7 false@1:12)" },
    { "{ \"a\": 5, \"b\" : [ \"c\" ] }", "an object@1:1(a@1:3=the number 5@1:8 b@1:11=an array@1:17(\"c\"@1:19))" },
    { "{\n  // about a: \"x\"\n  \"a\": /* 5 */ 6\n}", "an object@1:1(a@3:3=the number 6@3:16)" },
    { "[[],{},1]", "an array@1:1(an array@1:2() an object@1:5() the number 1@1:8)" },
    { "[\"Träger\", 1]", "an array@1:1(\"Träger\"@1:2 the number 1@1:12)" },
    { "[\"a\\\"]b\", 1]", "an array@1:1(\"a\"]b\"@1:2 the number 1@1:11)" },
};
}

TEST(JsonReaderTest, ValuesKnowWhereTheyStand)
{
    for (const PlaceCase& test : kPlaces)
        EXPECT_EQ(test.places, placesOf(nodesOf(test.text))) << test.text;
}

TEST(JsonReaderTest, ValuesKnowWhereTheyEnd)
{
    EXPECT_EQ("an array@1:1-2:15(the number 12@1:2-1:4 \"ä\"@1:5-1:8 true@2:2-2:6 an object@2:7-2:9() null@2:10-2:14)",
              placesOf(nodesOf("[12,\"ä\"\n,true,{},null]"), true));
    EXPECT_EQ("an object@1:1-1:15(a@1:2-1:5=the number -1500@1:6-1:13)", placesOf(nodesOf("{\"a\":-1.5e+3 }"), true));
    EXPECT_EQ("the number 12@1:1-1:3", placesOf(nodesOf("12"), true));
    EXPECT_EQ("an array@1:1-1:14(the number 1@1:2-1:3 the number 2@1:12-1:13)",
              placesOf(nodesOf("[1/* 5 */, 2]"), true));
}

TEST(JsonReaderTest, ValuesAreRead)
{
    const JsonNode root =
        nodesOf(R"({ "t": "a\u00e9\n", "i": -7, "d": 2.5, "big": 99999999999, "whole": 2.0, "b": true })");

    EXPECT_EQ("aé\n", root.find("t")->text);
    EXPECT_EQ(JsonNode::kInteger, root.find("i")->kind);
    EXPECT_EQ(-7.0, root.find("i")->number);
    EXPECT_EQ(JsonNode::kNumber, root.find("d")->kind);
    EXPECT_EQ(2.5, root.find("d")->number);
    EXPECT_EQ(JsonNode::kInteger, root.find("big")->kind);
    EXPECT_EQ(99999999999.0, root.find("big")->number);
    EXPECT_EQ(JsonNode::kNumber, root.find("whole")->kind);
    EXPECT_TRUE(root.find("b")->boolean);
    EXPECT_EQ(nullptr, root.find("missing"));
}

TEST(JsonReaderTest, BrokenTextIsNamedWithItsPlace)
{
    EXPECT_EQ("3 list.json:2:8: found no valid JSON: unexpected ','; expected '[', '{', or a literal\n",
              faultIn("{\n  \"a\": , }"));
    EXPECT_EQ("3 list.json:1:7: found no valid JSON: unexpected end of input; expected '}'\n", faultIn("{ \"a\":5"));
    EXPECT_EQ(0u, faultIn("").find("3 list.json:1:1: found no valid JSON: unexpected end of input"));
    EXPECT_EQ(0u, faultIn("{} x").find("3 list.json:1:4: found no valid JSON: "));
    EXPECT_EQ(0u, faultIn("[1,]").find("3 list.json:1:4: found no valid JSON: unexpected ']'"));
}

TEST(JsonReaderTest, AKeyStandsOnceInItsObject)
{
    EXPECT_EQ("3 list.json:3:3: found key \"a\" a second time\n", faultIn("{\n  \"a\": 1,\n  \"a\": 2 }"));
    EXPECT_EQ("", faultIn("[ { \"a\": 1 }, { \"a\": { \"a\": 2 } } ]"));
}

TEST(JsonReaderTest, BytesThatAreNoTextAreNamedWithTheirPlace)
{
    EXPECT_EQ("3 list.json:2:3: found a byte that is not UTF-8, expected text in UTF-8\n", faultIn("[\n \"\xE9\" ]"));
}

TEST(JsonReaderTest, NestingHasALimit)
{
    const auto nested = [](int depth)
    { return std::string(static_cast<std::size_t>(depth), '[') + std::string(static_cast<std::size_t>(depth), ']'); };

    EXPECT_EQ("", faultIn(nested(JsonReader::kDeepest)));
    EXPECT_EQ("3 list.json:1:501: found more than 500 levels of nesting\n", faultIn(nested(1'000'000)));
}

TEST(JsonReaderTest, ManyMembersCostNoMoreThanTheirNumber)
{
    std::string text = "{";
    for (int i = 0; i < 200'000; ++i)
        text += (i == 0 ? "\"" : ",\n\"") + std::to_string(i) + "\": 1";

    EXPECT_EQ(200'000u, nodesOf(text + "}").children.size());
}
}
