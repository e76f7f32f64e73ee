#include "Completion.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
class CompletionTest : public testing::Test
{
protected:
    CompletionTest()
    {
        CLI::App& print = *m_app.add_subcommand("print", "Print a file's text");
        print.add_option("file", m_file, "What to print");
        print.add_option("-u,--units", m_units, "Units: those of \\ ");
        print.add_flag("--wide", m_isWide, "Wider lines");
        m_app.add_subcommand("units", "List units")->add_subcommand("convert", "Convert");
    }

    bool has(Completion::eShell shell, const std::string& text) const
    {
        return Completion::textOf(m_app, shell).find(text) != std::string::npos;
    }

    CLI::App m_app{ "Lists of steel", "steel" };
    std::string m_file;
    std::string m_units;
    bool m_isWide = false;
};
}

TEST_F(CompletionTest, BashHasTheWordsOfEachCommand)
{
    EXPECT_TRUE(has(Completion::kBash, R"("steel") commands='print units'; options='--help -h' ;;)"));
    EXPECT_TRUE(has(Completion::kBash, R"("steel print") commands=''; options='--help -h --units -u --wide' ;;)"));
    EXPECT_TRUE(has(Completion::kBash, R"("steel units") commands='convert'; options='--help -h' ;;)"));
    EXPECT_TRUE(has(Completion::kBash, R"("steel units convert") commands=''; options='--help -h' ;;)"));
    EXPECT_TRUE(has(Completion::kBash, "\ncomplete -o default -F _steel steel\n"));
}

TEST_F(CompletionTest, ZshHasTheirMeaningsToo)
{
    EXPECT_EQ(0u, Completion::textOf(m_app, Completion::kZsh).find("#compdef steel\n"));
    EXPECT_TRUE(has(Completion::kZsh, R"(commands=('print:Print a file'\''s text' 'units:List units'))"));
    EXPECT_TRUE(has(Completion::kZsh, R"('--units:Units: those of \ ' '-u:Units: those of \ ' '--wide:Wider lines')"));
}

TEST_F(CompletionTest, FishKnowsWhichOptionsTakeAValue)
{
    EXPECT_TRUE(
        has(Completion::kFish, R"(complete -c steel -n '__steel_is "steel"' -f -a print -d 'Print a file\'s text')"));
    EXPECT_TRUE(has(Completion::kFish, R"(-n '__steel_is "steel print"' -l units -r -d 'Units: those of \\ ')"));
    EXPECT_TRUE(has(Completion::kFish, R"(-n '__steel_is "steel print"' -s u -r -d )"));
    EXPECT_TRUE(has(Completion::kFish, R"(-n '__steel_is "steel print"' -l wide -d 'Wider lines')"));
}

// What stands in its place has no name that could be completed.
TEST_F(CompletionTest, WhatHasNoNameIsNotOffered)
{
    for (const Completion::eShell shell : { Completion::kBash, Completion::kZsh, Completion::kFish })
        EXPECT_FALSE(has(shell, "What to print"));
}
}
