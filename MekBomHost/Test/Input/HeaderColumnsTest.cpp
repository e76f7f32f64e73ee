#include "HeaderColumns.h"

#include "Support/FakeSource.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
std::vector<std::string> mistakesOf(const HeaderColumns& header)
{
    std::vector<std::string> texts;
    for (const Finding& finding : header.mistakes.all())
        texts.push_back(messageOf(finding));
    return texts;
}
}

TEST(HeaderColumnsTest, EachHeadingNamesAColumn)
{
    FakeSource source({ { textCell("Handle"), textCell("Länge [m]"), textCell("Anzahl"), RecordCell(7.0) } });

    const HeaderColumns header = HeaderColumns::read(source, HeadingChoices());

    ASSERT_EQ(4u, header.columns.size());
    EXPECT_TRUE(header.columns[0].isHandle);
    EXPECT_EQ("%Length", header.columns[1].token);
    EXPECT_EQ("m", header.columns[1].unitSymbol);
    EXPECT_EQ("Länge [m]", header.columns[1].name);
    EXPECT_EQ("Länge", header.columns[1].label);
    EXPECT_TRUE(header.columns[2].isPieces);
    EXPECT_EQ("%7", header.columns[3].token);
    EXPECT_TRUE(mistakesOf(header).empty());
}

TEST(HeaderColumnsTest, WhatIsWrongIsToldAndTheColumnsAreThereAllTheSame)
{
    Finding date;
    date.found = "a date";
    date.expected = "a heading";
    FakeSource source({ { textCell("Name"), RecordCell(), textCell("%Name"), RecordCell(date) } });

    const HeaderColumns header = HeaderColumns::read(source, HeadingChoices());

    EXPECT_EQ(4u, header.columns.size());
    EXPECT_EQ((std::vector<std::string>{ "parts.xyz:1: found no name in field 2, expected a column name",
                                         "parts.xyz:1: found column \"%Name\" a second time",
                                         "parts.xyz:1: /3: found a date, expected a heading" }),
              mistakesOf(header));
}

TEST(HeaderColumnsTest, AMappingWhoseHeadingIsNotThereIsWrongUsage)
{
    HeadingChoices choices;
    choices.mappings = { { "Cots", "%UserAttr1", true } };
    const auto read = [&choices]
    {
        FakeSource source({ { textCell("Cost") } });
        HeaderColumns::read(source, choices);
    };

    EXPECT_EQ("2 --map Cots=%UserAttr1: parts.xyz has no column \"Cots\": did you mean \"Cost\"?\n", faultOf(read));
    choices.mappings.front().mustBeThere = false;
    EXPECT_EQ("", faultOf(read));
}

TEST(HeaderColumnsTest, ThereMustBeAHeaderRow)
{
    EXPECT_EQ("3 parts.xyz: found nothing, expected a header row with column names\n",
              faultOf(
                  []
                  {
                      FakeSource source({});
                      HeaderColumns::read(source, HeadingChoices());
                  }));
}
}
