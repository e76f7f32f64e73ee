#include "CsvReader.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
int lineOf(const CsvReader& reader)
{
    Finding finding;
    reader.placeRecord(finding);
    EXPECT_EQ(0, finding.begin.column);
    return finding.begin.line;
}

// From begin to end: "3:2-3:5".
std::string placeOf(const CsvReader& reader, std::size_t index)
{
    Finding finding;
    reader.placeCell(index, finding);
    EXPECT_EQ("parts.csv", finding.source);
    return std::to_string(finding.begin.line) + ":" + std::to_string(finding.begin.column) + "-" +
           std::to_string(finding.end.line) + ":" + std::to_string(finding.end.column);
}

// Each record as "line: [field][field]" and a line end.
std::string recordsOf(const std::string& text, std::size_t blockSize = 1 << 20)
{
    BlockSource source(text, blockSize);
    CsvReader reader(source);
    std::string records;
    while (const Record* const pRecord = reader.next())
    {
        records += std::to_string(lineOf(reader)) + ": ";
        for (const RecordCell& cell : *pRecord)
            records += "[" + std::string(cell.text()) + "]";
        records += "\n";
    }
    return records;
}

std::string faultIn(const std::string& text, std::size_t blockSize = 1 << 20)
{
    return faultOf([&] { recordsOf(text, blockSize); });
}

using Texts = std::vector<std::string>;

// The format, one byte at a time: what CsvReader must read from sound text. A record as its fields.
std::vector<Texts> recordsByteByByte(const std::string& text)
{
    std::vector<Texts> records;
    std::size_t pos = 0;
    const auto isLineEnd = [&text, &pos] { return pos == text.size() || text[pos] == '\n' || text[pos] == '\r'; };
    for (; pos < text.size(); ++pos)
    {
        if (isLineEnd())
            continue;
        records.emplace_back();
        for (bool isWithin = true; isWithin; pos += isWithin ? 1 : 0)
        {
            std::string field;
            if (pos < text.size() && text[pos] == '"')
            {
                for (++pos; text[pos] != '"' || text.substr(pos, 2) == "\"\""; ++pos)
                {
                    field += text[pos];
                    pos += text[pos] == '"' ? 1 : 0;
                }
                ++pos;
            }
            else
                for (; !isLineEnd() && text[pos] != ','; ++pos)
                    field += text[pos];
            records.back().push_back(field);
            isWithin = !isLineEnd();
        }
    }
    return records;
}

// `field` in quotes where it needs them, and sometimes where it does not.
std::string quoted(const std::string& field, bool isForced)
{
    if (!isForced && field.find_first_of(",\"\r\n") == std::string::npos)
        return field;
    std::string text = "\"";
    for (const char c : field)
        text += c == '"' ? "\"\"" : std::string(1, c);
    return text + "\"";
}

// Records of up to six fields with everything in them that a field may hold, and their text.
class RandomRecords
{
public:
    explicit RandomRecords(unsigned seed) : m_random(seed)
    {
        const std::size_t numRecords = below(8);
        for (std::size_t i = 0; i < numRecords; ++i)
            addRecord();
        if (below(4) == 0 && !text.empty() && text.back() == '\n')
            text.pop_back(); // the last line may lack its end; of CRLF it may be CR alone
    }

    std::vector<Texts> records;
    std::string text;

private:
    std::size_t below(std::size_t limit) { return m_random() % limit; }

    void addRecord()
    {
        const char* const lineEnds[] = { "\n", "\r\n", "\r" };
        records.emplace_back(1 + below(6));
        for (std::string& field : records.back())
            field = randomField();
        const bool isEmptyLine = records.back() == Texts{ "" };
        for (std::size_t i = 0; i < records.back().size(); ++i)
            text += (i == 0 ? "" : ",") + quoted(records.back()[i], isEmptyLine || below(4) == 0);
        for (std::size_t numEnds = 1 + below(5) / 4; numEnds > 0; --numEnds)
            text += lineEnds[below(3)];
    }

    std::string randomField()
    {
        const char* const parts[] = {
            "a",    "HEA200",
            " ",    ",",
            "\"",   "\n",
            "\r",   "\r\n",
            "\t",   "Tr\xC3\xA4ger",
            "\x7F", "0123456789012345678901234567890123456789012345678901234567890123456789"
        };
        std::string field;
        for (std::size_t numParts = below(5); numParts > 0; --numParts)
            field += parts[below(std::size(parts))];
        return field;
    }

    std::mt19937 m_random;
};

std::vector<Texts> textsOf(const std::string& text, std::size_t blockSize, char delimiter = ',')
{
    BlockSource source(text, blockSize);
    CsvReader reader(source, delimiter);
    std::vector<Texts> records;
    while (const Record* const pRecord = reader.next())
    {
        records.emplace_back();
        for (const RecordCell& cell : *pRecord)
            records.back().emplace_back(cell.text());
    }
    return records;
}

struct RecordCase
{
    const char* text;
    const char* records;
};

const RecordCase kRecords[] = {
    { "", "" },
    { "a,b\n1,2\n", "1: [a][b]\n2: [1][2]\n" },
    { "a,b\r\n1,2\r\n", "1: [a][b]\n2: [1][2]\n" },
    { "a,b\r1,2\r", "1: [a][b]\n2: [1][2]\n" },
    { "a,b\n1,2", "1: [a][b]\n2: [1][2]\n" }, // no end of the last line
    { "\xEF\xBB\xBF"
      "a,b\n",
      "1: [a][b]\n" },
    { "\xEF\xBB\xBF\"a\",b\n", "1: [a][b]\n" },
    { ",\n", "1: [][]\n" },
    { "a,\n", "1: [a][]\n" },
    { "a,,\r\n,b\r\n", "1: [a][][]\n2: [][b]\n" },
    { "a,b\n\"c\",d\ne,f", "1: [a][b]\n2: [c][d]\n3: [e][f]\n" }, // with quotes and without in turn
    { "\"\"\n", "1: []\n" },
    { " a , b \n", "1: [ a ][ b ]\n" }, // blanks belong to the field
    { "\t\n", "1: [\t]\n" },
    { "\"a,b\",\"c\"\"d\"\n", "1: [a,b][c\"d]\n" },
    { "\" a \"\n", "1: [ a ]\n" },
    { "\"a\nb\",c\nd,e\n", "1: [a\nb][c]\n3: [d][e]\n" },
    { "\"a\r\nb\",c\r\nd,e\r\n", "1: [a\r\nb][c]\n3: [d][e]\n" },
    { "\"\n\n\",c\nd,e\n", "1: [\n\n][c]\n4: [d][e]\n" }, // empty lines within quotes are text
    { "a\n\n\r\n\rb\n", "1: [a]\n5: [b]\n" },             // and nothing between records
    { "\"a\"", "1: [a]\n" },
    { "a,\"b\"", "1: [a][b]\n" },
    { "a,", "1: [a][]\n" },
    { "Träger,柱\n", "1: [Träger][柱]\n" },
};
}

TEST(CsvReaderTest, RecordsAreReadAsTheFormatSays)
{
    for (const RecordCase& test : kRecords)
        for (const std::size_t blockSize : { 1u, 2u, 3u, 1000u })
            EXPECT_EQ(test.records, recordsOf(test.text, blockSize)) << test.text << " in blocks of " << blockSize;
}

TEST(CsvReaderTest, WhatIsWrittenWithQuotesIsReadAsItWas)
{
    for (unsigned seed = 0; seed < 20'000; ++seed)
    {
        const RandomRecords random(seed);
        ASSERT_EQ(random.records, textsOf(random.text, 1 + seed % 100)) << random.text;
        ASSERT_EQ(random.records, recordsByteByByte(random.text)) << random.text;
    }
}

// Each record is begun anew where the bytes read so far end within it.
TEST(CsvReaderTest, RecordsAreTheSameWhereverTheBufferEnds)
{
    const std::string end = "x,\"a\"\"b\r\nc\",Tr\xC3\xA4ger\r\ny,z\r\n";
    for (std::size_t length = (1 << 18) - 100; length < (1 << 18) - 30; ++length)
    {
        const std::string longField(length, '1');
        const std::string text = longField + "\n" + end;
        ASSERT_EQ((std::vector<Texts>{ { longField }, { "x", "a\"b\r\nc", "Tr\xC3\xA4ger" }, { "y", "z" } }),
                  textsOf(text, 1 << 20))
            << length;
    }
}

TEST(CsvReaderTest, FieldsEndAtTheDelimiterAlone)
{
    for (const char delimiter : { ';', '\t', '|' })
    {
        std::string text = "a;\"b;\"\";c\";\r\n1,5;x,\xC3\xA4;\"\"\n";
        std::replace(text.begin(), text.end(), ';', delimiter);
        for (const std::size_t blockSize : { 1U, 3U, 1000U })
            EXPECT_EQ((std::vector<Texts>{ { "a", std::string("b") + delimiter + "\"" + delimiter + "c", "" },
                                           { "1,5", "x,\xC3\xA4", "" } }),
                      textsOf(text, blockSize, delimiter));
    }
    EXPECT_EQ("3 parts.csv:1:4: found \",\" after a closing quote, expected a semicolon or the line's end\n",
              faultOf([] { textsOf("\"a\",b\n", 1000, ';'); }));
}

TEST(CsvReaderTest, CellsKnowTheirPlaceFromBeginToEnd)
{
    MemorySource source("parts.csv", "h\n\"T\"\"r\xC3\xA4\r\ner\",c,\"\"\n");
    CsvReader reader(source);
    reader.next();
    ASSERT_NE(nullptr, reader.next());

    EXPECT_EQ("2:2-3:3", placeOf(reader, 0));
    EXPECT_EQ("3:5-3:6", placeOf(reader, 1));
    EXPECT_EQ("3:8-3:8", placeOf(reader, 2));
}

TEST(CsvReaderTest, FieldsKnowTheLineTheyStartOn)
{
    MemorySource source("parts.csv", "h\n\"a\nb\",c,\"d\ne\",f\n");
    CsvReader reader(source);
    reader.next();

    ASSERT_NE(nullptr, reader.next());

    EXPECT_EQ(2, lineOf(reader));
    EXPECT_EQ("2:2-3:2", placeOf(reader, 0));
    EXPECT_EQ("3:4-3:5", placeOf(reader, 1));
    EXPECT_EQ("3:7-4:2", placeOf(reader, 2));
    EXPECT_EQ("4:4-4:5", placeOf(reader, 3));
}

TEST(CsvReaderTest, NothingFollowsTheEnd)
{
    MemorySource source("parts.csv", "a\n");
    CsvReader reader(source);

    EXPECT_NE(nullptr, reader.next());
    EXPECT_EQ(nullptr, reader.next());
    EXPECT_EQ(nullptr, reader.next());
}

TEST(CsvReaderTest, LongFieldsAreRead)
{
    const std::string longField(2'000'000, 'x');

    EXPECT_EQ("1: [" + longField + "][y]\n", recordsOf("\"" + longField + "\",y\n", 5000));
    EXPECT_EQ("1: [" + longField + "][y]\n", recordsOf(longField + ",y\n", 5000));
}

TEST(CsvReaderTest, MisplacedQuotesAreNamedWithTheirPlace)
{
    EXPECT_EQ(
        "3 parts.csv:2:4: found a quote within a field, expected the whole field in quotes and the quote doubled\n",
        faultIn("a,b\n1,2\"x\n"));
    EXPECT_EQ("3 parts.csv:1:4: found \"x\" after a closing quote, expected a comma or the line's end\n",
              faultIn("\"a\"x,b\n"));
    EXPECT_EQ(
        "3 parts.csv:4:2: found \"x\" after a closing quote, expected a comma or the line's end (the field starts on "
        "line 2)\n",
        faultIn("a,b\n1,\"2\n3,4\n\"x,5\n"));
}

TEST(CsvReaderTest, BytesThatAreNoTextAreNamedWithTheirPlace)
{
    for (const std::size_t blockSize : { 1u, 1000u })
    {
        EXPECT_EQ("3 parts.csv:2:4: found byte 0xE9, expected text in UTF-8: give --encoding if it is in another one\n",
                  faultIn("a,b\nTr\xC3\xA4\xE9,2\n", blockSize));
        EXPECT_EQ("3 parts.csv:1:1: found byte 0xFF, expected text in UTF-8: give --encoding if it is in another one\n",
                  faultIn("\xFF\xFE"
                          "a",
                          blockSize));
        EXPECT_EQ("3 parts.csv:3:2: found a zero byte, expected text: give --encoding if it is in another one\n",
                  faultIn(std::string("a\nb\nc\0d\n", 8)));
        EXPECT_EQ("3 parts.csv:3:2: found byte 0xFF, expected text in UTF-8: give --encoding if it is in another one\n",
                  faultIn("a\n\"b\nc\xFF\nd\"\n"));
    }
}

TEST(CsvReaderTest, ALineMustBeTextBeforeAnythingElseIsSaidOfIt)
{
    EXPECT_EQ("3 parts.csv:1:4: found byte 0xFF, expected text in UTF-8: give --encoding if it is in another one\n",
              faultIn("a\"b\xFF\n"));
    EXPECT_EQ("3 parts.csv:1:5: found byte 0xFF, expected text in UTF-8: give --encoding if it is in another one\n",
              faultIn("\"a\"b\xFF"));
    EXPECT_EQ("3 parts.csv:2:2: found byte 0xFF, expected text in UTF-8: give --encoding if it is in another one\n",
              faultIn("\"a\nb\xFF"));
    EXPECT_EQ("3 parts.csv:1:2: found a quote within a field, expected the whole field in quotes and the quote "
              "doubled\n",
              faultIn("a\"b\n\xFF\n"));
}

TEST(CsvReaderTest, ATextAfterAClosingQuoteIsShownWhole)
{
    EXPECT_EQ("3 parts.csv:1:4: found \"ä\" after a closing quote, expected a comma or the line's end\n",
              faultIn("\"a\"ä\n"));
}

TEST(CsvReaderTest, AQuotedFieldWithoutEndIsNamedByItsStart)
{
    const char* const expected =
        "3 parts.csv:2: found the end of the file within the quoted field that starts here, expected "
        "a closing quote\n";

    EXPECT_EQ(expected, faultIn("a,b\n1,\"2\n3,4\n5,6\n"));
    EXPECT_EQ(expected, faultIn("a,b\n1,\""));
}
}
