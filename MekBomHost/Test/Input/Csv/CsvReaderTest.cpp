#include "CsvReader.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
// Each record as "line: [field][field]" and a line end.
std::string recordsOf(const std::string& text, std::size_t blockSize = 1 << 20)
{
    TextSource source(text, blockSize);
    CsvReader reader(source);
    std::string records;
    while (const Record* const pRecord = reader.next())
    {
        records += std::to_string(reader.findingInRecord().begin.line) + ": ";
        for (const RecordCell& cell : *pRecord)
            records += "[" + std::string(cell.text()) + "]";
        records += "\n";
    }
    return records;
}

std::string faultIn(const std::string& text)
{
    return faultOf([&text] { recordsOf(text); });
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

TEST(CsvReaderTest, FieldsKnowTheLineTheyStartOn)
{
    TextSource source("h\n\"a\nb\",c,\"d\ne\",f\n");
    CsvReader reader(source);
    reader.next();

    const Record* const pRecord = reader.next();
    ASSERT_NE(nullptr, pRecord);

    ASSERT_EQ(4u, pRecord->size());
    EXPECT_EQ(2, reader.findingInRecord().begin.line);
    EXPECT_EQ(2, reader.findingInCell(0).begin.line);
    EXPECT_EQ(3, reader.findingInCell(1).begin.line);
    EXPECT_EQ(3, reader.findingInCell(2).begin.line);
    EXPECT_EQ(4, reader.findingInCell(3).begin.line);
}

TEST(CsvReaderTest, NothingFollowsTheEnd)
{
    TextSource source("a\n");
    CsvReader reader(source);

    EXPECT_NE(nullptr, reader.next());
    EXPECT_EQ(nullptr, reader.next());
    EXPECT_EQ(nullptr, reader.next());
}

TEST(CsvReaderTest, LongFieldsAreRead)
{
    const std::string longField(2'000'000, 'x');

    EXPECT_EQ("1: [" + longField + "][y]\n", recordsOf("\"" + longField + "\",y\n", 5000));
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
