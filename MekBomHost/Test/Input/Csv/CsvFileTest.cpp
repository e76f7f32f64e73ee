#include "CsvFile.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// Each record as "line: [field][field]" and a line end, and behind them what is noted.
std::string recordsOf(const std::string& text, const InputChoices& choices = InputChoices())
{
    BlockSource source(text, 1000);
    FindingList notes;
    CsvFile file(source, choices, notes);
    std::string records;
    while (const Record* const pRecord = file.next())
    {
        Finding place;
        file.placeRecord(place);
        records += std::to_string(place.begin.line) + ": ";
        for (const RecordCell& cell : *pRecord)
            records += "[" + std::string(cell.text()) + "]";
        records += "\n";
    }
    for (const Finding& note : notes.all())
        records += note.code + " " + messageOf(note) + "\n";
    return records;
}

NumberNotation notationOf(const std::string& text, const std::vector<std::size_t>& columns)
{
    MemorySource source("parts.csv", text);
    FindingList notes;
    CsvFile file(source, InputChoices(), notes);
    file.next();
    return file.notationOf(columns);
}

const char* const kSemicolonNote =
    "MB724 parts.csv: columns are separated by a semicolon; give --delimiter if that is wrong\n";
}

TEST(CsvFileTest, ThePlainFileNeedsNoNote)
{
    EXPECT_EQ("1: [a][b]\n2: [Tr\xC3\xA4ger][1.5]\n", recordsOf("a,b\nTr\xC3\xA4ger,1.5\n"));
}

TEST(CsvFileTest, WhatIsNotPlainIsFoundAndSaid)
{
    EXPECT_EQ("1: [a][b]\n2: [Tr\xC3\xA4ger][1,5]\n"
              "MB726 parts.csv: read as windows-1252; give --encoding if it is in another one\n" +
                  std::string(kSemicolonNote),
              recordsOf("a;b\nTr\xE4ger;1,5\n"));
    EXPECT_EQ("1: [a][b]\n2: [1][2]\n"
              "MB726 parts.csv: read as utf-16be; give --encoding if it is in another one\n" +
                  std::string(kSemicolonNote),
              recordsOf(std::string("\xFE\xFF\0a\0;\0b\0\n\0"
                                    "1\0;\0"
                                    "2",
                                    16)));
}

TEST(CsvFileTest, WhatIsSaidIsNotLookedFor)
{
    InputChoices choices;
    choices.delimiter = ',';
    choices.encoding = TextEncoding::kWindows1252;

    EXPECT_EQ("1: [a;b]\n2: [\xC3\x83\xC2\xA4;1][5]\n", recordsOf("a;b\n\xC3\xA4;1,5\n", choices));
}

TEST(CsvFileTest, TheLineThatAnnouncesTheDelimiterIsNoRecord)
{
    EXPECT_EQ("2: [a][b,c]\n3: [1][2,5]\n" + std::string(kSemicolonNote), recordsOf("sep=;\r\na;b,c\r\n1;2,5\r\n"));
    EXPECT_EQ("2: [a][b]\n", recordsOf("sep=,\na,b\n"));
}

// Read as UTF-8, the byte is refused with its place; read as Windows-1252 from the front, texts in UTF-8 would be others.
TEST(CsvFileTest, AByteBehindTheHeadThatIsNoUtf8IsRefused)
{
    std::string text = "Name,Weight\n";
    while (text.size() < 70'000)
        text += "HEA200,5\n";
    const auto numLines = std::count(text.begin(), text.end(), '\n');

    EXPECT_EQ("3 parts.csv:" + std::to_string(numLines + 1) +
                  ":3: found byte 0xE4, expected text in UTF-8: give --encoding if it is in another one\n",
              faultOf([&text] { recordsOf(text + "Tr\xE4ger,5\n"); }));
    EXPECT_EQ("", faultOf([&text] { recordsOf(text + "Tr\xC3\xA4ger,5\n"); }));
}

TEST(CsvFileTest, TheNotationIsThatOfTheColumnsAskedFor)
{
    const std::string text = "Mark;Grade;Weight\n1,5;8.8;1.234\n\"2;5\";10.9;12,5\n";

    EXPECT_EQ(NumberNotation::kComma, notationOf(text, { 2 }).sign());
    EXPECT_EQ("as \"12,5\" on line 3 shows", notationOf(text, { 2 }).reason());
    EXPECT_EQ(NumberNotation::kPoint, notationOf(text, { 1 }).sign());
    EXPECT_TRUE(notationOf(text, { 1, 2 }).isMixed());
    EXPECT_TRUE(notationOf(text, {}).isOpen());
}

TEST(CsvFileTest, TheHeadMayEndAnywhereAndHoldAnything)
{
    std::string text = "Name;Weight\nHEA200;12,5\n";
    while (text.size() < 70'000)
        text += "\"HEA;200\";1\n";

    EXPECT_TRUE(notationOf(text, { 1 }).isSettled());
    EXPECT_TRUE(notationOf("Name;Weight\nHEA200;12,5\nHEA\"200;1\n", { 1, 7 }).isSettled());
}

TEST(CsvFileTest, CellsKnowTheirPlaceInTheFile)
{
    MemorySource source("parts.csv", "sep=;\na;b\n\xE4;\"x\"\n");
    FindingList notes;
    CsvFile file(source, InputChoices(), notes);
    file.next();
    file.next();

    Finding finding;
    file.placeCell(1, finding);

    EXPECT_EQ("parts.csv", finding.source);
    EXPECT_EQ(3, finding.begin.line);
    EXPECT_EQ(4, finding.begin.column);
}
}
