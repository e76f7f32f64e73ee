#include "InputOptions.h"

#include "Support/HostTestSupport.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
namespace
{
InputChoices choicesOf(std::vector<std::string> arguments)
{
    CLI::App app;
    InputOptions input;
    input.declareOn(app);
    std::reverse(arguments.begin(), arguments.end()); // as the parser takes them
    app.parse(arguments);
    return input.choices();
}

std::string refusalOf(const std::vector<std::string>& arguments)
{
    try
    {
        choicesOf(arguments);
        return std::string();
    }
    catch (const CLI::ParseError& error)
    {
        return error.what();
    }
}
}

TEST(InputOptionsTest, NothingIsChosenByDefault)
{
    const InputChoices choices = choicesOf({});

    EXPECT_TRUE(choices.headings.empty());
    EXPECT_FALSE(choices.delimiter);
    EXPECT_FALSE(choices.encoding);
    EXPECT_EQ(NumberNotation::kNoSign, choices.decimalSign);
}

TEST(InputOptionsTest, EachWordStandsForItsChoice)
{
    EXPECT_EQ(',', choicesOf({ "--delimiter", "," }).delimiter);
    EXPECT_EQ(';', choicesOf({ "--delimiter", ";" }).delimiter);
    EXPECT_EQ('|', choicesOf({ "--delimiter", "|" }).delimiter);
    EXPECT_EQ('\t', choicesOf({ "--delimiter", "tab" }).delimiter);
    EXPECT_EQ(NumberNotation::kPoint, choicesOf({ "--decimal", "." }).decimalSign);
    EXPECT_EQ(NumberNotation::kComma, choicesOf({ "--decimal", "," }).decimalSign);
    EXPECT_EQ(TextEncoding::kUtf8, choicesOf({ "--encoding", "utf-8" }).encoding);
    EXPECT_EQ(TextEncoding::kUtf16BigEndian, choicesOf({ "--encoding", "utf-16be" }).encoding);
    EXPECT_EQ(TextEncoding::kWindows1252, choicesOf({ "--encoding", "windows-1252" }).encoding);
}

TEST(InputOptionsTest, OtherWordsAreRefusedWithThoseThereAre)
{
    EXPECT_EQ("--delimiter: \"x\" is none of , ; tab |", refusalOf({ "--delimiter", "x" }));
    EXPECT_EQ("--decimal: \"\" is none of . ,", refusalOf({ "--decimal", "" }));
    EXPECT_EQ("--encoding: \"latin1\" is none of utf-8 utf-16le utf-16be windows-1252",
              refusalOf({ "--encoding", "latin1" }));
}

TEST(InputOptionsTest, HeadingsAreMapped)
{
    const InputChoices choices = choicesOf({ "--map", "Cost code=%UserAttr1", "--map", "Wt=Weight" });

    ASSERT_EQ(2u, choices.headings.size());
    EXPECT_EQ("Cost code", choices.headings[0].heading);
    EXPECT_EQ("%UserAttr1", choices.headings[0].token);
    EXPECT_TRUE(choices.headings[0].mustBeThere);
    EXPECT_EQ("%Weight", choices.headings[1].token);
}

TEST(InputOptionsTest, WhatIsNoMappingIsRefused)
{
    EXPECT_EQ("2 --map: found \"Cost code\", expected HEADING=TOKEN such as \"Cost code=%UserAttr1\"\n",
              faultOf(
                  [] {
                      choicesOf({ "--map", "Cost code" });
                  }));
    EXPECT_EQ("2 --map Wt=%SumBy:%Weight: found \"%SumBy:%Weight\", expected a token of a row such as %UserAttr1\n",
              faultOf(
                  [] {
                      choicesOf({ "--map", "Wt=%SumBy:%Weight" });
                  }));
}
}
