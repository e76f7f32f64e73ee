#include "JsonRecords.h"

#include "Fault.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// Each record as "a|b|c", numbers with a # in front.
std::vector<std::string> recordsOf(const std::string& text)
{
    MemorySource source("parts.json", text);
    JsonRecords records(source);
    std::vector<std::string> all;
    while (const Record* const pRecord = records.next())
    {
        std::string joined;
        for (const RecordCell& cell : *pRecord)
            joined += (joined.empty() && &cell == pRecord->data() ? "" : "|") +
                      std::string(cell.isNumber() ? "#" : "") + cell.asText();
        all.push_back(joined);
    }
    return all;
}

std::string messageFor(const std::string& text)
{
    try
    {
        recordsOf(text);
    }
    catch (const Fault& fault)
    {
        EXPECT_EQ(kInvalidInput, fault.status());
        return messageOf(fault.findings().front());
    }
    return "no fault";
}

// The place of a cell of the last record, as "line:column-line:column".
std::string placeOf(const std::string& text, std::size_t index)
{
    MemorySource source("parts.json", text);
    JsonRecords records(source);
    Finding finding;
    while (records.next() != nullptr)
    {
        finding = Finding();
        records.placeCell(index, finding);
    }
    return std::to_string(finding.begin.line) + ":" + std::to_string(finding.begin.column) + "-" +
           std::to_string(finding.end.line) + ":" + std::to_string(finding.end.column);
}

using Texts = std::vector<std::string>;
}

TEST(JsonRecordsTest, TheKeysOfAllObjectsAreTheHeaderRow)
{
    EXPECT_EQ(Texts({ "Name|Length|Phase", "HEA200|#7.5|", "IPE360||2" }),
              recordsOf(R"([{"Name":"HEA200","Length":7.5},{"Phase":"2","Name":"IPE360"}])"));
    EXPECT_EQ(Texts({ "a|b", "#1|", "|#2", "#3|#4" }), recordsOf("{\"a\":1}\n{\"b\":2}\n{\"b\":4,\"a\":3}\n"));
}

TEST(JsonRecordsTest, NothingWithoutObjectsAndEmptyRecordsOfEmptyOnes)
{
    EXPECT_EQ(Texts(), recordsOf(""));
    EXPECT_EQ(Texts(), recordsOf("[]"));
    EXPECT_EQ(Texts({ "a", "", "#1" }), recordsOf(R"([{},{"a":1}])"));
}

TEST(JsonRecordsTest, ValuesAreHandedOverAsTheyAreStored)
{
    EXPECT_EQ(Texts({ "v", "#12", "#-12", "#0.1", "#0.00001", "true", "false", "", "0417", "", "Träger" }),
              recordsOf("{\"v\":12}{\"v\":-12}{\"v\":0.1}{\"v\":1e-5}{\"v\":true}{\"v\":false}{\"v\":null}"
                        "{\"v\":\"0417\"}{\"v\":\"\"}{\"v\":\"Tr\\u00e4ger\"}"));
}

TEST(JsonRecordsTest, WholeNumbersOfMoreDigitsThanADoubleHoldsKeepThem)
{
    EXPECT_EQ(Texts({ "v", "#9007199254740992", "9007199254740993", "-9007199254740993", "18446744073709551615",
                      "123456789012345678901234567890" }),
              recordsOf("{\"v\":9007199254740992}{\"v\":9007199254740993}{\"v\":-9007199254740993}"
                        "{\"v\":18446744073709551615}{\"v\":123456789012345678901234567890}"));
}

TEST(JsonRecordsTest, EveryColumnsTextStandsWhileTheRecordDoes)
{
    std::string object = "{";
    std::string expected;
    for (int i = 0; i < 100; ++i)
    {
        const std::string text = std::string(20, static_cast<char>('a' + i % 26)) + std::to_string(i);
        object += (i == 0 ? "\"k" : ",\"k") + std::to_string(i) + "\":\"" + text + "\"";
        expected += (i == 0 ? "" : "|") + text;
    }
    const Texts records = recordsOf("[" + object + "}]");

    EXPECT_EQ(expected, records.at(1));
}

TEST(JsonRecordsTest, PartsWithinPartsAreRefused)
{
    const std::string remedy = ": give each part an object of its own, with a key that names the part it belongs to";
    EXPECT_EQ("parts.json:2:24: found \"Parts\" with an array, expected a text, a number, true, false or null" + remedy,
              messageFor("[{\"Name\":\"A1\"},\n {\"Name\":\"A2\", \"Parts\":[{}]}]"));
    EXPECT_EQ("parts.json:1:6: found \"a\" with an object, expected a text, a number, true, false or null" + remedy,
              messageFor("{\"a\":{\"b\":1}}"));
}

TEST(JsonRecordsTest, WhatIsNoJsonIsToldWithItsPlaceInTheFile)
{
    EXPECT_EQ("parts.json:2:12: found key \"Name\" a second time", messageFor("[{},\n{\"Name\":\"\",\"Name\":1}]"));
    EXPECT_EQ(0u, messageFor("[{},\n {\"Name\":12a}]").find("parts.json:2:12: found no valid JSON: "));
    EXPECT_EQ(0u, messageFor("{\"Name\":1e999}").find("parts.json:1:"));
    EXPECT_EQ("parts.json:1:6: found a zero character, expected text", messageFor("{\"a\":\"x\\u0000\"}"));
    EXPECT_EQ("parts.json:1:1: found a comment within this object, expected JSON without",
              messageFor("{\"a\":1/*b*/}"));
    EXPECT_NE("no fault", messageFor("{\"a\":\"\xE4\"}"));
    EXPECT_NE("no fault", messageFor("{\"a\":" + std::string(100'000, '[')));
    EXPECT_NE("no fault", messageFor("{\"a\":" + std::string(100'000, '[') + "}"));
}

// Each object looks at all columns: a million of them with keys of their own would be read for hours.
TEST(JsonRecordsTest, KeysWithoutEndAreRefused)
{
    std::string text;
    for (int i = 0; i < 16'384; ++i)
        text += (i % 1024 == 0 ? "{\"k" : ",\"k") + std::to_string(i) + (i % 1024 == 1023 ? "\":1}\n" : "\":1");

    EXPECT_EQ("no fault", messageFor(text));
    EXPECT_EQ("parts.json:17: found 16385 columns, expected 16384 at most", messageFor(text + "{\"one\":1}\n"));
}

TEST(JsonRecordsTest, PlacesAreThoseOfTheFile)
{
    const std::string text = "[ {\"a\":1,\"b\":2},\n  {\"a\": \"x\ty\",\n \"c\": 12.5 } ]";

    EXPECT_EQ("2:3-0:0", placeOf(R"([ {"a":1,"b":2},
  {"a": "xy", "c": 12.5 } ])",
                                 1))
        << "the object of a cell that it lacks";
    EXPECT_EQ("2:9-2:13", placeOf("[ {\"a\":1,\"b\":2},\n  {\"a\": \"xy\",\n \"c\": 12.5 } ]", 0));
    EXPECT_EQ("3:7-3:11", placeOf("[ {\"a\":1,\"b\":2},\n  {\"a\": \"xy\",\n \"c\": 12.5 } ]", 2));
    EXPECT_NE("no fault", messageFor(text)) << "a tab within a text is none of JSON's";
}

TEST(JsonRecordsTest, FilesAreKnownByHowTheyBegin)
{
    for (const char* const head :
         { "[{\"a\":1}]", " \r\n [ {\t\"a\"", "{\"a\"", "{}", "[]", "[ ]", "\xEF\xBB\xBF[{}]" })
        EXPECT_TRUE(JsonRecords::isBeginOf(head)) << head;
    for (const char* const head : { "", " ", "Name,Length", "[mm],Name", "{mm},Name", "[", "[5]", "{", "\"a\"" })
        EXPECT_FALSE(JsonRecords::isBeginOf(head)) << head;
}

TEST(JsonRecordsTest, AZeroWithAMinusIsZero)
{
    const std::vector<std::string> records = recordsOf("{\"a\":-0.0,\"b\":-1e-592547409}");
    ASSERT_EQ(2U, records.size());
    EXPECT_EQ(std::string::npos, records[1].find('-')) << records[1];
}
}
