#include "JoinedRecords.h"

#include "CsvReader.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
namespace
{
// Files with the names a.csv, b.csv and so on.
class Files
{
public:
    explicit Files(const std::vector<std::string>& texts) : m_texts(texts)
    {
        std::vector<std::unique_ptr<RecordSource>> readers;
        for (const std::string& text : m_texts)
        {
            const std::string name = std::string(1, static_cast<char>('a' + m_sources.size())) + ".csv";
            m_sources.push_back(std::make_unique<MemorySource>(name, text));
            readers.push_back(std::make_unique<CsvReader>(*m_sources.back()));
        }
        m_pRecords = std::make_unique<JoinedRecords>(std::move(readers), HeadingChoices());
    }

    JoinedRecords& records() { return *m_pRecords; }

    // All records, cells with a | between.
    std::vector<std::string> all()
    {
        std::vector<std::string> joined;
        while (const Record* const pRecord = m_pRecords->next())
        {
            std::string text;
            for (std::size_t i = 0; i < pRecord->size(); ++i)
                text += (i == 0 ? "" : "|") + (*pRecord)[i].asText();
            joined.push_back(text);
        }
        return joined;
    }

private:
    std::vector<std::string> m_texts;
    std::vector<std::unique_ptr<MemorySource>> m_sources;
    std::unique_ptr<JoinedRecords> m_pRecords;
};

using Texts = std::vector<std::string>;
}

TEST(JoinedRecordsTest, RowsFollowOneAnotherUnderTheColumnsOfTheirTokens)
{
    EXPECT_EQ(Texts({ "Name|Length|Phase", "HEA200|6000|", "IPE360|5500|2", "|1|" }),
              Files({ "Name,Length\nHEA200,6000\n", "Length,%Name,Phase\n5500,IPE360,2\n", "Length\n1\n" }).all());
}

TEST(JoinedRecordsTest, HeadingsOfOneTokenAreOneColumn)
{
    EXPECT_EQ(Texts({ "Name|Werkstoff [-]", "HEA200|S235JR", "IPE360|S355J2" }),
              Files({ "Name,Werkstoff [-]\nHEA200,S235JR\n", "Grade [-],Profile\nS355J2,IPE360\n" }).all());
}

// The part mark of the first file was once an assembly's, since the second one has a heading for each.
TEST(JoinedRecordsTest, HeadingsMeanWhatTheyMeanInTheirOwnFile)
{
    EXPECT_EQ(Texts({ "%PNum|Profile|%MNum", "B1|HEA200|", "p7|IPE360|A1" }),
              Files({ "Mark,Profile\nB1,HEA200\n", "Part mark,Mark,Name\np7,A1,IPE360\n" }).all());
}

TEST(JoinedRecordsTest, WhatTheOthersWouldMakeSomethingElseIsRefused)
{
    EXPECT_EQ(
        "3 b.csv:1: column \"Total weight [kg]\" means something else beside the columns of the other files: give "
        "all files the same headings\n",
        faultOf(
            [] {
                Files({ "Qty,Weight [kg]\n", "Qty,Total weight [kg]\n" }).all();
            }));
}

TEST(JoinedRecordsTest, AFileWithoutRowsAddsItsColumns)
{
    EXPECT_EQ(Texts({ "a|b", "1|" }), Files({ "a\n1\n", "b\n" }).all());
    EXPECT_EQ(Texts({ "a|b", "|1" }), Files({ "a\n", "b\n1\n" }).all());
    EXPECT_EQ(Texts({ "a" }), Files({ "a\n", "a\n" }).all());
}

TEST(JoinedRecordsTest, AColumnThatComesTwiceInOneFileStaysTwo)
{
    EXPECT_EQ(Texts({ "a|a", "1|", "2|3" }), Files({ "a\n1\n", "a,a\n2,3\n" }).all());
}

TEST(JoinedRecordsTest, ItIsCalledByAllFiles)
{
    EXPECT_EQ("a.csv, b.csv", Files({ "a\n", "b\n" }).records().name());
}

TEST(JoinedRecordsTest, AFileWithoutHeaderRowIsNamed)
{
    EXPECT_EQ("3 b.csv: found nothing, expected a header row with column names\n", faultOf(
                                                                                       [] {
                                                                                           Files({ "a\n", "" }).all();
                                                                                       }));
}

TEST(JoinedRecordsTest, UnitsThatDifferAreRefused)
{
    EXPECT_EQ(
        "3 b.csv:1: found column \"Length [ft]\", expected \"Length [mm]\" as in a.csv: give the column in one unit "
        "in all files\n",
        faultOf(
            [] {
                Files({ "Length [mm]\n", "Length [ft]\n" }).all();
            }));
    EXPECT_EQ(
        "3 c.csv:1: found column \"Length\", expected \"Length [ft]\" as in b.csv: give the column in one unit in "
        "all files\n",
        faultOf(
            [] {
                Files({ "Name\n", "Length [ft]\n", "Length\n" }).all();
            }));
}

TEST(JoinedRecordsTest, ARecordIsHeldAgainstItsOwnHeaderRow)
{
    EXPECT_EQ("3 b.csv:3: found 1 field, expected 2 as in the header row\n",
              faultOf(
                  [] {
                      Files({ "a\n1\n", "a,b\n1,2\n3\n" }).all();
                  }));
}

TEST(JoinedRecordsTest, PlacesAreThoseOfTheirFile)
{
    Files files({ "Name,Length\nHEA200,6000\n", "Length,%Name\n\n5500,IPE360\n" });
    files.records().next();
    Finding heading;
    files.records().placeCell(1, heading);
    EXPECT_EQ("a.csv 1:6",
              heading.source + " " + std::to_string(heading.begin.line) + ":" + std::to_string(heading.begin.column));
    files.records().next();
    files.records().next();
    Finding cell, record;
    files.records().placeCell(0, cell);
    files.records().placeRecord(record);

    EXPECT_EQ("b.csv 3:6",
              cell.source + " " + std::to_string(cell.begin.line) + ":" + std::to_string(cell.begin.column));
    EXPECT_EQ("b.csv 3", record.source + " " + std::to_string(record.begin.line));
    EXPECT_EQ(nullptr, files.records().next());
    EXPECT_EQ(nullptr, files.records().next());
}
}
