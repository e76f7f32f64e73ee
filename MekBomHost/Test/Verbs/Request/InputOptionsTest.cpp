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
InputChoices choicesOf(std::vector<std::string> words)
{
    CLI::App app;
    InputOptions input;
    input.declareOn(app);
    std::reverse(words.begin(), words.end()); // as CLI11 takes them
    app.parse(std::move(words));
    return input.choices();
}
}

TEST(InputOptionsTest, NothingIsGivenByDefault)
{
    EXPECT_TRUE(choicesOf({}).headings.empty());
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
