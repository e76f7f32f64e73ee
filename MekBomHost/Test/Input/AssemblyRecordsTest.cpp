#include "AssemblyRecords.h"

#include "CsvReader.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// All records of the parts with their assemblies, cells with a | between.
std::vector<std::string> recordsOf(const std::string& parts, const std::string& assemblies,
                                   const HeadingChoices& choices = HeadingChoices())
{
    MemorySource partsFile("parts.csv", parts);
    MemorySource assembliesFile("assemblies.csv", assemblies);
    AssemblyRecords records(std::make_unique<CsvReader>(partsFile), std::make_unique<CsvReader>(assembliesFile),
                            choices);
    std::vector<std::string> all;
    while (const Record* const pRecord = records.next())
    {
        std::string text;
        for (std::size_t i = 0; i < pRecord->size(); ++i)
            text += (i == 0 ? "" : "|") + (*pRecord)[i].asText();
        all.push_back(text);
    }
    return all;
}

std::string faultFor(const std::string& parts, const std::string& assemblies)
{
    return faultOf([&] { recordsOf(parts, assemblies); });
}

using Texts = std::vector<std::string>;
}

TEST(AssemblyRecordsTest, PartsGetTheColumnsThatTheyDoNotHave)
{
    EXPECT_EQ(Texts({ "Handle|Name|Assembly|%MNum|%MName|%AssemblyWeight [kg]", "P1|HEA200|A7|L10|LIGGER|17.5",
                      "P2|IPE360||||", "P3||A8||KOLOM|0" }),
              recordsOf("Handle,Name,Assembly\nP1,HEA200,A7\nP2,IPE360,\nP3,,A8\n",
                        "MNum,%Handle,Name,AssemblyWeight [kg]\nL10,A7,LIGGER,17.5\n,A8,KOLOM,0\nL11,A9,KOLOM,1\n"));
}

// The weight of a whole assembly, taken for that of each of its parts, would be counted as often as it has parts.
TEST(AssemblyRecordsTest, WhatAnAssemblyHasIsNotThatOfItsParts)
{
    EXPECT_EQ(Texts({ "Assembly|%MNum|%MName|%MQuantity|%AssemblyWeight [t]|%Bay", "A7|L10|LIGGER|2|1.5|C" }),
              recordsOf("Assembly\nA7\n", "GUID,Mark,Name,Qty,Weight [t],Length,Paint [m2],Bay\n"
                                          "A7,L10,LIGGER,2,1.5,6000,12,C\n"));
}

TEST(AssemblyRecordsTest, AMappedHeadingStaysWhereTheMappingFindsIt)
{
    HeadingChoices choices;
    choices.mappings = { { "Code", "%UserAttr1", true } };
    EXPECT_EQ(Texts({ "Assembly|Code", "A7|x" }), recordsOf("Assembly\nA7\n", "Handle,Code\nA7,x\n", choices));
}

TEST(AssemblyRecordsTest, WhatAllPiecesOfAnAssemblyHaveIsNotGiven)
{
    EXPECT_EQ(Texts({ "Assembly|%MQuantity", "A7|2" }),
              recordsOf("Assembly\nA7\n", "Handle,Qty,Total weight\nA7,2,1500\n"));
}

TEST(AssemblyRecordsTest, WithoutAssembliesThereIsNothingToGet)
{
    EXPECT_EQ(Texts({ "Assembly|%MNum", "|" }), recordsOf("Assembly\n\"\"\n", "Handle,MNum\n"));
    EXPECT_EQ(Texts({ "Assembly|%MNum", "|" }), recordsOf("Assembly\n\"\"\n", "Handle,MNum\n,L10\n,L11\n"));
}

TEST(AssemblyRecordsTest, AListWithoutTheColumnIsRefused)
{
    EXPECT_EQ(
        "3 parts.csv:1: found no column \"Assembly\", expected one that tells which part belongs to which assembly\n",
        faultFor("Handle\n", "Handle\n"));
    EXPECT_EQ("3 assemblies.csv:1: found no column \"Handle\", expected one that tells which part belongs to which "
              "assembly\n",
              faultFor("Assembly\n", "MNum\n"));
    EXPECT_EQ("3 assemblies.csv: found nothing, expected a header row with column names\n", faultFor("Assembly\n", ""));
}

TEST(AssemblyRecordsTest, TwoAssembliesOfOneHandleAreRefused)
{
    EXPECT_EQ("3 assemblies.csv:3: found handle \"A7\" a second time\n",
              faultFor("Assembly\nA7\n", "Handle,MNum\nA7,L10\nA7,L11\n"));
}

TEST(AssemblyRecordsTest, AnAssemblyThatThereIsNoneOfIsRefused)
{
    EXPECT_EQ("3 parts.csv:3:4: found \"A9\", expected the handle of an assembly of assemblies.csv\n",
              faultFor("Name,Assembly\na,A7\nbc,A9\n", "Handle\nA7\n"));
}

TEST(AssemblyRecordsTest, RecordsOfOtherLengthsAreRefused)
{
    EXPECT_EQ("3 assemblies.csv:2: found 3 fields, expected 2 as in the header row\n",
              faultFor("Assembly\nA7\n", "Handle,MNum\nA7,L10,\n"));
    EXPECT_EQ("3 parts.csv:2: found 1 field, expected 2 as in the header row\n",
              faultFor("Name,Assembly\na\n", "Handle,MNum\n"));
    EXPECT_EQ("3 parts.csv:3: found 3 fields, expected 2 as in the header row\n",
              faultFor("Name,Assembly\na,A7\nb,A7,L99\n", "Handle,MNum\nA7,L10\n"))
        << "as many as with the assembly's";
}
}
